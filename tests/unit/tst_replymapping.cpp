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

// A mapper with what it made of a reply written out, one line per record, or the failure.
using Mapper = std::function<QStringList(const ServiceReply &)>;
Q_DECLARE_METATYPE(nutrika::ServiceReply)
Q_DECLARE_METATYPE(Mapper)

namespace {

ServiceReply ok(const QByteArray &body)
{
    return ServiceReply::classify(200, body);
}

QString ids(qint64 id, qint64 underscoreId)
{
    return u"#%1/%2"_s.arg(id).arg(underscoreId);
}

QStringList describe(const QList<FoodItem> &foods, const QString &list = {})
{
    QStringList out;
    for (const FoodItem &food : foods)
        out << list + u"%1 %2 %3 %4"_s.arg(food.description, ids(food.id, food._id), food.brand,
                                           food.isBranded ? u"branded"_s : u"generic"_s);
    return out;
}

QStringList describe(const FoodSearchPage &page)
{
    return QStringList{u"count %1"_s.arg(page.count)} + describe(page.generic, u"generic list: "_s) +
           describe(page.branded, u"branded list: "_s);
}

QStringList describe(const FilterOptions &options)
{
    return {u"brands "_s + options.brands.join(u'|'), u"categories "_s + options.categories.join(u'|')};
}

QStringList describe(const QList<PortionItem> &portions)
{
    QStringList out;
    for (const PortionItem &p : portions) {
        const QString flag = p.is_default ? (*p.is_default ? u"default"_s : u"not default"_s) : u"unknown"_s;
        out << u"%1 %2 %3 %4 %5 %6 %7 %8"_s.arg(
            QString::number(p.order_num), ids(p.id, p._id), QString::number(p.size), p.unit, p.description,
            p.image_name, flag, QString::number(p.convertible_unit.to_base_conversion_rate));
    }
    return out;
}

QString describe(const NutrientValue &n)
{
    return u"%1 %2 %3 dp%4"_s.arg(n.name).arg(n.value).arg(n.unit).arg(n.dp);
}

QStringList describe(const PortionNutrients &mapped)
{
    QStringList out;
    for (const NutrientValue &n : mapped.nutrients)
        out << describe(n);
    if (mapped.trackedNutrient)
        out << u"tracked "_s + describe(*mapped.trackedNutrient);
    return out;
}

template <auto map> QStringList mapped(const ServiceReply &reply)
{
    const auto result = map(reply);
    if (const auto *failure = std::get_if<ServiceFailure>(&result))
        return {*failure == ServiceFailure::ServerError ? u"server error"_s : u"connection failure"_s};
    return describe(std::get<0>(result));
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
    // Incomplete elements of a list are skipped; a reply no mapper can use names the failure the
    // screens show.
    void mapsReplies_data()
    {
        QTest::addColumn<Mapper>("mapper");
        QTest::addColumn<ServiceReply>("reply");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const QByteArray &name, const Mapper &mapper, const ServiceReply &reply,
                            const QStringList &expected) {
            QTest::newRow(name.constData()) << mapper << reply << expected;
        };
        const Mapper search = mapped<mapFoodSearchReply>, filters = mapped<mapFilterOptionsReply>,
                     portions = mapped<mapPortionsReply>, nutrients = mapped<mapNutrientsReply>,
                     accompanying = mapped<mapAccompanyingFoodsReply>;
        const QStringList serverError{u"server error"_s};
        const ServiceReply none = ServiceReply::classify(std::nullopt, {});
        const QStringList connectionFailure{u"connection failure"_s};

        row("search: no response", search, none, connectionFailure);
        row("search: split by is_generic_item", search, ok(R"({"count":1203,"next":null,"results":[
            {"id":9040,"description":"Bananas, raw","food_brand":"","is_generic_item":1,"extra":[1]},
            {"id":7,"description":"Banana Chips","food_brand":"Acme","is_generic_item":0},
            {"id":8,"description":"Banana Bread","food_brand":"Bakery","is_generic_item":false},
            {"id":9,"description":"Plantain","food_brand":"","is_generic_item":true},
            {"id":10.9,"description":"Banana Split","food_brand":"Diner","is_generic_item":2}]})"),
            {u"count 1203"_s, u"generic list: Bananas, raw #9040/9040  generic"_s,
             u"generic list: Plantain #9/9  generic"_s, u"branded list: Banana Chips #7/7 Acme branded"_s,
             u"branded list: Banana Bread #8/8 Bakery branded"_s,
             u"branded list: Banana Split #10/10 Diner branded"_s});
        row("search: empty", search, ok(R"({"count":0,"results":[]})"), {u"count 0"_s});
        row("search: 404", search, ServiceReply::classify(404, R"({"count":0,"results":[]})"), serverError);
        row("search: not JSON", search, ok("<html>oops</html>"), serverError);
        row("search: array", search, ok("[]"), serverError);
        row("search: count as text", search, ok(R"({"count":"3","results":[]})"), serverError);
        row("search: no results", search, ok(R"({"count":3})"), serverError);
        row("search: food without brand", search,
            ok(R"({"count":1,"results":[{"id":1,"description":"x","is_generic_item":1}]})"), serverError);
        row("search: generic flag as text", search,
            ok(R"({"count":1,"results":[{"id":1,"description":"x","food_brand":"","is_generic_item":"1"}]})"),
            serverError);
        row("search: id out of range", search,
            ok(R"({"count":1,"results":[{"id":1e300,"description":"x","food_brand":"","is_generic_item":1}]})"),
            serverError);

        row("filters: no response", filters, none, connectionFailure);
        row("filters: text and label", filters,
            ok(R"({"brands":["Acme",{"label":"Acme","id":3}],"categories":[{"label":"Fruits"},"Fruits"," Nuts "]})"),
            {u"brands Acme|Acme"_s, u"categories Fruits|Fruits| Nuts "_s});
        row("filters: no brands", filters, ok(R"({"categories":["Fruits"]})"),
            {u"brands "_s, u"categories Fruits"_s});
        row("filters: null and not arrays", filters, ok(R"({"brands":null,"categories":"Fruits"})"),
            {u"brands "_s, u"categories "_s});
        row("filters: number option", filters, ok(R"({"brands":[3]})"), serverError);
        row("filters: object without label", filters, ok(R"({"categories":[{"name":"Fruits"}]})"),
            serverError);
        row("filters: label not text", filters, ok(R"({"brands":[{"label":null}]})"), serverError);
        row("filters: array", filters, ok(R"(["Acme"])"), serverError);

        row("portions: no response", portions, none, connectionFailure);
        // Each element is framed by two complete ones, which must survive whatever happens to it.
        const QByteArray good = portionJson(R"(,"id":2,"image_name":"")");
        const auto framed = [&](const QByteArray &element) {
            return ok("{\"portions\":[" + good + "," + element + "," + good + "]}");
        };
        const auto between = [](const QStringList &kept) {
            const QString neighbour = u"1 #2/2 118 g medium  unknown 1"_s;
            return QStringList{neighbour} + kept + QStringList{neighbour};
        };
        row("portions: complete", portions, framed(portionJson(R"(,"is_default":true,"extra":"x")")),
            between({u"1 #11/11 118 g medium banana.png default 1"_s}));
        row("portions: is_default not a boolean", portions, framed(portionJson(R"(,"is_default":1)")),
            between({u"1 #11/11 118 g medium banana.png unknown 1"_s}));
        row("portions: fractions cut toward zero, booleans as numbers", portions,
            framed(portionJson(R"(,"size":-2.9,"order_num":true,"is_default":false)")),
            between({u"1 #11/11 -2 g medium banana.png not default 1"_s}));
        for (const auto &[name, element] : QList<std::pair<QByteArray, QByteArray>>{
                 {"size as text", portionJson(R"(,"size":"118")")},
                 {"image name null", portionJson(R"(,"image_name":null)")},
                 {"unit missing", portionJson("").replace(R"("unit":"g",)", "")},
                 {"no convertible unit",
                  portionJson("").replace(QByteArray(R"("convertible_unit":)"), R"("other":)")},
                 {"convertible unit without name", portionJson("").replace(R"("name":"gram",)", "")},
                 {"convertible rate as text", portionJson("").replace(R"("to_base_conversion_rate":1)",
                                                                      R"("to_base_conversion_rate":"1")")},
                 {"not an object", "\"portion\""}})
            row("portions: skips " + name, portions, framed(element), between({}));
        row("portions: 500", portions, ServiceReply::classify(500, R"({"portions":[]})"), serverError);
        row("portions: not JSON", portions, ok(""), serverError);
        row("portions: no portions", portions, ok(R"({"items":[]})"), serverError);
        row("portions: not an array", portions, ok(R"({"portions":{}})"), serverError);

        row("nutrients: no response", nutrients, none, connectionFailure);
        row("nutrients: split and ordered", nutrients,
            ok("{\"macronutrients\":[" + nutrient("Calories", "105.02", "\"kcal\"") + "," +
               nutrient("Protein", "1.29") + "," + nutrient("Carbohydrates", "26.9512") +
               "],\"micronutrients\":[" + nutrient("Salt", "0.001") + "]}"),
            {u"Calories 105.02 kcal dp0"_s, u"Protein 1.29 g dp1"_s, u"Salt 0.001 g dp1"_s,
             u"tracked Carbohydrates 26.9512 g dp1"_s});
        row("nutrients: last carbohydrates wins", nutrients,
            ok("{\"macronutrients\":[" + nutrient("Carbohydrates", "1") + "],\"micronutrients\":[" +
               nutrient("Carbohydrates", "2") + "]}"),
            {u"tracked Carbohydrates 2 g dp1"_s});
        row("nutrients: lower case is listed", nutrients,
            ok("{\"macronutrients\":[" + nutrient("carbohydrates", "3") + "]}"),
            {u"carbohydrates 3 g dp1"_s});
        row("nutrients: neither array", nutrients, ok("{}"), {});
        row("nutrients: values read leniently", nutrients,
            ok("{\"micronutrients\":[" + nutrient("A", "\"12.5\"") + "," + nutrient("B", "true") + "," +
               nutrient("C", "false") + "," + nutrient("D", "null") + "," + nutrient("E", "\"lots\"") + "," +
               nutrient("F", QByteArray()) + "," + nutrient("G", "[1]") + "]}"),
            {u"A 12.5 g dp1"_s, u"B 1 g dp1"_s, u"C 0 g dp1"_s, u"D 0 g dp1"_s, u"E 0 g dp1"_s,
             u"F 0 g dp1"_s, u"G 0 g dp1"_s});
        row("nutrients: incomplete elements skipped", nutrients,
            ok("{\"macronutrients\":[" + nutrient("NoUnits", "1", "null") +
               ",{\"amount\":{\"units\":\"g\"}},7," + nutrient("Fibre", "2.6") + "]}"),
            {u"Fibre 2.6 g dp1"_s});
        row("nutrients: 400", nutrients, ServiceReply::classify(400, "{}"), serverError);
        row("nutrients: array", nutrients, ok("[]"), serverError);

        row("accompanying: no response", accompanying, none, connectionFailure);
        row("accompanying: incomplete skipped", accompanying,
            ok(R"([{"id":1,"description":"Milk","food_brand":"","is_generic_item":1},
                   {"id":2,"description":"Honey","food_brand":"Bee","is_generic_item":0},
                   {"id":3,"description":"No brand","is_generic_item":1},
                   {"id":"4","description":"Text id","food_brand":"","is_generic_item":1},
                   {"id":5.7,"description":"Oats","food_brand":"","is_generic_item":true},
                   {"id":6,"description":"Jam","food_brand":"J","is_generic_item":2}, null])"),
            {u"Milk #1/1  generic"_s, u"Honey #2/2 Bee branded"_s, u"Oats #5/5  generic"_s,
             u"Jam #6/6 J branded"_s});
        row("accompanying: object at the top", accompanying,
            ok(R"({"id":1,"description":"Milk","food_brand":"","is_generic_item":1})"), {});
        row("accompanying: 404", accompanying, ServiceReply::classify(404, "[]"), serverError);
        row("accompanying: not JSON", accompanying, ok("[{"), serverError);

        // A picture is whatever decodes, whatever the status.
        const Mapper picture = [](const ServiceReply &reply) {
            const std::optional<QImage> image = mapPortionImage(reply.status, reply.body);
            return QStringList{image ? u"%1x%2"_s.arg(image->width()).arg(image->height()) : u"none"_s};
        };
        QImage yellow(3, 2, QImage::Format_RGB32);
        yellow.fill(Qt::yellow);
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        yellow.save(&buffer, "PNG");
        row("picture: png", picture, ok(png), {u"3x2"_s});
        row("picture: png with 404", picture, ServiceReply::classify(404, png), {u"3x2"_s});
        row("picture: html", picture, ServiceReply::classify(404, "<html><body>Not found</body></html>"),
            {u"none"_s});
        row("picture: empty", picture, ok(""), {u"none"_s});
        row("picture: no response", picture, ServiceReply::classify(std::nullopt, png), {u"none"_s});
    }

    void mapsReplies()
    {
        QFETCH(Mapper, mapper);
        QFETCH(ServiceReply, reply);
        QFETCH(QStringList, expected);
        QCOMPARE(mapper(reply), expected);
    }
};

QTEST_GUILESS_MAIN(ReplyMappingTest)
#include "tst_replymapping.moc"