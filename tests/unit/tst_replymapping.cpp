#include "AccompanyingFoodsRequest.h"
#include "FilterOptionsRequest.h"
#include "FoodSearchRequest.h"
#include "NutrientsRequest.h"
#include "PortionImageRequest.h"
#include "PortionsRequest.h"

#include <QBuffer>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(nutrika::ServiceReply)
Q_DECLARE_METATYPE(nutrika::ServiceFailure)

namespace {

ServiceReply ok(const char *body)
{
    return ServiceReply::classify(200, body);
}

QStringList describe(const QList<FoodItem> &foods)
{
    QStringList out;
    for (const FoodItem &food : foods)
        out << u"%1 #%2/%3 %4 %5"_s.arg(food.description)
                   .arg(food.id)
                   .arg(food._id)
                   .arg(food.brand, food.isBranded ? u"branded"_s : u"generic"_s);
    return out;
}

QStringList describe(const QList<PortionItem> &portions)
{
    QStringList out;
    for (const PortionItem &p : portions) {
        const QString flag = p.is_default ? (*p.is_default ? u"default"_s : u"not default"_s) : u"unknown"_s;
        out << u"%1 #%2/%3 %4 %5 %6 %7 %8 %9"_s.arg(p.order_num)
                   .arg(p.id)
                   .arg(p._id)
                   .arg(p.size)
                   .arg(p.unit, p.description, p.image_name, flag)
                   .arg(p.convertible_unit.to_base_conversion_rate);
    }
    return out;
}

QString describe(const NutrientValue &n)
{
    return u"%1 %2 %3 dp%4"_s.arg(n.name).arg(n.value).arg(n.unit).arg(n.dp);
}

QByteArray portionJson(const QByteArray &members)
{
    return R"({"order_num":1,"id":11,"unit":"g","database_import":3,"size":118,"image_name":"banana.png",
               "description":"medium","convertible_unit":{"type":"mass","is_base":1,"id":5,
               "to_base_conversion_rate":1,"name":"gram","unit":"g"})" +
           members + "}";
}

QByteArray nutrient(const char *name, const QByteArray &value, const char *units = "\"g\"")
{
    return R"({"nutrient":{"name":")" + QByteArray(name) + R"("},"amount":{"units":)" + units +
           (value.isNull() ? QByteArray() : ",\"value\":" + value) + "}}";
}

} // namespace

