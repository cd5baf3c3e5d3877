#include "ServiceProbes.h"
#include "StdoutCapture.h"

#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QSignalSpy>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString secretKey = u"sekret-KEY-4711"_s;
QStringList loggedMessages;

const QByteArray searchPage = R"({"count":1,"results":[
    {"id":9040,"description":"Bananas, raw","food_brand":"","is_generic_item":1}]})";

struct Case
{
    Probe probe;
    RecordingServer::Reply reply;
    QString outcome;
    QList<QByteArray> diagnostics; // the lines on standard output
    QByteArray target;             // what the server receives, under the service's root; null: nothing
    // Where the client is pointed: the recording server, or one with a certificate it does not trust
    // ("stranger"), a closed port ("refused"), or the recording server over plain "http".
    QString origin = u"trusted"_s;
    QString key = secretKey;
};

// What the server receives for a GET of `target` under the service's root: the request line and the key.
QList<QByteArray> get(const QByteArray &target, const QString &key = secretKey)
{
    return {"GET /api/v1/healthcare/" + target + " HTTP/1.1", "Authorization: Api-Key " + key.toUtf8()};
}

} // namespace

Q_DECLARE_METATYPE(Case)

// The client against a recording TLS server: the exact request it sends, and the outcome and diagnostic
// line it ends in for every answer and failure. The key never reaches the log.
class WireTest : public QObject
{
    Q_OBJECT

