#include "DiaryEntry.h"
#include "ExampleData.h"
#include "JsonFields.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {
QJsonObject parse(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

QJsonObject foodLineJson()
{
    return example::exampleTrackedNutrient1()->toJson();
}

QString decodeError(const QJsonObject &entry)
{
    try {
        (void)DiaryEntry::fromJson(entry);
    } catch (const JsonDecodeError &error) {
        return QString::fromStdString(error.what());
    }
    return {};
}
} // namespace

class RecordsTest : public QObject
{
    Q_OBJECT

private slots:
    void foodLineRoundTripsEveryField()
    {
        const DiaryEntryPtr original = example::exampleTrackedNutrient1();
        const DiaryEntryPtr copy = DiaryEntry::fromJson(original->toJson());
        QCOMPARE(copy->type(), EntryType::Food);
        QCOMPARE(copy->id(), 0);
        QCOMPARE(copy->quantity(), 2);
        QCOMPARE(copy->nutrients(), original->nutrients());
        QCOMPARE(copy->trackedNutrient(), original->trackedNutrient());
        QCOMPARE(copy->foodItem()->description, original->foodItem()->description);
        QCOMPARE(copy->foodItem()->brand, original->foodItem()->brand);
        QCOMPARE(copy->foodItem()->isBranded, true);
        QCOMPARE(copy->portion()->description, QStringLiteral("tablespoon, dry"));
        QCOMPARE(copy->portion()->convertible_unit.to_base_conversion_rate, 342);
        QCOMPARE(copy->toJson(), original->toJson());
    }

    void mealLineHasNoFoodKeysAndNullNutrients()
    {
        const QJsonObject json = example::exampleDiaryRecipeItem2()->toJson();
        QVERIFY(!json.contains(u"portion"));
        QVERIFY(!json.contains(u"foodItem"));
        QVERIFY(json.value(u"nutrients").isNull());
        QVERIFY(json.value(u"trackedNutrient").isNull());
        QCOMPARE(json.value(u"type").toObject(), QJsonObject({{u"recipe"_s, QJsonObject()}}));

        const DiaryEntryPtr copy = DiaryEntry::fromJson(json);
        QCOMPARE(copy->type(), EntryType::Recipe);
        QVERIFY(!copy->portion() && !copy->foodItem() && !copy->nutrients() && !copy->trackedNutrient());
        QCOMPARE(copy->recipeItem()->name, QStringLiteral("Half A Burger"));
        QCOMPARE(copy->recipeItem()->servings, 2);
        QCOMPARE(copy->recipeItem()->items.size(), 2);
    }

    void mealInsideMealRoundTrips()
    {
        RecipeItem outer{QStringLiteral("Menu"), 4, {}, 2};
        outer.items.append(DiaryEntryPtr::create(123, example::exampleRecipe(), 3));
        const RecipeItem copy = RecipeItem::fromJson(outer.toJson());
        const DiaryEntryPtr line = copy.items.at(0);
        QCOMPARE(line->quantity(), 3);
        QCOMPARE(line->recipeItem()->items.at(1)->foodItem()->description,
                 example::exampleSelectedFood2().description);
        QCOMPARE(copy.toJson(), outer.toJson());
    }

    void largeIntegersStayExact()
    {
        const qint64 big = 9007199254740993LL;
        const FoodItem food{QStringLiteral("x"), big, big, QString(), false};
        const QByteArray text = QJsonDocument(food.toJson()).toJson(QJsonDocument::Compact);
        QVERIFY(text.contains("9007199254740993"));
        const FoodItem back = FoodItem::fromJson(QJsonDocument::fromJson(text).object());
        QCOMPARE(back.id, big);
        QCOMPARE(back._id, big);
    }

    void portionWithoutDefaultFlag()
    {
        QJsonObject json = basePortionItem().toJson();
        QVERIFY(!json.contains(u"is_default"));
        QVERIFY(!PortionItem::fromJson(json).is_default);
        json.insert(u"is_default", false);
        QCOMPARE(PortionItem::fromJson(json).is_default, std::optional<bool>(false));
        QCOMPARE(PortionItem::fromJson(json).toJson().value(u"is_default"), QJsonValue(false));
    }

