// Every endpoint against the real data: reply shapes and values, keys, bad input.
#include "FoodServiceProcess.h"
#include "ServiceClient.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

#include <memory>

namespace {

const QByteArray food = "/api/v1/healthcare//food";

bool hasKeys(const QJsonObject &object, const QStringList &keys)
{
    return std::all_of(keys.begin(), keys.end(), [&](const QString &key) { return object.contains(key); });
}

} // namespace

class ApiTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void searchReplyHasTheModuleShape();
    void searchPagesAndFilters();
    void brandsAndCategoriesMostFrequentFirst();
    void portionsHaveTheModuleShape();
    void nutrientsForAnAmount();
    void accompanimentsAreOtherFoods();
    void portionPictures_data();
    void portionPictures();
    void keyIsRequired_data();
    void keyIsRequired();
    void badInputIsRefused_data();
    void badInputIsRefused();
    void malformedRequestIsRefused_data();
    void malformedRequestIsRefused();
    void oversizedRequestIsRefused();
    void stopsCleanlyOnSigterm();

private:
    std::unique_ptr<FoodServiceProcess> m_service;
    std::unique_ptr<ServiceClient> m_client;
};

void ApiTest::initTestCase()
{
    m_service = std::make_unique<FoodServiceProcess>(QStringLiteral(NUTRIKA_FOOD_DB));
    QVERIFY2(m_service->isReady(), qPrintable(m_service->errorString()));
    QVERIFY(m_service->origin().startsWith(QLatin1String("https://127.0.0.1:")));
    m_client = std::make_unique<ServiceClient>(*m_service);
}

void ApiTest::searchReplyHasTheModuleShape()
{
    const auto reply =
        m_client->get(food + "?food_brand=&food_category=&limit=50&offset=0&search=chick%20nugg");
    QCOMPARE(reply.status, 200);
    QCOMPARE(reply.contentType, QByteArray("application/json"));
    const QJsonObject body = reply.json().object();
    QVERIFY(body.value(QStringLiteral("count")).toInt() > 5);
    QVERIFY(body.contains(QStringLiteral("next")));
    const QJsonArray results = body.value(QStringLiteral("results")).toArray();
    QCOMPARE(results.size(), body.value(QStringLiteral("count")).toInt());
    bool sawBranded = false;
    for (const auto &element : results) {
        const QJsonObject result = element.toObject();
        QVERIFY(hasKeys(result, {"id", "description", "food_brand", "is_generic_item"}));
        QVERIFY(result.value(QStringLiteral("id")).isDouble());
        const bool generic = result.value(QStringLiteral("is_generic_item")).toInt() == 1;
        QCOMPARE(generic, result.value(QStringLiteral("food_brand")).toString().isEmpty());
        sawBranded |= result.value(QStringLiteral("food_brand")).toString() == QLatin1String("WENDY'S");
    }
    QVERIFY(sawBranded);

    const auto empty =
        m_client->get(food + "?food_brand=&food_category=&limit=50&offset=0&search=").json().object();
    QCOMPARE(empty.value(QStringLiteral("count")).toInt(), 0);
    QVERIFY(empty.value(QStringLiteral("results")).toArray().isEmpty());
}

void ApiTest::searchPagesAndFilters()
{
    const QByteArray search = food + "?food_category=&limit=50&search=chicken&food_brand=";
    const QJsonObject first = m_client->get(search + "&offset=0").json().object();
    const QJsonObject second = m_client->get(search + "&offset=50").json().object();
    const int count = first.value(QStringLiteral("count")).toInt();
    QVERIFY(count > 100);
    QCOMPARE(second.value(QStringLiteral("count")).toInt(), count);
    QVERIFY(first.value(QStringLiteral("next")).isString());
    QVERIFY(first.value(QStringLiteral("results")).toArray().at(49) !=
            second.value(QStringLiteral("results")).toArray().at(0));
    const QJsonObject last =
        m_client->get(search + "&offset=" + QByteArray::number(count - 1)).json().object();
    QCOMPARE(last.value(QStringLiteral("results")).toArray().size(), 1);
    QVERIFY(last.value(QStringLiteral("next")).isNull());

    const QJsonObject wendys =
        m_client->get(food + "?limit=200&search=chicken&food_brand=WENDY%27S&food_category=Fast%20Foods")
            .json()
            .object();
    QVERIFY(wendys.value(QStringLiteral("count")).toInt() > 0);
    for (const auto &result : wendys.value(QStringLiteral("results")).toArray())
        QCOMPARE(result.toObject().value(QStringLiteral("food_brand")).toString(), QStringLiteral("WENDY'S"));
    const auto nothing =
        m_client->get(food + "?limit=50&search=chicken&food_brand=wendy%27s").json().object();
    QCOMPARE(nothing.value(QStringLiteral("count")).toInt(), 0);
}

