// What the host gets back and the figures its options add: carbohydrate units from the rounded grams,
// fibre, fat and protein through meals, fat-protein units and their hours, and when the host hears.
#include "EnvironmentVariables.h"
#include "HostSettings.h"
#include "MealNutrients.h"
#include "nutrika/Nutrika.h"
#include "Totals.h"

#include <QSignalSpy>
#include <QtTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

NutrientValue grams(const QString &name, double value)
{
    return {name, u"grams"_s, value, 1};
}

// A food line of `quantity` portions with the given carbohydrates and, where given, fibre, fat and protein.
DiaryEntryPtr food(const QString &name, qint64 quantity, double carbs, std::optional<double> fibre,
                   double fat = 0, double protein = 0)
{
    FoodItem item{name, 1, 1, {}, false};
    PortionItem portion;
    portion.id = 7;
    portion.size = 100;
    portion.unit = u"grams"_s;
    portion.description = u"1 cup"_s;
    QList<NutrientValue> nutrients{grams(u"Carbohydrates"_s, carbs), grams(FAT_NUTRIENT, fat),
                                   grams(PROTEIN_NUTRIENT, protein)};
    if (fibre)
        nutrients.append(grams(FIBRE_NUTRIENT, *fibre));
    return DiaryEntryPtr::create(123, portion, item, quantity, nutrients, grams(u"Carbohydrates"_s, carbs));
}

DiaryEntryPtr meal(const QString &name, QList<DiaryEntryPtr> items, qint64 servings, qint64 quantity)
{
    return DiaryEntryPtr::create(123, RecipeItem{name, 0, std::move(items), servings}, quantity);
}

} // namespace

class MealResultTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        EnvironmentVariables::shared()->setTrackedNutrientListItems({});
        setHostOptions({});
    }

    void unitsComeFromTheRoundedGrams_data()
    {
        QTest::addColumn<double>("grams");
        QTest::addColumn<int>("unit");
        QTest::addColumn<QString>("text");

        QTest::newRow("grams alone") << 27.0 << int(CarbUnit::Grams) << "27 g";
        QTest::newRow("KE") << 27.0 << int(CarbUnit::KE) << "27 g · 2.7 KE";
        QTest::newRow("a half tenth goes up") << 14.5 << int(CarbUnit::KE) << "14.5 g · 1.5 KE";
        QTest::newRow("BE, a whole unit keeps its decimal") << 24.0 << int(CarbUnit::BE) << "24 g · 2.0 BE";
        QTest::newRow("BE below a half tenth") << 14.5 << int(CarbUnit::BE) << "14.5 g · 1.2 BE";
        QTest::newRow("exchanges") << 22.5 << int(CarbUnit::Exchanges) << "22.5 g · 1.5 exch.";
        QTest::newRow("nothing counted") << 0.0 << int(CarbUnit::KE) << "0 g · 0.0 KE";
    }

    void unitsComeFromTheRoundedGrams()
    {
        QFETCH(double, grams);
        QFETCH(int, unit);
        QFETCH(QString, text);
        QCOMPARE(carbohydrateText(grams, CarbUnit(unit)), text);
    }

    void absorptionFollowsTheUnits_data()
    {
        QTest::addColumn<double>("fat");
        QTest::addColumn<double>("protein");
        QTest::addColumn<int>("hours");

        QTest::newRow("below one unit: nothing to spread") << 2.0 << 5.0 << 0;
        QTest::newRow("1 unit: 3 h") << 10.0 << 2.5 << 3;
        QTest::newRow("1.5 units round to 2: 4 h") << 10.0 << 15.0 << 4;
        QTest::newRow("3 units: 5 h") << 20.0 << 30.0 << 5;
        QTest::newRow("4 units: 8 h") << 40.0 << 10.0 << 8;
        QTest::newRow("many units: still 8 h") << 90.0 << 60.0 << 8;
    }

    void absorptionFollowsTheUnits()
    {
        QFETCH(double, fat);
        QFETCH(double, protein);
        QFETCH(int, hours);
        QCOMPARE(absorptionHours(fatProteinUnits(fat, protein)), hours);
    }

    void mealsTakeTheirIngredientsNutrients()
    {
        const DiaryEntryPtr oats = food(u"Oats"_s, 2, 20, 3);
        const DiaryEntryPtr milk = food(u"Milk"_s, 1, 12, 0);
        // Four servings, three eaten: three quarters of each ingredient.
        const DiaryEntryPtr porridge = meal(u"Porridge"_s, {oats, milk}, 4, 3);
        QCOMPARE(*lineNutrient(*porridge, FIBRE_NUTRIENT), 3 * (2 * 3.0 / 4 + 0.0 / 4));
        // A meal inside a meal counts through to its foods.
        QCOMPARE(*lineNutrient(*meal(u"Breakfast"_s, {porridge}, 1, 2), FIBRE_NUTRIENT), 2 * 3 * 1.5);
        // One food without fibre leaves the whole meal's fibre unknown, never counted as 0.
        const DiaryEntryPtr juice = food(u"Juice"_s, 1, 25, std::nullopt);
        QVERIFY(!lineNutrient(*meal(u"Brunch"_s, {oats, juice}, 1, 1), FIBRE_NUTRIENT));
        QVERIFY(!lineNutrient(*juice, FIBRE_NUTRIENT));
        QCOMPARE(netText(19.0, 3.04), u"net 16 g"_s);
        QCOMPARE(netText(1.0, 3.0), u"net 0 g"_s);
    }

    void theResultIsWhatTheCalculatorShows()
    {
        const QList<DiaryEntryPtr> lines{food(u"Rice"_s, 3, 13.35, 0.4, 0.3, 2.7),
                                         meal(u"Soup"_s, {food(u"Beans"_s, 1, 20.05, std::nullopt)}, 2, 1)};
        EnvironmentVariables::shared()->setTrackedNutrientListItems(lines);
        const MealResult result = mealResult();
        QCOMPARE(result.lines.size(), 2);
        QCOMPARE(result.lines[0].name, u"Rice"_s);
        QCOMPARE(result.lines[0].portion, u"1 cup · 100 g × 3"_s);
        QCOMPARE(result.lines[0].quantity, 3);
        QCOMPARE(result.lines[0].carbohydrates, lines[0]->totalTrackedNutrient());
        QCOMPARE(result.lines[0].fibre, std::optional(1.2));
        QCOMPARE(result.lines[0].protein, std::optional(8.1));
        QCOMPARE(result.lines[1].portion, u"1 serving of 2"_s);
        QCOMPARE(result.lines[1].fibre, std::nullopt);
        QCOMPARE(result.totalCarbohydrates, calculateTotal(lines));
    }

    // The host hears each change once, and nothing when nothing changed.
    void theHostHearsEveryChange()
    {
        QSignalSpy changed(mealResults(), &MealResults::changed);
        const DiaryEntryPtr rice = food(u"Rice"_s, 1, 13.4, 0.4);
        EnvironmentVariables::shared()->setTrackedNutrientListItems({rice});
        QCOMPARE(changed.size(), 1);
        rice->setQuantity(2);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.last().first().value<MealResult>().totalCarbohydrates, 26.8);
        EnvironmentVariables::shared()->setTrackedNutrientListItems({rice});
        QCOMPARE(changed.size(), 2);
        clearCalculator();
        QCOMPARE(changed.size(), 3);
        QVERIFY(mealResults()->result().lines.isEmpty());
    }

    void unitNamesFromQml()
    {
        HostSettings *settings = HostSettings::shared();
        settings->setCarbUnitName(u"BE"_s);
        QCOMPARE(hostOptions().carbUnit, CarbUnit::BE);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"not a carbohydrate unit"_s));
        settings->setCarbUnitName(u"ounces"_s);
        QCOMPARE(settings->carbUnitName(), u"BE"_s);
    }
};

QTEST_GUILESS_MAIN(MealResultTest)
#include "tst_mealresult.moc"
