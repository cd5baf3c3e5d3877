// What a person means by a search, against the real data: each query with the food
// it must find and how high.
#include "FoodServiceProcess.h"
#include "ServiceClient.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

#include <algorithm>
#include <memory>

class RelevanceTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void expectedFoodRanksHigh_data();
    void expectedFoodRanksHigh();
    void topResultsAllMatch_data();
    void topResultsAllMatch();
    void plainFoodBeforeFoodsContainingIt_data();
    void plainFoodBeforeFoodsContainingIt();
    void eatenFormAmongFirstPlainFoods_data();
    void eatenFormAmongFirstPlainFoods();
    void babyFoodOnlyWhenAsked_data();
    void babyFoodOnlyWhenAsked();

private:
    QStringList topDescriptions(const QString &search, int count = 200);
    // The first foods of no brand.
    QStringList topPlainDescriptions(const QString &search, int count);

    std::unique_ptr<FoodServiceProcess> m_service;
    std::unique_ptr<ServiceClient> m_client;
};

void RelevanceTest::initTestCase()
{
    m_service = std::make_unique<FoodServiceProcess>(QStringLiteral(NUTRIKA_FOOD_DB));
    QVERIFY2(m_service->isReady(), qPrintable(m_service->errorString()));
    m_client = std::make_unique<ServiceClient>(*m_service);
}

QStringList RelevanceTest::topDescriptions(const QString &search, int count)
{
    const auto reply = m_client->get(
        "/api/v1/healthcare//food?food_brand=&food_category=&offset=0&limit=" + QByteArray::number(count) +
        "&search=" + QUrl::toPercentEncoding(search));
    QStringList descriptions;
    for (const auto &result : reply.json().object().value(QStringLiteral("results")).toArray())
        descriptions << result.toObject().value(QStringLiteral("description")).toString();
    return descriptions;
}

QStringList RelevanceTest::topPlainDescriptions(const QString &search, int count)
{
    const auto reply =
        m_client->get("/api/v1/healthcare//food?food_brand=&food_category=&offset=0&limit=100&search=" +
                      QUrl::toPercentEncoding(search));
    QStringList descriptions;
    for (const auto &result : reply.json().object().value(QStringLiteral("results")).toArray()) {
        const auto food = result.toObject();
        if (food.value(QStringLiteral("food_brand")).toString().isEmpty() && descriptions.size() < count)
            descriptions << food.value(QStringLiteral("description")).toString();
    }
    return descriptions;
}

void RelevanceTest::expectedFoodRanksHigh_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("worstRank");

    QTest::newRow("banana") << "banana"
                            << "Bananas, raw" << 1;
    QTest::newRow("upper case") << "BANANAS"
                                << "Bananas, raw" << 1;
    QTest::newRow("accents") << "Bánánás"
                             << "Bananas, raw" << 1;
    QTest::newRow("misspelt, doubled letter") << "bananna"
                                              << "Bananas, raw" << 1;
    QTest::newRow("misspelt, missing letter") << "brocoli"
                                              << "Broccoli, raw" << 1;
    QTest::newRow("misspelt, missing r") << "stawberries"
                                         << "Strawberries, raw" << 1;
    QTest::newRow("misspelt pasta") << "spagetti"
                                    << "Spaghetti, cooked, enriched, without added salt" << 3;
    QTest::newRow("apple") << "apple"
                           << "Apples, raw, with skin" << 1;
    QTest::newRow("egg") << "egg"
                         << "Egg, whole, raw, fresh" << 1;
    QTest::newRow("butter") << "butter"
                            << "Butter, salted" << 1;
    QTest::newRow("milk") << "milk"
                          << "Milk, whole, 3.25% milkfat, with added vitamin D" << 3;
    QTest::newRow("strawberries") << "strawberries"
                                  << "Strawberries, raw" << 1;
    QTest::newRow("tomato") << "tomato"
                            << "Tomatoes, red, ripe, raw, year round average" << 1;
    QTest::newRow("orange juice") << "orange juice"
                                  << "Orange juice, raw" << 1;
    QTest::newRow("honey") << "honey"
                           << "Honey" << 1;
    QTest::newRow("jam") << "jam"
                         << "Jams and preserves" << 1;
    QTest::newRow("lentils") << "lentils"
                             << "Lentils, mature seeds, cooked, boiled, without salt" << 1;
    QTest::newRow("cola") << "cola"
                          << "Carbonated beverage, cola, contains caffeine" << 3;
    QTest::newRow("brand product") << "cheerios"
                                   << "Cereals ready-to-eat, GENERAL MILLS, CHEERIOS" << 1;
    QTest::newRow("word prefixes") << "chick nugg"
                                   << "Chicken nuggets, frozen, cooked" << 4;
    QTest::newRow("words in any order") << "nuggets chicken"
                                        << "Chicken nuggets, frozen, cooked" << 4;
    QTest::newRow("grapes") << "grapes"
                            << "Grapes, red or green (European type, such as Thompson seedless), raw" << 3;
}