void ApiTest::brandsAndCategoriesMostFrequentFirst()
{
    const QJsonObject body =
        m_client->get(food + "/brands_and_categories?limit=100&offset=0&search=cheerios").json().object();
    QCOMPARE(body.value(QStringLiteral("brands")).toArray(),
             QJsonArray({QJsonObject{{"label", "GENERAL MILLS"}}}));
    QCOMPARE(body.value(QStringLiteral("categories")).toArray(),
             QJsonArray({QJsonObject{{"label", "Breakfast Cereals"}}}));

    const QJsonObject chicken =
        m_client->get(food + "/brands_and_categories?limit=2&offset=0&search=chicken").json().object();
    const QJsonArray categories = chicken.value(QStringLiteral("categories")).toArray();
    QCOMPARE(categories.size(), 2);
    QCOMPARE(categories.first().toObject().value(QStringLiteral("label")).toString(),
             QStringLiteral("Poultry Products"));
    const QJsonObject none =
        m_client->get(food + "/brands_and_categories?limit=100&offset=0&search=").json().object();
    QVERIFY(none.value(QStringLiteral("brands")).toArray().isEmpty());
}

void ApiTest::portionsHaveTheModuleShape()
{
    const auto reply = m_client->get(food + "/9040");
    QCOMPARE(reply.status, 200);
    const QJsonArray portions = reply.json().object().value(QStringLiteral("portions")).toArray();
    QCOMPARE(portions.size(), 8);
    const QJsonObject first = portions.first().toObject();
    QVERIFY(hasKeys(first, {"order_num", "id", "unit", "database_import", "size", "is_default", "image_name",
                            "description", "convertible_unit"}));
    QCOMPARE(first.value(QStringLiteral("id")).toInt(), 904001);
    QCOMPARE(first.value(QStringLiteral("unit")).toString(), QStringLiteral("grams"));
    QCOMPARE(first.value(QStringLiteral("size")).toInt(), 225);
    QCOMPARE(first.value(QStringLiteral("description")).toString(), QStringLiteral("1 cup, mashed"));
    QVERIFY(first.value(QStringLiteral("is_default")).toBool());
    QVERIFY(!first.value(QStringLiteral("image_name")).toString().isEmpty());
    const QJsonObject unit = first.value(QStringLiteral("convertible_unit")).toObject();
    QVERIFY(hasKeys(unit, {"type", "is_base", "id", "to_base_conversion_rate", "name", "unit"}));
    QCOMPARE(unit.value(QStringLiteral("is_base")).toInt(), 1);
    const QJsonObject serving = portions.last().toObject();
    QCOMPARE(serving.value(QStringLiteral("description")).toString(), QStringLiteral("1 NLEA serving"));
    QCOMPARE(serving.value(QStringLiteral("image_name")).toString(), QString());
    QVERIFY(!serving.value(QStringLiteral("is_default")).toBool());
}

void ApiTest::nutrientsForAnAmount()
{
    const QJsonObject body =
        m_client->get(food + "/9040/get_nutrients?amount_unit=grams&amount_value=118").json().object();
    QMap<QString, QPair<double, QString>> amounts;
    for (const char *list : {"macronutrients", "micronutrients"}) {
        for (const auto &element : body.value(QLatin1String(list)).toArray()) {
            const QJsonObject amount = element.toObject().value(QStringLiteral("amount")).toObject();
            amounts.insert(element.toObject()
                               .value(QStringLiteral("nutrient"))
                               .toObject()
                               .value(QStringLiteral("name"))
                               .toString(),
                           {amount.value(QStringLiteral("value")).toDouble(),
                            amount.value(QStringLiteral("units")).toString()});
        }
    }
    QCOMPARE(body.value(QStringLiteral("macronutrients"))
                 .toArray()
                 .first()
                 .toObject()
                 .value(QStringLiteral("nutrient"))
                 .toObject()
                 .value(QStringLiteral("name"))
                 .toString(),
             QStringLiteral("Calories"));
    QCOMPARE(amounts.value(QStringLiteral("Calories")),
             qMakePair(89.0 * 118 / 100, QStringLiteral("calories")));
    QCOMPARE(amounts.value(QStringLiteral("Carbohydrates")),
             qMakePair(22.84 * 118 / 100, QStringLiteral("grams")));
    QCOMPARE(amounts.value(QStringLiteral("Fibre (AOAC)")),
             qMakePair(2.6 * 118 / 100, QStringLiteral("grams")));
    QCOMPARE(amounts.value(QStringLiteral("Potassium")),
             qMakePair(358.0 * 118 / 100, QStringLiteral("milligrams")));
    QCOMPARE(amounts.value(QStringLiteral("Salt")).second, QStringLiteral("grams"));
    for (const char *name : {"Protein", "Fat", "Saturated Fat", "Total Sugars", "Vitamin C", "Folate"})
        QVERIFY2(amounts.contains(QLatin1String(name)), name);
}