    static QList<QByteArray> sentLines(const RecordingServer &server)
    {
        QList<QByteArray> lines;
        for (const RecordingServer::Request &request : server.requests()) {
            lines << request.requestLine;
            for (const QByteArray &line : request.headerLines) {
                if (line.toLower().startsWith("authorization:"))
                    lines << line;
            }
        }
        return lines;
    }

private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(u"nutrika.http.debug=true"_s);
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context, const QString &message) {
            loggedMessages.append(QString::fromUtf8(context.category) + u' ' + message);
        });
    }

    void endsInTheDefinedOutcome_data()
    {
        QTest::addColumn<Case>("c");
        // Spaces as %20, reserved characters and UTF-8 escaped; "/" and "?" kept as the service expects.
        const Probe search =
            probe::make<requestFoodSearch>(FoodSearchQuery{u" crème & co=1"_s, 50, {}, u"a/b?"_s});
        const QByteArray searched =
            "/food?food_brand=&food_category=a/b?&limit=50&offset=50&search=%20cr%C3%A8me%20%26%20co%3D1";
        const Probe filters = probe::make<requestFilterOptions>(u"é"_s);
        const Probe nutrients =
            probe::make<requestNutrients>(FoodItem{u"x"_s, 41, 42, {}, false}, basePortionItem());
        const Probe accompanying = probe::make<requestAccompanyingFoods>(9040);
        const Probe picture = probe::make<requestPortionImage>(512);
        const QString page = u"page of 1: 1 generic, 0 branded"_s, error = u"Error"_s, none = u"none"_s;
        const QString connection = u"Connection Error"_s;
        const QList<QByteArray> serverError{"Error loading data"},
            noFilters{"Error loading brands/categories"};
        const QList<QByteArray> unreachable{"Unable to connect to server, try again later"};
        const RecordingServer::Reply html{200, "<html>Not found</html>"}, html404{404, html.body};
        const RecordingServer::Reply truncated{200, searchPage.left(40), searchPage.size()};
        QTest::newRow("search 200") << Case{search, {200, searchPage}, page, {}, searched};
        QTest::newRow("search 399 is no error") << Case{search, {399, searchPage}, page, {}, searched};
        QTest::newRow("search 400") << Case{search, {400, searchPage}, error, serverError, searched};
        QTest::newRow("search truncated") << Case{search, truncated, error, serverError, searched};
        QTest::newRow("search 10 MB")
            << Case{search, {200, QByteArray(10 << 20, '[')}, error, serverError, searched};
        QTest::newRow("search refused") << Case{search, {}, connection, unreachable, {}, u"refused"_s};
        QTest::newRow("search untrusted") << Case{search, {}, connection, unreachable, {}, u"stranger"_s};
        QTest::newRow("search plain http") << Case{search, {}, connection, unreachable, {}, u"http"_s};
        QTest::newRow("search key that would break the header") << Case{
            search, {}, connection, unreachable, {}, u"trusted"_s, secretKey + u"\r\nX-Injected: 1"_s};
        QTest::newRow("search empty key keeps the space")
            << Case{search, {200, searchPage}, page, {}, searched, u"trusted"_s, u""_s};
        const RecordingServer::Reply noOptions{200, R"({"brands":[],"categories":[]})"};
        const QByteArray filtered = "/food/brands_and_categories?limit=100&offset=0&search=%C3%A9";
        QTest::newRow("filters") << Case{filters, noOptions, u"records"_s, {}, filtered};
        QTest::newRow("filters untrusted") << Case{filters, {}, none, noFilters, {}, u"stranger"_s};
        QTest::newRow("portions 500")
            << Case{probe::make<requestPortions>(9040), {500, {}}, none, serverError, "/food/9040"};
        QTest::newRow("nutrients by _id, 404 is silent")
            << Case{nutrients, html404, none, {}, "/food/42/get_nutrients?amount_unit=grams&amount_value=23"};
        QTest::newRow("nutrients refused is silent") << Case{nutrients, {}, none, {}, {}, u"refused"_s};
        QTest::newRow("accompanying foods, 404 is silent")
            << Case{accompanying, {404, "[]"}, none, {}, "/food/9040/accompanying_food_items"};
        QTest::newRow("accompanying foods, key as UTF-8")
            << Case{accompanying, {200, "[]"}, u"records"_s, {}, "/food/9040/accompanying_food_items",
                    u"trusted"_s, u"clé"_s};
        const Probe thumbnail = probe::make<requestPortionThumbnail>(512);
        QTest::newRow("thumbnail, HTML is silent") << Case{
            thumbnail, html, none, {}, "/food_portion_images/512?width=200&height=200&type=thumbnail"};
        QTest::newRow("picture 404 is silent")
            << Case{picture, html404, none, {}, "/food_portion_images/512"};
        QTest::newRow("picture untrusted is silent") << Case{picture, {}, none, {}, {}, u"stranger"_s};
    }

    void endsInTheDefinedOutcome()
    {
        QFETCH(Case, c);
        RecordingServer server(c.origin == u"stranger" ? u"stranger.pem"_s : u"server.pem"_s);
        server.setReply(c.reply);
        QString origin = server.origin();
        if (c.origin == u"refused")
            server.close(); // nobody listens
        else if (c.origin == u"http")
            origin.replace(u"https:"_s, u"http:"_s);
        ServiceClient client;
        probe::pointAt(client, origin);
        client.setApiKey(c.key);
        loggedMessages.clear();

        StdoutCapture capture;
        QCOMPARE(c.probe(client), c.outcome);
        QCOMPARE(capture.lines(), c.diagnostics);
        QList<QByteArray> sent = c.target.isNull() ? QList<QByteArray>() : get(c.target, c.key);
        if (c.target.startsWith("/food_portion_images"))
            sent.removeLast(); // pictures go without the key
        QCOMPARE(sentLines(server), sent);
        QVERIFY(!loggedMessages.isEmpty());
        QVERIFY(!loggedMessages.join(u'\n').contains(secretKey));
    }

    void readsTheKeyForEachRequestAndAddsNoOtherHeader()
    {
        RecordingServer server;
        ServiceClient client;
        probe::pointAt(client, server.origin());
        for (const QString &key : {u"first"_s, u"second"_s}) {
            client.setApiKey(key);
            QVERIFY(!probe::make<requestPortions>(1)(client).isEmpty());
        }
        QVERIFY(!probe::make<requestPortionImage>(1)(client).isEmpty());
        QCOMPARE(sentLines(server), get("/food/1", u"first"_s) + get("/food/1", u"second"_s) +
                                        get("/food_portion_images/1").first(1));
        // Besides the key, a request for records carries what a picture request carries.
        QList<QByteArray> records = server.requests().at(1).headerLines;
        records.removeAll("Authorization: Api-Key second");
        QCOMPARE(records, server.requests().at(2).headerLines);
    }

    void dropsTheCompletionOfADestroyedContext()
    {
        RecordingServer server;
        ServiceClient client;
        probe::pointAt(client, server.origin());
        bool called = false;
        auto context = std::make_unique<QObject>();
        QSignalSpy finished(client.networkAccessManager(), &QNetworkAccessManager::finished);
        requestAccompanyingFoods(client, 9040, context.get(), [&called](const auto &) { called = true; });
        context.reset();
        QVERIFY(finished.wait(30000));
        QVERIFY(!called);
    }
};

QTEST_GUILESS_MAIN(WireTest)
#include "tst_wire.moc"
