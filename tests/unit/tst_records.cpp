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

        RecipeItem outer{u"Menu"_s, 4, {}, 2}; // a meal inside a meal
        outer.items.append(DiaryEntryPtr::create(123, example::exampleRecipe(), 3));
        const RecipeItem menu = RecipeItem::fromJson(outer.toJson());
        QCOMPARE(menu.items.at(0)->quantity(), 3);
        QCOMPARE(menu.items.at(0)->recipeItem()->items.at(1)->foodItem()->description,
                 example::exampleSelectedFood2().description);
        QCOMPARE(menu.toJson(), outer.toJson());
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

    void entryDecoding_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("error"); // empty: decodes; "any": some error
        const QJsonValue missing(QJsonValue::Undefined), null(QJsonValue::Null);
        const QString invalid = u"Invalid number of keys found, expected one."_s, any = u"any"_s;
        const auto type = [](const char *json) { return QJsonValue(parse(json)); };
        QTest::newRow("type food") << "type" << type(R"({"food":{}})") << QString();
        QTest::newRow("type food and unknown key") << "type" << type(R"({"food":{},"x":1})") << QString();
        QTest::newRow("type recipe with content") << "type" << type(R"({"recipe":{"a":1}})") << QString();
        QTest::newRow("type both") << "type" << type(R"({"food":{},"recipe":{}})") << invalid;
        QTest::newRow("type none") << "type" << type("{}") << invalid;
        QTest::newRow("type only unknown") << "type" << type(R"({"drink":{}})") << invalid;
        QTest::newRow("type case not an object")
            << "type" << type(R"({"food":[]})") << u"Expected an object for key \"food\"."_s;
        QTest::newRow("id missing") << "id" << missing << any;
        QTest::newRow("id as text") << "id" << QJsonValue(u"1"_s) << any;
        QTest::newRow("id fractional") << "id" << QJsonValue(1.5) << any;
        QTest::newRow("id out of range") << "id" << QJsonValue(1e30) << any;
        QTest::newRow("id as whole double") << "id" << QJsonValue(7.0) << QString();
        QTest::newRow("quantity missing") << "quantity" << missing << any;
        QTest::newRow("quantity as bool") << "quantity" << QJsonValue(true) << any;
        QTest::newRow("nutrients missing") << "nutrients" << missing << any;
        QTest::newRow("nutrients null") << "nutrients" << null << QString();
        QTest::newRow("nutrients not array") << "nutrients" << QJsonValue(QJsonObject()) << any;
        QTest::newRow("tracked missing") << "trackedNutrient" << missing << any;
        QTest::newRow("tracked null") << "trackedNutrient" << null << QString();
        QTest::newRow("tracked incomplete")
            << "trackedNutrient" << QJsonValue(QJsonObject{{u"name"_s, u"x"_s}}) << any;
        QTest::newRow("portion missing") << "portion" << missing << QString();
        QTest::newRow("portion broken") << "portion" << QJsonValue(QJsonObject()) << any;
        QTest::newRow("food missing") << "foodItem" << missing << QString();
        QTest::newRow("food branded as text") << "foodItem"
                                              << QJsonValue(QJsonObject{{u"description"_s, u"a"_s},
                                                                        {u"id"_s, 1},
                                                                        {u"_id"_s, 1},
                                                                        {u"brand"_s, u""_s},
                                                                        {u"isBranded"_s, u"true"_s}})
                                              << any;
    }

    void entryDecoding()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QFETCH(QString, error);
        QJsonObject json = foodLineJson();
        if (value.isUndefined())
            json.remove(key);
        else
            json.insert(key, value);
        const QString got = decodeError(json);
        QCOMPARE(got.isEmpty() ? QString() : (error == u"any"_s ? error : got), error);
        if (error.isEmpty() && key == u"type"_s)
            QCOMPARE(DiaryEntry::fromJson(json)->type(),
                     value.toObject().contains(u"recipe") ? EntryType::Recipe : EntryType::Food);
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
};

QTEST_GUILESS_MAIN(RecordsTest)
#include "tst_records.moc"
