#include "AccompanyingFoodsRequest.h"
#include "FilterOptionsRequest.h"
#include "FoodSearchRequest.h"
#include "NutrientsRequest.h"
#include "PortionImageRequest.h"
#include "PortionsRequest.h"
#include "ServiceClient.h"

#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(nutrika::QueryParameters)
Q_DECLARE_METATYPE(nutrika::ServiceReply::Outcome)

class RequestBuildingTest : public QObject
{
    Q_OBJECT

private slots:
    void encodesQueries_data()
    {
        QTest::addColumn<QueryParameters>("query");
        QTest::addColumn<QByteArray>("encoded");
        QTest::newRow("none") << QueryParameters{} << QByteArray();
        QTest::newRow("keys ascending") << QueryParameters{{u"search"_s, u"a"_s}, {u"limit"_s, u"50"_s}}
                                        << QByteArray("limit=50&search=a");
        QTest::newRow("empty value") << QueryParameters{{u"food_brand"_s, QString()}}
                                     << QByteArray("food_brand=");
        QTest::newRow("space and accent") << QueryParameters{{u"search"_s, u" crème brûlée"_s}}
                                          << QByteArray("search=%20cr%C3%A8me%20br%C3%BBl%C3%A9e");
        QTest::newRow("delimiters") << QueryParameters{{u"q"_s, u"a&b=c+d#e%f"_s}}
                                    << QByteArray("q=a%26b%3Dc%2Bd%23e%25f");
        QTest::newRow("kept as is") << QueryParameters{{u"q"_s, u"Az09-._~/?"_s}}
                                    << QByteArray("q=Az09-._~/?");
        QTest::newRow("sub-delimiters escaped")
            << QueryParameters{{u"q"_s, u"!*'(),;:@$"_s}} << QByteArray("q=%21%2A%27%28%29%2C%3B%3A%40%24");
        QTest::newRow("four-byte character")
            << QueryParameters{{u"q"_s, u"🍌"_s}} << QByteArray("q=%F0%9F%8D%8C");
        QTest::newRow("key escaped too") << QueryParameters{{u"a b"_s, u"1"_s}} << QByteArray("a%20b=1");
    }

    void encodesQueries()
    {
        QFETCH(QueryParameters, query);
        QFETCH(QByteArray, encoded);
        QCOMPARE(encodeQuery(query), encoded);
    }

    // Paths keep the service's double slash; parameters come out sorted and escaped.
    void buildsRequests_data()
    {
        QTest::addColumn<QString>("built");
        QTest::addColumn<QString>("expected");
        const auto query = [](const QueryParameters &parameters) {
            return QString::fromLatin1(encodeQuery(parameters));
        };
        QTest::newRow("search") << foodSearchPath() << u"/api/v1/healthcare//food"_s;
        QTest::newRow("filters") << filterOptionsPath()
                                 << u"/api/v1/healthcare//food/brands_and_categories"_s;
        QTest::newRow("portions") << portionsPath(9040) << u"/api/v1/healthcare//food/9040"_s;
        QTest::newRow("nutrients") << nutrientsPath(42) << u"/api/v1/healthcare//food/42/get_nutrients"_s;
        QTest::newRow("accompanying")
            << accompanyingFoodsPath(7) << u"/api/v1/healthcare//food/7/accompanying_food_items"_s;
        QTest::newRow("picture") << portionImagePath(512) << u"/api/v1/healthcare//food_portion_images/512"_s;
        QTest::newRow("thumbnail")
            << portionThumbnailPath(512)
            << u"/api/v1/healthcare//food_portion_images/512?width=200&height=200&type=thumbnail"_s;
        QTest::newRow("first page, no filter")
            << query(foodSearchParameters({u"apple pie"_s, 0, QString(), QString()}))
            << u"food_brand=&food_category=&limit=50&offset=0&search=apple%20pie"_s;
        QTest::newRow("third page, filtered")
            << query(foodSearchParameters({u"x"_s, 100, u"Kellogg's"_s, u"Cereal & Grains"_s}))
            << u"food_brand=Kellogg%27s&food_category=Cereal%20%26%20Grains&limit=50&offset=100&search=x"_s;
        QTest::newRow("filter options")
            << query(filterOptionsParameters(u" tea"_s)) << u"limit=100&offset=0&search=%20tea"_s;
        PortionItem portion = basePortionItem();
        portion.size = 30;
        QTest::newRow("nutrient amount")
            << query(nutrientsParameters(portion)) << u"amount_unit=grams&amount_value=30"_s;
    }

    void buildsRequests()
    {
        QFETCH(QString, built);
        QFETCH(QString, expected);
        QCOMPARE(built, expected);
    }