void RelevanceTest::expectedFoodRanksHigh()
{
    QFETCH(QString, search);
    QFETCH(QString, expected);
    QFETCH(int, worstRank);

    const QStringList found = topDescriptions(search, worstRank);
    QVERIFY2(found.contains(expected), qPrintable(found.join(QStringLiteral(" | "))));
}

void RelevanceTest::topResultsAllMatch_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("start");

    QTest::newRow("milk is milk") << "milk"
                                  << "Milk";
    QTest::newRow("peanut butter") << "peanut butter"
                                   << "Peanut butter";
    QTest::newRow("pizza") << "pizza"
                           << "Pizza";
    QTest::newRow("tofu") << "tofu"
                          << "Tofu";
    QTest::newRow("brand") << "wendys"
                           << "WENDY'S";
    QTest::newRow("corrected spelling") << "yoghurt"
                                        << "Yogurt";
    QTest::newRow("two corrected words") << "peenut buter"
                                         << "Peanut butter";
}

void RelevanceTest::topResultsAllMatch()
{
    QFETCH(QString, search);
    QFETCH(QString, start);

    const QStringList found = topDescriptions(search, 5);
    QCOMPARE(found.size(), 5);
    for (const auto &description : found)
        QVERIFY2(description.startsWith(start), qPrintable(description));
}

void RelevanceTest::plainFoodBeforeFoodsContainingIt_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("containing");

    QTest::newRow("banana before banana bread") << "banana"
                                                << "Bananas, raw"
                                                << "Bread, banana";
    QTest::newRow("fluid milk before biscuits")
        << "milk"
        << "Milk, reduced fat, fluid, 2% milkfat, with added vitamin A and vitamin D"
        << "Biscuits, plain or buttermilk, prepared from recipe";
    QTest::newRow("egg before egg noodles") << "egg"
                                            << "Egg, whole, cooked, scrambled"
                                            << "Noodles, egg, cooked, enriched";
    QTest::newRow("generic before branded") << "chicken nuggets"
                                            << "Chicken nuggets, frozen, cooked"
                                            << "WENDY'S, Chicken Nuggets";
}

void RelevanceTest::plainFoodBeforeFoodsContainingIt()
{
    QFETCH(QString, search);
    QFETCH(QString, plain);
    QFETCH(QString, containing);

    const QStringList found = topDescriptions(search);
    const auto plainRank = found.indexOf(plain);
    QVERIFY2(plainRank >= 0, qPrintable(plain));
    const auto containingRank = found.indexOf(containing);
    QVERIFY2(containingRank < 0 || plainRank < containingRank,
             qPrintable(found.mid(0, 10).join(QStringLiteral(" | "))));
}