void ApiTest::accompanimentsAreOtherFoods()
{
    const auto reply = m_client->get(food + "/8013/accompanying_food_items");
    QCOMPARE(reply.status, 200);
    const QJsonArray foods = reply.json().array();
    QVERIFY(!foods.isEmpty() && foods.size() <= 5);
    QList<int> ids;
    for (const auto &element : foods) {
        QVERIFY(hasKeys(element.toObject(), {"id", "description", "food_brand", "is_generic_item"}));
        ids << element.toObject().value(QStringLiteral("id")).toInt();
    }
    QVERIFY(!ids.contains(8013));
    QVERIFY2(ids.contains(1079), "cereal comes with milk");
    QCOMPARE(m_client->get(food + "/1079/accompanying_food_items").status, 200);
}

void ApiTest::portionPictures_data()
{
    QTest::addColumn<QByteArray>("query");
    QTest::addColumn<int>("size");
    QTest::newRow("thumbnail") << QByteArray("?width=200&height=200&type=thumbnail") << 200;
    QTest::newRow("full size") << QByteArray() << 600;
}

void ApiTest::portionPictures()
{
    QFETCH(QByteArray, query);
    QFETCH(int, size);
    const auto reply = m_client->get("/api/v1/healthcare//food_portion_images/904001" + query, {});
    QCOMPARE(reply.status, 200);
    QCOMPARE(reply.contentType, QByteArray("image/png"));
    const QImage image = QImage::fromData(reply.body, "PNG");
    QCOMPARE(image.size(), QSize(size, size));
}

void ApiTest::keyIsRequired_data()
{
    QTest::addColumn<ServiceClient::Headers>("headers");
    QTest::newRow("no header") << ServiceClient::Headers{};
    QTest::newRow("wrong key") << ServiceClient::Headers{{"Authorization", "Api-Key wrong"}};
    QTest::newRow("empty key") << ServiceClient::Headers{{"Authorization", "Api-Key "}};
    QTest::newRow("other scheme") << ServiceClient::Headers{{"Authorization", "Bearer test-api-key"}};
    QTest::newRow("key as a prefix") << ServiceClient::Headers{{"Authorization", "Api-Key test-api-key-2"}};
}

void ApiTest::keyIsRequired()
{
    QFETCH(ServiceClient::Headers, headers);
    for (const QByteArray &target :
         {food + "?search=milk", food + "/brands_and_categories?search=milk", food + "/9040",
          food + "/9040/get_nutrients?amount_value=1&amount_unit=grams",
          food + "/9040/accompanying_food_items", food + "/99999999"}) {
        const auto reply = m_client->get(target, headers);
        QCOMPARE(reply.status, 401);
        QVERIFY(reply.json().object().contains(QStringLiteral("error")));
    }
}

void ApiTest::badInputIsRefused_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("parameter");

    QTest::newRow("limit not an integer") << food + "?search=milk&limit=ten" << 400 << "limit";
    QTest::newRow("limit with a fraction") << food + "?search=milk&limit=1.5" << 400 << "limit";
    QTest::newRow("limit over 200") << food + "?search=milk&limit=201" << 400 << "limit";
    QTest::newRow("limit overflowing") << food + "?search=milk&limit=99999999999999999999" << 400 << "limit";
    QTest::newRow("negative offset") << food + "?search=milk&offset=-1" << 400 << "offset";
    QTest::newRow("offset empty") << food + "?search=milk&offset=" << 400 << "offset";
    QTest::newRow("options limit") << food + "/brands_and_categories?search=milk&limit=x" << 400 << "limit";
    QTest::newRow("amount not a number")
        << food + "/9040/get_nutrients?amount_value=abc&amount_unit=grams" << 400 << "amount_value";
    QTest::newRow("amount missing") << food + "/9040/get_nutrients?amount_unit=grams" << 400
                                    << "amount_value";
    QTest::newRow("amount too large")
        << food + "/9040/get_nutrients?amount_value=1e308&amount_unit=grams" << 400 << "amount_value";
    QTest::newRow("amount infinite") << food + "/9040/get_nutrients?amount_value=inf&amount_unit=grams" << 400
                                     << "amount_value";
    QTest::newRow("unit not grams") << food + "/9040/get_nutrients?amount_value=30&amount_unit=ounces" << 400
                                    << "amount_unit";
    QTest::newRow("picture size") << QByteArray("/api/v1/healthcare//food_portion_images/904001?width=99999")
                                  << 400 << "width";
    QTest::newRow("unknown food") << food + "/99999999" << 404 << "";
    QTest::newRow("food id not a number") << food + "/abc" << 404 << "";
    QTest::newRow("nutrients of unknown food")
        << food + "/0/get_nutrients?amount_value=1&amount_unit=grams" << 404 << "";
    QTest::newRow("unknown portion picture")
        << QByteArray("/api/v1/healthcare//food_portion_images/1") << 404 << "";
    QTest::newRow("picture of a text portion")
        << QByteArray("/api/v1/healthcare//food_portion_images/904008") << 404 << "";
    QTest::newRow("single slash") << QByteArray("/api/v1/healthcare/food?search=milk") << 404 << "";
    QTest::newRow("unknown action") << food + "/9040/other" << 404 << "";
}

