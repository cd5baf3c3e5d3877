#include "FoodSearchRequest.h"
#include "NutrientsRequest.h"
#include "ServiceClient.h"

#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(nutrika::ServiceReply::Outcome)

class RequestBuildingTest : public QObject
{
    Q_OBJECT

private slots:
    // Parameters come out sorted, every byte but letters, digits and -._~/? escaped. The paths and whole
    // request lines are the wire test's.
    void buildsParameters_data()
    {
        QTest::addColumn<QString>("built");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &built, const QString &expected) {
            QTest::newRow(name) << built << expected;
        };
        const auto query = [](const QueryParameters &parameters) {
            return QString::fromLatin1(encodeQuery(parameters));
        };
        row("no parameters", query({}), QString());
        row("keys ascending", query({{u"search"_s, u"a"_s}, {u"limit"_s, u"50"_s}}), u"limit=50&search=a"_s);
        row("empty value", query({{u"food_brand"_s, QString()}}), u"food_brand="_s);
        row("space and accent", query({{u"search"_s, u" crème brûlée"_s}}),
            u"search=%20cr%C3%A8me%20br%C3%BBl%C3%A9e"_s);
        row("delimiters", query({{u"q"_s, u"a&b=c+d#e%f!*'(),;:@$"_s}}),
            u"q=a%26b%3Dc%2Bd%23e%25f%21%2A%27%28%29%2C%3B%3A%40%24"_s);
        row("kept as is", query({{u"q"_s, u"Az09-._~/?"_s}}), u"q=Az09-._~/?"_s);
        row("four-byte character", query({{u"q"_s, u"🍌"_s}}), u"q=%F0%9F%8D%8C"_s);
        row("key escaped too", query({{u"a b"_s, u"1"_s}}), u"a%20b=1"_s);
        row("third page, filtered",
            query(foodSearchParameters({u"x"_s, 100, u"Kellogg's"_s, u"Cereal & Grains"_s})),
            u"food_brand=Kellogg%27s&food_category=Cereal%20%26%20Grains&limit=50&offset=100&search=x"_s);
        // The amount goes through a 32-bit float rounded to thousandths, written without ".0".
        row("amount -5", amountValueText(-5), u"-5"_s);
        row("amount below 2^24 / 1000 stays whole", amountValueText(16777), u"16777"_s);
        row("float shifts large amounts", amountValueText(123456789), u"123456792"_s);
    }

    void buildsParameters()
    {
        QFETCH(QString, built);
        QFETCH(QString, expected);
        QCOMPARE(built, expected);
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
    }

    // The environment is read once, at creation; an origin loses its trailing slashes and is announced
    // only when it changes.
    void originsAsRequestsBeginThem_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QUrl>("origin");
        QTest::addColumn<QString>("text");
        QTest::newRow("default") << QByteArray() << QUrl()
                                 << QString::fromUtf8(NUTRIKA_DEFAULT_SERVICE_ORIGIN);
        QTest::newRow("variable with a slash")
            << QByteArray("https://local.test/") << QUrl() << u"https://local.test"_s;
        QTest::newRow("set") << QByteArray() << QUrl(u"https://food.example.org"_s)
                             << u"https://food.example.org"_s;
        QTest::newRow("set with slashes")
            << QByteArray() << QUrl(u"https://127.0.0.1:8443//"_s) << u"https://127.0.0.1:8443"_s;
        QTest::newRow("set, international host")
            << QByteArray() << QUrl(u"https://bäcker.example/"_s) << u"https://xn--bcker-gra.example"_s;
    }

    void originsAsRequestsBeginThem()
    {
        QFETCH(QByteArray, variable);
        QFETCH(QUrl, origin);
        QFETCH(QString, text);
        qputenv("NUTRIKA_SERVICE_ORIGIN", variable);
        qputenv("NUTRIKA_CA_CERT", NUTRIKA_TEST_TLS_DIR "/ca.pem");
        ServiceClient client;
        qputenv("NUTRIKA_SERVICE_ORIGIN", "https://later.test");
        qunsetenv("NUTRIKA_CA_CERT");
        QSignalSpy changed(&client, &ServiceClient::originChanged);
        if (!origin.isEmpty()) {
            client.setOrigin(origin);
            client.setOrigin(origin);
        }
        qunsetenv("NUTRIKA_SERVICE_ORIGIN");
        QCOMPARE(client.originText(), text);
        QCOMPARE(client.origin(), QUrl(text));
        QCOMPARE(changed.size(), origin.isEmpty() ? 0 : 1);
        QCOMPARE(client.caCertificates(), QSslCertificate::fromPath(NUTRIKA_TEST_TLS_DIR "/ca.pem"_L1));
    }
};

QTEST_GUILESS_MAIN(RequestBuildingTest)
#include "tst_requestbuilding.moc"
