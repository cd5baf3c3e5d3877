#include "DiaryEntry.h"
#include "ExampleData.h"
#include "JsonFields.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {
QJsonObject parse(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
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
    // The fields are compared one by one too: a field dropped both ways would still round-trip. Meals
    // inside meals are the store test's.
    void linesRoundTripEveryField()
    {
        const DiaryEntryPtr original = example::exampleTrackedNutrient1();
        const DiaryEntryPtr copy = DiaryEntry::fromJson(original->toJson());
        QCOMPARE(copy->type(), EntryType::Food);
        QCOMPARE(copy->quantity(), 2);
        QCOMPARE(copy->nutrients(), original->nutrients());
        QCOMPARE(copy->trackedNutrient(), original->trackedNutrient());
        QCOMPARE(copy->foodItem()->brand, original->foodItem()->brand);
        QCOMPARE(copy->foodItem()->isBranded, true);
        QCOMPARE(copy->portion()->description, u"tablespoon, dry"_s);
        QCOMPARE(copy->portion()->convertible_unit.to_base_conversion_rate, 342);
        QCOMPARE(copy->toJson(), original->toJson());

        // A meal line has no food keys and null nutrients.
        const QJsonObject json = example::exampleDiaryRecipeItem2()->toJson();
        QVERIFY(!json.contains(u"portion") && !json.contains(u"foodItem"));
        QVERIFY(json.value(u"nutrients").isNull() && json.value(u"trackedNutrient").isNull());
        QCOMPARE(json.value(u"type").toObject(), QJsonObject({{u"recipe"_s, QJsonObject()}}));
        const DiaryEntryPtr meal = DiaryEntry::fromJson(json);
        QVERIFY(!meal->portion() && !meal->foodItem() && !meal->nutrients() && !meal->trackedNutrient());
        QCOMPARE(meal->recipeItem()->servings, 2);
        QCOMPARE(meal->recipeItem()->items.size(), 2);
    }

    void largeIntegersStayExact()
    {
        const qint64 big = 9007199254740993LL;
        const FoodItem food{u"x"_s, big, big, QString(), false};
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
        QCOMPARE(PortionItem::fromJson(json).toJson().value(u"is_default"), QJsonValue(false));
    }

    void entryDecoding_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("error"); // empty: decodes; "any": some error
        const QJsonValue missing(QJsonValue::Undefined), null(QJsonValue::Null);
        const QString invalid = u"Invalid number of keys found, expected one."_s, any = u"any"_s;
        const auto object = [](const char *json) { return QJsonValue(parse(json)); };
        QTest::newRow("type food and unknown key") << "type" << object(R"({"food":{},"x":1})") << QString();
        QTest::newRow("type recipe with content") << "type" << object(R"({"recipe":{"a":1}})") << QString();
        QTest::newRow("type both") << "type" << object(R"({"food":{},"recipe":{}})") << invalid;
        QTest::newRow("type none") << "type" << object("{}") << invalid;
        QTest::newRow("type only unknown") << "type" << object(R"({"drink":{}})") << invalid;
        QTest::newRow("type case not an object")
            << "type" << object(R"({"food":[]})") << u"Expected an object for key \"food\"."_s;
        QTest::newRow("id missing") << "id" << missing << any;
        QTest::newRow("id as text") << "id" << QJsonValue(u"1"_s) << any;
        QTest::newRow("id fractional") << "id" << QJsonValue(1.5) << any;
        QTest::newRow("id out of range") << "id" << QJsonValue(1e30) << any;
        QTest::newRow("id as whole double") << "id" << QJsonValue(7.0) << QString();
        QTest::newRow("quantity missing") << "quantity" << missing << any;
        QTest::newRow("nutrients missing") << "nutrients" << missing << any;
        QTest::newRow("nutrients null") << "nutrients" << null << QString();
        QTest::newRow("nutrients not array") << "nutrients" << QJsonValue(QJsonObject()) << any;
        QTest::newRow("tracked missing") << "trackedNutrient" << missing << any;
        QTest::newRow("tracked null") << "trackedNutrient" << null << QString();
        QTest::newRow("tracked incomplete") << "trackedNutrient" << object(R"({"name":"x"})") << any;
        QTest::newRow("portion missing") << "portion" << missing << QString();
        QTest::newRow("portion broken") << "portion" << QJsonValue(QJsonObject()) << any;
        QTest::newRow("food missing") << "foodItem" << missing << QString();
        QTest::newRow("food branded as text")
            << "foodItem" << object(R"({"description":"a","id":1,"_id":1,"brand":"","isBranded":"true"})")
            << any;
    }

    void entryDecoding()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QFETCH(QString, error);
        QJsonObject json = example::exampleTrackedNutrient1()->toJson();
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

    // Foods and portions are the same when their ids are.
    void equalityFollowsIdentity()
    {
        FoodItem a{u"Apple"_s, 5, 5, QString(), false}, b{u"Pear"_s, 5, 6, u"x"_s, true};
        QCOMPARE(a, b);
        b.id = 6;
        QVERIFY(a != b);
        PortionItem cup = basePortionItem();
        cup.size = 999;
        QCOMPARE(cup, basePortionItem());
    }
};

QTEST_GUILESS_MAIN(RecordsTest)
#include "tst_records.moc"
