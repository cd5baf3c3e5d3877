#include "AccompanyingFoodsRequest.h"
#include "RecordingServer.h"
#include "ServiceProbes.h"
#include "StdoutCapture.h"

#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString secretKey = u"sekret-KEY-4711"_s;
QStringList loggedMessages;

void recordMessage(QtMsgType, const QMessageLogContext &context, const QString &message)
{
    loggedMessages.append(QString::fromUtf8(context.category) + u' ' + message);
}

const QByteArray searchPage = R"({"count":1,"results":[
    {"id":9040,"description":"Bananas, raw","food_brand":"","is_generic_item":1}]})";

} // namespace

class FaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(u"nutrika.http.debug=true"_s);
        qInstallMessageHandler(recordMessage);
    }

    void init()
    {
        loggedMessages.clear();
        m_client = std::make_unique<ServiceClient>();
        m_client->setApiKey(secretKey);
    }

    void endsInTheDefinedOutcome_data()
    {
        QTest::addColumn<Probe>("probe");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<qint64>("announcedLength");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<QList<QByteArray>>("diagnostics");

        const Probe search = probe::foodSearch({u"banana"_s, 0, QString(), QString()});
        const QList<QByteArray> serverError{"Error loading data"};
        const QByteArray html = "<html><body>Not found</body></html>";
        QTest::newRow("search 200") << search << 200 << searchPage << -1LL
                                    << u"page of 1: 1 generic, 0 branded"_s << QList<QByteArray>();
        QTest::newRow("search 399") << search << 399 << searchPage << -1LL
                                    << u"page of 1: 1 generic, 0 branded"_s << QList<QByteArray>();
        QTest::newRow("search 400") << search << 400 << searchPage << -1LL << u"Error"_s << serverError;
        QTest::newRow("search 404") << search << 404 << html << -1LL << u"Error"_s << serverError;
        QTest::newRow("search 500") << search << 500 << QByteArray() << -1LL << u"Error"_s << serverError;
        QTest::newRow("search not JSON") << search << 200 << html << -1LL << u"Error"_s << serverError;
        QTest::newRow("search truncated")
            << search << 200 << searchPage.left(40) << qint64(searchPage.size()) << u"Error"_s << serverError;
        QTest::newRow("search empty") << search << 200 << QByteArray() << -1LL << u"Error"_s << serverError;
        QTest::newRow("search 10 MB")
            << search << 200 << QByteArray(10 << 20, '[') << -1LL << u"Error"_s << serverError;
        QTest::newRow("filters 500") << probe::filterOptions(u"a"_s) << 500 << QByteArray() << -1LL
                                     << u"none"_s << QList<QByteArray>{"Error loading brands/categories"};
        QTest::newRow("filters not JSON") << probe::filterOptions(u"a"_s) << 200 << html << -1LL << u"none"_s
                                          << QList<QByteArray>{"Error loading brands/categories"};
        QTest::newRow("portions 500")
            << probe::portions(1) << 500 << QByteArray() << -1LL << u"none"_s << serverError;
        QTest::newRow("portions truncated") << probe::portions(1) << 200 << QByteArray(R"({"portions":[)")
                                            << 400LL << u"none"_s << serverError;
        QTest::newRow("nutrients 404 is silent") << probe::nutrients({}, basePortionItem()) << 404 << html
                                                 << -1LL << u"none"_s << QList<QByteArray>();
        QTest::newRow("nutrients empty is silent")
            << probe::nutrients({}, basePortionItem()) << 200 << QByteArray() << -1LL << u"none"_s
            << QList<QByteArray>();
        QTest::newRow("accompanying 404 is silent") << probe::accompanyingFoods(1) << 404 << QByteArray("[]")
                                                    << -1LL << u"none"_s << QList<QByteArray>();
        QTest::newRow("thumbnail answered with HTML")
            << probe::thumbnail(1) << 200 << html << -1LL << u"none"_s << QList<QByteArray>();
        QTest::newRow("picture 404 with HTML")
            << probe::picture(1) << 404 << html << -1LL << u"none"_s << QList<QByteArray>();
    }

    void endsInTheDefinedOutcome()
    {
        QFETCH(Probe, probe);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(qint64, announcedLength);
        QFETCH(QString, outcome);
        QFETCH(QList<QByteArray>, diagnostics);
        RecordingServer server;
        server.setReply({status, body, "text/html", announcedLength});
        probe::pointAt(*m_client, server.origin());

        StdoutCapture capture;
        QCOMPARE(probe::run(*m_client, probe), outcome);
        QCOMPARE(capture.lines(), diagnostics);
        QVERIFY(!loggedMessages.isEmpty());
        QVERIFY(!loggedMessages.join(u'\n').contains(secretKey));
    }

    void reportsConnectionFailures_data()
    {
        QTest::addColumn<Probe>("probe");
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<QList<QByteArray>>("diagnostics");

        const Probe search = probe::foodSearch({u"banana"_s, 0, QString(), QString()});
        const QList<QByteArray> unreachable{"Unable to connect to server, try again later"};
        QTest::newRow("search, refused") << search << u"refused"_s << u"Connection Error"_s << unreachable;
        QTest::newRow("search, untrusted certificate")
            << search << u"stranger"_s << u"Connection Error"_s << unreachable;
        QTest::newRow("search, plain http origin")
            << search << u"http"_s << u"Connection Error"_s << unreachable;
        QTest::newRow("portions, refused") << probe::portions(1) << u"refused"_s << u"none"_s << unreachable;
        QTest::newRow("filters, untrusted") << probe::filterOptions(u"a"_s) << u"stranger"_s << u"none"_s
                                            << QList<QByteArray>{"Error loading brands/categories"};
        QTest::newRow("nutrients, refused")
            << probe::nutrients({}, basePortionItem()) << u"refused"_s << u"none"_s << QList<QByteArray>();
        QTest::newRow("picture, untrusted")
            << probe::picture(1) << u"stranger"_s << u"none"_s << QList<QByteArray>();
    }

    void reportsConnectionFailures()
    {
        QFETCH(Probe, probe);
        QFETCH(QString, origin);
        QFETCH(QString, outcome);
        QFETCH(QList<QByteArray>, diagnostics);
        RecordingServer stranger(u"stranger.pem"_s);
        stranger.setReply({200, searchPage});
        QString url = stranger.origin();
        if (origin == u"refused") {
            QTcpServer closed;
            QVERIFY(closed.listen(QHostAddress::LocalHost, 0));
            url = u"https://127.0.0.1:%1"_s.arg(closed.serverPort());
            closed.close();
        } else if (origin == u"http") {
            url.replace(u"https:"_s, u"http:"_s);
        }
        probe::pointAt(*m_client, url);

        StdoutCapture capture;
        QCOMPARE(probe::run(*m_client, probe), outcome);
        QCOMPARE(capture.lines(), diagnostics);
        QVERIFY(!loggedMessages.isEmpty());
        QVERIFY(!loggedMessages.join(u'\n').contains(secretKey));
    }

    void refusesAKeyThatWouldBreakTheHeader()
    {
        RecordingServer server;
        server.setReply({200, searchPage});
        probe::pointAt(*m_client, server.origin());
        m_client->setApiKey(secretKey + u"\r\nX-Injected: 1"_s);
        StdoutCapture capture;
        const QString outcome =
            probe::run(*m_client, probe::foodSearch({u"banana"_s, 0, QString(), QString()}));
        QCOMPARE(outcome, u"Connection Error"_s);
        QCOMPARE(capture.lines(), QList<QByteArray>{"Unable to connect to server, try again later"});
        QVERIFY(server.requests().isEmpty());
        QVERIFY(!loggedMessages.join(u'\n').contains(secretKey));
    }

    void dropsTheCompletionOfADestroyedContext()
    {
        RecordingServer server;
        server.setReply({200, searchPage});
        probe::pointAt(*m_client, server.origin());
        bool called = false;
        auto context = std::make_unique<QObject>();
        QSignalSpy finished(m_client->networkAccessManager(), &QNetworkAccessManager::finished);
        requestAccompanyingFoods(*m_client, 9040, context.get(), [&called](const auto &) { called = true; });
        context.reset();
        QVERIFY(finished.wait(30000));
        QVERIFY(!called);
    }

private:
    std::unique_ptr<ServiceClient> m_client;
};

QTEST_GUILESS_MAIN(FaultsTest)
#include "tst_faults.moc"