void ApiTest::badInputIsRefused()
{
    QFETCH(QByteArray, target);
    QFETCH(int, status);
    QFETCH(QString, parameter);

    const auto reply = m_client->get(target);
    QCOMPARE(reply.status, status);
    const QJsonObject body = reply.json().object();
    QVERIFY(!body.value(QStringLiteral("error")).toString().isEmpty());
    QCOMPARE(body.value(QStringLiteral("parameter")).toString(), parameter);
    QCOMPARE(m_client->get(food + "/9040").status, 200);
}

void ApiTest::malformedRequestIsRefused_data()
{
    QTest::addColumn<QByteArray>("requestLine");
    QTest::addColumn<int>("status");

    QTest::newRow("malformed escape in the query") << "GET " + food + "?search=%zz HTTP/1.1" << 400;
    QTest::newRow("truncated escape") << "GET " + food + "?search=milk%4 HTTP/1.1" << 400;
    QTest::newRow("malformed escape in the path")
        << QByteArray("GET /api/v1/healthcare//food/%g1 HTTP/1.1") << 400;
    QTest::newRow("escaped path decodes")
        << QByteArray("GET /api/v1/healthcare//food/%39040 HTTP/1.1") << 200;
    QTest::newRow("not GET") << "DELETE " + food + "/9040 HTTP/1.1" << 404;
    QTest::newRow("not HTTP") << QByteArray("HELLO") << 400;
}

void ApiTest::malformedRequestIsRefused()
{
    QFETCH(QByteArray, requestLine);
    QFETCH(int, status);

    const auto reply = m_client->sendRaw(requestLine + "\r\nHost: 127.0.0.1\r\nAuthorization: Api-Key " +
                                         m_service->apiKey().toUtf8() + "\r\nConnection: close\r\n\r\n");
    QCOMPARE(reply.status, status);
    if (status >= 400)
        QVERIFY2(QJsonDocument::fromJson(reply.body).object().contains(QStringLiteral("error")),
                 reply.body.constData());
}

void ApiTest::oversizedRequestIsRefused()
{
    ServiceClient::Headers headers{{"Authorization", "Api-Key " + m_service->apiKey().toUtf8()}};
    for (int i = 0; i < 20; ++i)
        headers.append({"X-Filler-" + QByteArray::number(i), QByteArray(4000, 'x')});
    QCOMPARE(m_client->get(food + "/9040", headers).status, 413);
    const QByteArray body(70 * 1024, 'x');
    const auto withBody = m_client->sendRaw("GET " + food +
                                            "/9040 HTTP/1.1\r\nHost: 127.0.0.1\r\nConnection: close\r\n"
                                            "Content-Length: " +
                                            QByteArray::number(body.size()) + "\r\n\r\n" + body);
    QCOMPARE(withBody.status, 413);
    QVERIFY(m_client->get(food + "?search=" + QByteArray(9000, 'a')).status >= 400);
    QCOMPARE(m_client->get(food + "/9040").status, 200);
}

void ApiTest::stopsCleanlyOnSigterm()
{
    FoodServiceProcess other(QStringLiteral(NUTRIKA_FOOD_DB));
    QVERIFY2(other.isReady(), qPrintable(other.errorString()));
    QVERIFY(other.origin() != m_service->origin());
    QCOMPARE(other.caPath(), m_service->caPath());
    QVERIFY(other.stop());
}

QTEST_GUILESS_MAIN(ApiTest)
#include "tst_api.moc"