// Everyday searches: the food as it is eaten and weighed must be among the first three
// plain foods, since a person picks from the top and doses from its carbohydrate.
void RelevanceTest::eatenFormAmongFirstPlainFoods_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("eaten");

    const QList<std::pair<const char *, const char *>> rows = {
        {"rice", "Rice, brown, long-grain, cooked"},
        {"brown rice", "Rice, brown, long-grain, cooked"},
        {"chicken", "Chicken, roasting, meat only, cooked, roasted"},
        {"turkey", "Turkey, all classes, meat and skin, cooked, roasted"},
        {"beef", "Beef, ground, unspecified fat content, cooked"},
        {"pork", "Pork, fresh, ground, cooked"},
        {"bacon", "Pork, cured, bacon, cooked, baked"},
        {"tuna", "Fish, tuna, light, canned in water, drained solids"},
        {"shrimp", "Crustaceans, shrimp, mixed species, cooked, moist heat"},
        {"egg", "Egg, whole, cooked, scrambled"},
        {"milk", "Milk, whole, 3.25% milkfat, with added vitamin D"},
        {"skim milk", "Milk, nonfat, fluid, with added vitamin A and vitamin D (fat free or skim)"},
        {"bread", "Bread, white, commercially prepared (includes soft bread crumbs)"},
        {"pasta", "Pasta, homemade, made without egg, cooked"},
        {"spaghetti", "Spaghetti, cooked, enriched, without added salt"},
        {"macaroni", "Macaroni, cooked, enriched"},
        {"noodles", "Noodles, egg, cooked, enriched"},
        {"lentils", "Lentils, mature seeds, cooked, boiled, without salt"},
        {"chickpeas", "Chickpeas (garbanzo beans, bengal gram), mature seeds, canned, drained solids"},
        {"kidney beans", "Beans, kidney, red, mature seeds, cooked, boiled, without salt"},
        {"black beans", "Beans, black, mature seeds, cooked, boiled, with salt"},
        {"oatmeal", "Cereals, oats, instant, fortified, plain, prepared with water (boiling water added or "
                    "microwaved)"},
        {"porridge", "Cereals, oats, instant, fortified, plain, prepared with water (boiling water added or "
                     "microwaved)"},
        {"quinoa", "Quinoa, cooked"},
        {"couscous", "Couscous, cooked"},
        {"potato", "Potato, baked, flesh and skin, without salt"},
        {"mashed potatoes", "Potatoes, mashed, home-prepared, whole milk added"},
        {"tomato soup", "Soup, tomato, canned, prepared with equal volume water, commercial"},
        {"sweet potato", "Sweet potato, cooked, baked in skin, without salt"},
        {"french fries",
         "Potatoes, french fried, all types, salt added in processing, frozen, home-prepared, "
         "oven heated"},
        {"carrot", "Carrots, raw"},
        {"broccoli", "Broccoli, raw"},
        {"corn", "Corn, sweet, yellow, raw"},
        {"tomato", "Tomatoes, red, ripe, raw, year round average"},
        {"green beans", "Beans, snap, green, raw"},
        {"apple", "Apples, raw, with skin"},
        {"banana", "Bananas, raw"},
        {"grapes", "Grapes, red or green (European type, such as Thompson seedless), raw"},
        {"strawberry", "Strawberries, raw"},
        {"cherry", "Cherries, sweet, raw"},
        {"peach", "Peaches, raw"},
        {"avocado", "Avocados, raw, all commercial varieties"},
        {"candy", "Candies, hard"},
        {"chips", "Snacks, potato chips, plain, salted"},
        {"soda", "Carbonated beverage, cola, contains caffeine"},
        {"ketchup", "Catsup"},
        {"donut", "Doughnuts, cake-type, plain (includes unsugared, old-fashioned)"},
        {"coffee", "Coffee, instant, regular, prepared with water"},
        {"tea", "Tea, black, brewed, prepared with tap water"},
        {"butter", "Butter, salted"},
        {"peanut butter", "Peanut butter, smooth, vitamin and mineral fortified"},
        {"babyfood banana", "Babyfood, banana no tapioca, strained"},
    };
    for (const auto &[search, eaten] : rows)
        QTest::newRow(search) << QString::fromUtf8(search) << QString::fromUtf8(eaten);
}

void RelevanceTest::eatenFormAmongFirstPlainFoods()
{
    QFETCH(QString, search);
    QFETCH(QString, eaten);

    const QStringList found = topPlainDescriptions(search, 3);
    QVERIFY2(found.contains(eaten), qPrintable(found.join(QStringLiteral(" | "))));
}

void RelevanceTest::babyFoodOnlyWhenAsked_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<bool>("asked");

    QTest::newRow("applesauce") << "applesauce" << false;
    QTest::newRow("carrots") << "carrots" << false;
    QTest::newRow("oatmeal") << "oatmeal" << false;
    QTest::newRow("baby carrots") << "baby carrots" << true;
    QTest::newRow("babyfood applesauce") << "babyfood applesauce" << true;
}

void RelevanceTest::babyFoodOnlyWhenAsked()
{
    QFETCH(QString, search);
    QFETCH(bool, asked);

    const QStringList found = topDescriptions(search, 3);
    QVERIFY(!found.isEmpty());
    const auto isBabyFood = [](const QString &description) { return description.startsWith("Babyfood"); };
    if (asked)
        QVERIFY2(isBabyFood(found.first()), qPrintable(found.first()));
    else
        QVERIFY2(std::none_of(found.begin(), found.end(), isBabyFood), qPrintable(found.join(" | ")));
}

QTEST_GUILESS_MAIN(RelevanceTest)
#include "tst_relevance.moc"