    void entryTypeDecoding_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QString>("error");
        QTest::addColumn<int>("decoded");
        const QString invalid = QStringLiteral("Invalid number of keys found, expected one.");
        QTest::newRow("food") << QByteArray(R"({"food":{}})") << QString() << int(EntryType::Food);
        QTest::newRow("food and unknown key")
            << QByteArray(R"({"food":{},"x":1})") << QString() << int(EntryType::Food);
        QTest::newRow("recipe with content")
            << QByteArray(R"({"recipe":{"a":1}})") << QString() << int(EntryType::Recipe);
        QTest::newRow("both") << QByteArray(R"({"food":{},"recipe":{}})") << invalid << -1;
        QTest::newRow("none") << QByteArray(R"({})") << invalid << -1;
        QTest::newRow("only unknown") << QByteArray(R"({"drink":{}})") << invalid << -1;
        QTest::newRow("case value not an object")
            << QByteArray(R"({"food":[]})") << QStringLiteral("Expected an object for key \"food\".") << -1;
    }

    void entryTypeDecoding()
    {
        QFETCH(QByteArray, type);
        QFETCH(QString, error);
        QFETCH(int, decoded);
        QJsonObject json = foodLineJson();
        json.insert(u"type", parse(type));
        QCOMPARE(decodeError(json), error);
        if (decoded >= 0)
            QCOMPARE(int(DiaryEntry::fromJson(json)->type()), decoded);
    }

    void entryDecodingFailures_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<bool>("fails");
        const QJsonValue missing(QJsonValue::Undefined);
        QTest::newRow("id missing") << "id" << missing << true;
        QTest::newRow("id as text") << "id" << QJsonValue(u"1"_s) << true;
        QTest::newRow("id fractional") << "id" << QJsonValue(1.5) << true;
        QTest::newRow("id out of range") << "id" << QJsonValue(1e30) << true;
        QTest::newRow("id as whole double") << "id" << QJsonValue(7.0) << false;
        QTest::newRow("quantity missing") << "quantity" << missing << true;
        QTest::newRow("quantity as bool") << "quantity" << QJsonValue(true) << true;
        QTest::newRow("nutrients missing") << "nutrients" << missing << true;
        QTest::newRow("nutrients null") << "nutrients" << QJsonValue(QJsonValue::Null) << false;
        QTest::newRow("nutrients not array") << "nutrients" << QJsonValue(QJsonObject()) << true;
        QTest::newRow("tracked missing") << "trackedNutrient" << missing << true;
        QTest::newRow("tracked null") << "trackedNutrient" << QJsonValue(QJsonValue::Null) << false;
        QTest::newRow("tracked incomplete")
            << "trackedNutrient" << QJsonValue(QJsonObject{{u"name"_s, u"x"_s}}) << true;
        QTest::newRow("portion missing") << "portion" << missing << false;
        QTest::newRow("portion broken") << "portion" << QJsonValue(QJsonObject()) << true;
        QTest::newRow("food missing") << "foodItem" << missing << false;
        QTest::newRow("food branded as text") << "foodItem"
                                              << QJsonValue(QJsonObject{{u"description"_s, u"a"_s},
                                                                        {u"id"_s, 1},
                                                                        {u"_id"_s, 1},
                                                                        {u"brand"_s, u""_s},
                                                                        {u"isBranded"_s, u"true"_s}})
                                              << true;
    }

    void entryDecodingFailures()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QFETCH(bool, fails);
        QJsonObject json = foodLineJson();
        if (value.isUndefined())
            json.remove(key);
        else
            json.insert(key, value);
        QCOMPARE(!decodeError(json).isEmpty(), fails);
    }

    void equalityFollowsIdentity()
    {
        FoodItem a{QStringLiteral("Apple"), 5, 5, QString(), false};
        FoodItem b{QStringLiteral("Pear"), 5, 6, QStringLiteral("x"), true};
        QCOMPARE(a, b);
        b.id = 6;
        QVERIFY(a != b);

        PortionItem p = basePortionItem();
        PortionItem q = basePortionItem();
        q.size = 999;
        q.description = QStringLiteral("cup");
        QCOMPARE(p, q);

        NutrientValue n = example::exampleNutrientCarb();
        QCOMPARE(n, example::exampleNutrientCarb());
        n.dp = 0;
        QVERIFY(n != example::exampleNutrientCarb());
    }

    void sharedLineAnnouncesChangesToEveryHolder()
    {
        const DiaryEntryPtr line =
            DiaryEntryPtr::create(123, basePortionItem(), example::exampleSelectedFood());
        const QList<DiaryEntryPtr> calculator{line};
        const QList<DiaryEntryPtr> meal{line};
        QSignalSpy quantity(calculator.at(0).get(), &DiaryEntry::quantityChanged);
        QSignalSpy nutrients(meal.at(0).get(), &DiaryEntry::nutrientsChanged);
        QSignalSpy tracked(line.get(), &DiaryEntry::trackedNutrientChanged);
        QSignalSpy total(line.get(), &DiaryEntry::totalChanged);

        meal.at(0)->setQuantity(4);
        calculator.at(0)->setNutrients(QList<NutrientValue>{example::exampleNutrientFat()});
        meal.at(0)->setTrackedNutrient(example::exampleNutrientCarb());

        QCOMPARE(quantity.size(), 1);
        QCOMPARE(nutrients.size(), 1);
        QCOMPARE(tracked.size(), 1);
        QCOMPARE(total.size(), 2);
        QCOMPARE(calculator.at(0)->totalTrackedNutrient(), 51.6);
    }

    void sampleMealsShareIdAndLines()
    {
        QCOMPARE(example::exampleRecipe().id, example::exampleRecipe2().id);
        QCOMPARE(example::exampleRecipe().items, example::exampleRecipe2().items);
        QCOMPARE(example::exampleNutrientsWithoutCarb().size(), 7);
        QCOMPARE(example::exampleNutrientsWithoutCarb().first().name, QStringLiteral("Calories"));
    }
};

QTEST_GUILESS_MAIN(RecordsTest)
#include "tst_records.moc"