class ReplyMappingTest : public QObject
{
    Q_OBJECT

private slots:
    void mapsFoodSearchPages()
    {
        const auto result = mapFoodSearchReply(ok(R"({"count":1203,"next":null,"results":[
            {"id":9040,"description":"Bananas, raw","food_brand":"","is_generic_item":1,"extra":[1]},
            {"id":7,"description":"Banana Chips","food_brand":"Acme","is_generic_item":0},
            {"id":8,"description":"Banana Bread","food_brand":"Bakery","is_generic_item":false},
            {"id":9,"description":"Plantain","food_brand":"","is_generic_item":true},
            {"id":10.9,"description":"Banana Split","food_brand":"Diner","is_generic_item":2}]})"));
        const auto *page = std::get_if<FoodSearchPage>(&result);
        QVERIFY(page);
        QCOMPARE(page->count, 1203);
        QCOMPARE(describe(page->generic),
                 QStringList({u"Bananas, raw #9040/9040  generic"_s, u"Plantain #9/9  generic"_s}));
        QCOMPARE(describe(page->branded),
                 QStringList({u"Banana Chips #7/7 Acme branded"_s, u"Banana Bread #8/8 Bakery branded"_s,
                              u"Banana Split #10/10 Diner branded"_s}));
        const auto empty = mapFoodSearchReply(ok(R"({"count":0,"results":[]})"));
        QCOMPARE(std::get<FoodSearchPage>(empty).count, 0);
    }

    void mapsFilterOptions_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QStringList>("brands");
        QTest::addColumn<QStringList>("categories");
        QTest::newRow("text and label")
            << QByteArray(R"({"brands":["Acme",{"label":"Acme","id":3}],
                                                         "categories":[{"label":"Fruits"},"Fruits"," Nuts "]})")
            << QStringList{u"Acme"_s, u"Acme"_s} << QStringList{u"Fruits"_s, u"Fruits"_s, u" Nuts "_s};
        QTest::newRow("no brands") << QByteArray(R"({"categories":["Fruits"]})") << QStringList()
                                   << QStringList{u"Fruits"_s};
        QTest::newRow("null and not arrays")
            << QByteArray(R"({"brands":null,"categories":"Fruits"})") << QStringList() << QStringList();
    }

    void mapsFilterOptions()
    {
        QFETCH(QByteArray, body);
        QFETCH(QStringList, brands);
        QFETCH(QStringList, categories);
        const auto result = mapFilterOptionsReply(ServiceReply::classify(200, body));
        const auto *options = std::get_if<FilterOptions>(&result);
        QVERIFY(options);
        QCOMPARE(options->brands, brands);
        QCOMPARE(options->categories, categories);
    }

    void mapsPortions_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QStringList>("portions");
        QTest::newRow("complete") << portionJson(R"(,"is_default":true,"extra":"x")")
                                  << QStringList{u"1 #11/11 118 g medium banana.png default 1"_s};
        QTest::newRow("no is_default")
            << portionJson("") << QStringList{u"1 #11/11 118 g medium banana.png unknown 1"_s};
        QTest::newRow("is_default not a boolean")
            << portionJson(R"(,"is_default":1)")
            << QStringList{u"1 #11/11 118 g medium banana.png unknown 1"_s};
        QTest::newRow("fractions cut toward zero, booleans as numbers")
            << portionJson(R"(,"size":-2.9,"order_num":true,"is_default":false)")
            << QStringList{u"1 #11/11 -2 g medium banana.png not default 1"_s};
        QTest::newRow("size as text") << portionJson(R"(,"size":"118")") << QStringList();
        QTest::newRow("image name null") << portionJson(R"(,"image_name":null)") << QStringList();
        QTest::newRow("unit missing") << portionJson("").replace(R"("unit":"g",)", "") << QStringList();
        QTest::newRow("no convertible unit")
            << portionJson("").replace(QByteArray(R"("convertible_unit":)"), R"("other":)") << QStringList();
        QTest::newRow("convertible unit without name")
            << portionJson("").replace(R"("name":"gram",)", "") << QStringList();
        QTest::newRow("convertible rate as text")
            << portionJson("").replace(R"("to_base_conversion_rate":1)", R"("to_base_conversion_rate":"1")")
            << QStringList();
        QTest::newRow("not an object") << QByteArray("\"portion\"") << QStringList();
    }

    void mapsPortions()
    {
        QFETCH(QByteArray, element);
        QFETCH(QStringList, portions);
        // The element is framed by two complete ones, which must survive whatever happens to it.
        const QByteArray good = portionJson(R"(,"id":2,"image_name":"")");
        const auto result = mapPortionsReply(
            ServiceReply::classify(200, "{\"portions\":[" + good + "," + element + "," + good + "]}"));
        const auto *list = std::get_if<QList<PortionItem>>(&result);
        QVERIFY(list);
        const QString neighbour = u"1 #2/2 118 g medium  unknown 1"_s;
        QCOMPARE(describe(*list), QStringList{neighbour} + portions + QStringList{neighbour});
    }

    void mapsNutrients_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QStringList>("nutrients");
        QTest::addColumn<QString>("tracked");
        QTest::newRow("split and ordered")
            << "{\"macronutrients\":[" + nutrient("Calories", "105.02", "\"kcal\"") + "," +
                   nutrient("Protein", "1.29") + "," + nutrient("Carbohydrates", "26.9512") +
                   "],\"micronutrients\":[" + nutrient("Salt", "0.001") + "]}"
            << QStringList{u"Calories 105.02 kcal dp0"_s, u"Protein 1.29 g dp1"_s, u"Salt 0.001 g dp1"_s}
            << u"Carbohydrates 26.9512 g dp1"_s;
        QTest::newRow("last carbohydrates wins")
            << "{\"macronutrients\":[" + nutrient("Carbohydrates", "1") + "],\"micronutrients\":[" +
                   nutrient("Carbohydrates", "2") + "]}"
            << QStringList() << u"Carbohydrates 2 g dp1"_s;
        QTest::newRow("lower case is listed")
            << "{\"macronutrients\":[" + nutrient("carbohydrates", "3") + "]}"
            << QStringList{u"carbohydrates 3 g dp1"_s} << QString();
        QTest::newRow("neither array") << QByteArray("{}") << QStringList() << QString();
        QTest::newRow("values read leniently")
            << "{\"micronutrients\":[" + nutrient("A", "\"12.5\"") + "," + nutrient("B", "true") + "," +
                   nutrient("C", "false") + "," + nutrient("D", "null") + "," + nutrient("E", "\"lots\"") +
                   "," + nutrient("F", QByteArray()) + "," + nutrient("G", "[1]") + "]}"
            << QStringList{u"A 12.5 g dp1"_s, u"B 1 g dp1"_s, u"C 0 g dp1"_s, u"D 0 g dp1"_s,
                           u"E 0 g dp1"_s,    u"F 0 g dp1"_s, u"G 0 g dp1"_s}
            << QString();
        QTest::newRow("incomplete elements skipped")
            << "{\"macronutrients\":[" + nutrient("NoUnits", "1", "null") +
                   ",{\"amount\":{\"units\":\"g\"}},7," + nutrient("Fibre", "2.6") + "]}"
            << QStringList{u"Fibre 2.6 g dp1"_s} << QString();
    }

    void mapsNutrients()
    {
        QFETCH(QByteArray, body);
        QFETCH(QStringList, nutrients);
        QFETCH(QString, tracked);
        const auto result = mapNutrientsReply(ServiceReply::classify(200, body));
        const auto *mapped = std::get_if<PortionNutrients>(&result);
        QVERIFY(mapped);
        QStringList listed;
        for (const NutrientValue &n : mapped->nutrients)
            listed << describe(n);
        QCOMPARE(listed, nutrients);
        QCOMPARE(mapped->trackedNutrient ? describe(*mapped->trackedNutrient) : QString(), tracked);
    }

    void mapsAccompanyingFoods_data()
    {
        QTest::addColumn<ServiceReply>("reply");
        QTest::addColumn<QStringList>("foods");
        QTest::newRow("complete and incomplete")
            << ok(R"([{"id":1,"description":"Milk","food_brand":"","is_generic_item":1},
                      {"id":2,"description":"Honey","food_brand":"Bee","is_generic_item":0},
                      {"id":3,"description":"No brand","is_generic_item":1},
                      {"id":"4","description":"Text id","food_brand":"","is_generic_item":1},
                      {"id":5.7,"description":"Oats","food_brand":"","is_generic_item":true},
                      {"id":6,"description":"Jam","food_brand":"J","is_generic_item":2}, null])")
            << QStringList{u"Milk #1/1  generic"_s, u"Honey #2/2 Bee branded"_s, u"Oats #5/5  generic"_s,
                           u"Jam #6/6 J branded"_s};
        QTest::newRow("empty") << ok("[]") << QStringList();
        QTest::newRow("object at the top")
            << ok(R"({"id":1,"description":"Milk","food_brand":"","is_generic_item":1})") << QStringList();
    }

    void mapsAccompanyingFoods()
    {
        QFETCH(ServiceReply, reply);
        QFETCH(QStringList, foods);
        const auto result = mapAccompanyingFoodsReply(reply);
        QVERIFY(std::holds_alternative<QList<FoodItem>>(result));
        QCOMPARE(describe(std::get<QList<FoodItem>>(result)), foods);
    }

    // Replies no mapper can use: each names the failure the screens show.
    void failsUnusableReplies_data()
    {
        QTest::addColumn<QString>("mapper");
        QTest::addColumn<ServiceReply>("reply");
        QTest::addColumn<ServiceFailure>("failure");
        const auto connection = ServiceFailure::ConnectionFailure;
        const ServiceReply none = ServiceReply::classify(std::nullopt, {});
        for (const char *mapper : {"search", "filters", "portions", "nutrients", "accompanying"})
            QTest::addRow("%s: no response", mapper) << QString::fromLatin1(mapper) << none << connection;
        const auto row = [](const char *name, const char *mapper, const ServiceReply &reply) {
            QTest::newRow(name) << QString::fromLatin1(mapper) << reply << ServiceFailure::ServerError;
        };
        row("search: 404", "search", ServiceReply::classify(404, R"({"count":0,"results":[]})"));
        row("search: not JSON", "search", ok("<html>oops</html>"));
        row("search: truncated", "search", ok(R"({"count":1,"results":[{"id":1,)"));
        row("search: array", "search", ok("[]"));
        row("search: count as text", "search", ok(R"({"count":"3","results":[]})"));
        row("search: no results", "search", ok(R"({"count":3})"));
        row("search: food without brand", "search",
            ok(R"({"count":1,"results":[{"id":1,"description":"x","is_generic_item":1}]})"));
        row("search: generic flag as text", "search",
            ok(R"({"count":1,"results":[{"id":1,"description":"x","food_brand":"","is_generic_item":"1"}]})"));
        row("search: id out of range", "search",
            ok(R"({"count":1,"results":[{"id":1e300,"description":"x","food_brand":"","is_generic_item":1}]})"));
        row("filters: number option", "filters", ok(R"({"brands":[3]})"));
        row("filters: object without label", "filters", ok(R"({"categories":[{"name":"Fruits"}]})"));
        row("filters: label not text", "filters", ok(R"({"brands":[{"label":null}]})"));
        row("filters: array", "filters", ok(R"(["Acme"])"));
        row("portions: 500", "portions", ServiceReply::classify(500, R"({"portions":[]})"));
        row("portions: not JSON", "portions", ok(""));
        row("portions: no portions", "portions", ok(R"({"items":[]})"));
        row("portions: not an array", "portions", ok(R"({"portions":{}})"));
        row("nutrients: 400", "nutrients", ServiceReply::classify(400, "{}"));
        row("nutrients: array", "nutrients", ok("[]"));
        row("accompanying: 404", "accompanying", ServiceReply::classify(404, "[]"));
        row("accompanying: not JSON", "accompanying", ok("[{"));
    }

    void failsUnusableReplies()
    {
        QFETCH(QString, mapper);
        QFETCH(ServiceReply, reply);
        QFETCH(ServiceFailure, failure);
        const auto failureOf = [](const auto &result) {
            const auto *failed = std::get_if<ServiceFailure>(&result);
            return failed ? std::optional(*failed) : std::nullopt;
        };
        std::optional<ServiceFailure> got;
        if (mapper == u"search"_s)
            got = failureOf(mapFoodSearchReply(reply));
        else if (mapper == u"filters"_s)
            got = failureOf(mapFilterOptionsReply(reply));
        else if (mapper == u"portions"_s)
            got = failureOf(mapPortionsReply(reply));
        else if (mapper == u"nutrients"_s)
            got = failureOf(mapNutrientsReply(reply));
        else
            got = failureOf(mapAccompanyingFoodsReply(reply));
        QCOMPARE(got, std::optional(failure));
    }

    void decodesPortionPictures_data()
    {
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::yellow);
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        picture.save(&buffer, "PNG");

        QTest::addColumn<std::optional<int>>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QSize>("size");
        QTest::newRow("png") << std::optional(200) << png << QSize(3, 2);
        QTest::newRow("png with 404, status ignored") << std::optional(404) << png << QSize(3, 2);
        QTest::newRow("html") << std::optional(404) << QByteArray("<html><body>Not found</body></html>")
                              << QSize();
        QTest::newRow("empty") << std::optional(200) << QByteArray() << QSize();
        QTest::newRow("no response") << std::optional<int>() << png << QSize();
    }

    void decodesPortionPictures()
    {
        QFETCH(std::optional<int>, status);
        QFETCH(QByteArray, body);
        QFETCH(QSize, size);
        const std::optional<QImage> image = mapPortionImage(status, body);
        QCOMPARE(image ? image->size() : QSize(), size);
    }
};

QTEST_GUILESS_MAIN(ReplyMappingTest)
#include "tst_replymapping.moc"