    void writesAmountValues_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<QString>("text");
        QTest::newRow("30") << qint64(30) << u"30"_s;
        QTest::newRow("0") << qint64(0) << u"0"_s;
        QTest::newRow("-5") << qint64(-5) << u"-5"_s;
        QTest::newRow("below 2^24 / 1000 stays whole") << qint64(16777) << u"16777"_s;
        QTest::newRow("float shifts large sizes") << qint64(123456789) << u"123456792"_s;
    }

    void writesAmountValues()
    {
        QFETCH(qint64, size);
        QFETCH(QString, text);
        QCOMPARE(amountValueText(size), text);
    }

    void classifiesReplies_data()
    {
        QTest::addColumn<std::optional<int>>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<ServiceReply::Outcome>("outcome");
        QTest::addColumn<bool>("isJson");
        using Outcome = ServiceReply::Outcome;
        QTest::newRow("no response") << std::optional<int>() << QByteArray() << Outcome::ConnectionFailure
                                     << false;
        QTest::newRow("200") << std::optional(200) << QByteArray("{}") << Outcome::Body << true;
        QTest::newRow("399 is a success") << std::optional(399) << QByteArray("[]") << Outcome::Body << true;
        QTest::newRow("400") << std::optional(400) << QByteArray("{}") << Outcome::ServerError << false;
        QTest::newRow("500") << std::optional(500) << QByteArray() << Outcome::ServerError << false;
        QTest::newRow("not JSON") << std::optional(200) << QByteArray("<html>") << Outcome::Body << false;
        QTest::newRow("empty") << std::optional(200) << QByteArray() << Outcome::Body << false;
    }

    void classifiesReplies()
    {
        QFETCH(std::optional<int>, status);
        QFETCH(QByteArray, body);
        QFETCH(ServiceReply::Outcome, outcome);
        QFETCH(bool, isJson);
        const ServiceReply reply = ServiceReply::classify(status, body);
        QCOMPARE(reply.outcome, outcome);
        QCOMPARE(reply.isJson, isJson);
        QCOMPARE(reply.body, body);
    }

    void readsTheOverridesOnceAtCreation_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QString>("origin");
        QTest::newRow("unset") << QByteArray() << QString::fromUtf8(NUTRIKA_DEFAULT_SERVICE_ORIGIN);
        QTest::newRow("set") << QByteArray("https://127.0.0.1:8443") << u"https://127.0.0.1:8443"_s;
        QTest::newRow("trailing slash") << QByteArray("https://local.test/") << u"https://local.test"_s;
    }

    void readsTheOverridesOnceAtCreation()
    {
        QFETCH(QByteArray, variable);
        QFETCH(QString, origin);
        qputenv("NUTRIKA_SERVICE_ORIGIN", variable);
        qputenv("NUTRIKA_CA_CERT", NUTRIKA_TEST_TLS_DIR "/ca.pem");
        ServiceClient client;
        qputenv("NUTRIKA_SERVICE_ORIGIN", "https://later.test");
        qunsetenv("NUTRIKA_CA_CERT");
        QCOMPARE(client.originText(), origin);
        QCOMPARE(client.caCertificates(), QSslCertificate::fromPath(NUTRIKA_TEST_TLS_DIR "/ca.pem"_L1));
        qunsetenv("NUTRIKA_SERVICE_ORIGIN");
    }

    void keepsTheOriginAsRequestsBeginIt_data()
    {
        QTest::addColumn<QUrl>("origin");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QUrl(u"https://food.example.org"_s) << u"https://food.example.org"_s;
        QTest::newRow("trailing slashes")
            << QUrl(u"https://food.example.org//"_s) << u"https://food.example.org"_s;
        QTest::newRow("port") << QUrl(u"https://127.0.0.1:8443/"_s) << u"https://127.0.0.1:8443"_s;
        QTest::newRow("international host")
            << QUrl(u"https://bäcker.example/"_s) << u"https://xn--bcker-gra.example"_s;
    }

    void keepsTheOriginAsRequestsBeginIt()
    {
        QFETCH(QUrl, origin);
        QFETCH(QString, text);
        ServiceClient client;
        QSignalSpy changed(&client, &ServiceClient::originChanged);
        client.setOrigin(origin);
        QCOMPARE(client.originText(), text);
        QCOMPARE(client.origin(), QUrl(text));
        client.setOrigin(origin);
        QCOMPARE(changed.size(), 1);
    }
};

QTEST_GUILESS_MAIN(RequestBuildingTest)
#include "tst_requestbuilding.moc"
