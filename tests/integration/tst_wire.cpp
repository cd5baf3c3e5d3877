#include "RecordingServer.h"
#include "ServiceProbes.h"

#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

class WireTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_server = std::make_unique<RecordingServer>();
        m_server->setReply({200, "{}"});
        m_client = std::make_unique<ServiceClient>();
        probe::pointAt(*m_client, m_server->origin());
        m_client->setApiKey(u"test-key"_s);
    }

    void sendsExactRequestLines_data()
    {
        QTest::addColumn<Probe>("probe");
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<bool>("authorized");
        QTest::newRow("search") << probe::foodSearch({u" crème & co=1"_s, 50, QString(), u"Fruits/Juices?"_s})
                                << QByteArray(
                                       "/api/v1/healthcare//food?food_brand=&food_category=Fruits/Juices?"
                                       "&limit=50&offset=50&search=%20cr%C3%A8me%20%26%20co%3D1")
                                << true;
        QTest::newRow("filter options") << probe::filterOptions(u"é"_s)
                                        << QByteArray("/api/v1/healthcare//food/brands_and_categories"
                                                      "?limit=100&offset=0&search=%C3%A9")
                                        << true;
        QTest::newRow("portions") << probe::portions(9040) << QByteArray("/api/v1/healthcare//food/9040")
                                  << true;
        FoodItem food{u"x"_s, 41, 42, QString(), false};
        PortionItem portion = basePortionItem();
        portion.size = 30;
        QTest::newRow("nutrients by _id") << probe::nutrients(food, portion)
                                          << QByteArray("/api/v1/healthcare//food/42/get_nutrients"
                                                        "?amount_unit=grams&amount_value=30")
                                          << true;
        QTest::newRow("accompanying foods")
            << probe::accompanyingFoods(9040)
            << QByteArray("/api/v1/healthcare//food/9040/accompanying_food_items") << true;
        QTest::newRow("thumbnail") << probe::thumbnail(512)
                                   << QByteArray("/api/v1/healthcare//food_portion_images/512"
                                                 "?width=200&height=200&type=thumbnail")
                                   << false;
        QTest::newRow("picture") << probe::picture(512)
                                 << QByteArray("/api/v1/healthcare//food_portion_images/512") << false;
    }

    void sendsExactRequestLines()
    {
        QFETCH(Probe, probe);
        QFETCH(QByteArray, target);
        QFETCH(bool, authorized);
        QVERIFY(!probe::run(*m_client, probe).isEmpty());
        QCOMPARE(m_server->requests().size(), 1);
        const RecordingServer::Request &request = m_server->requests().constFirst();
        QCOMPARE(request.requestLine, "GET " + target + " HTTP/1.1");
        QCOMPARE(request.header("Authorization"), authorized ? QByteArray("Api-Key test-key") : QByteArray());
    }

    void addsOnlyTheAuthorizationHeader()
    {
        QVERIFY(!probe::run(*m_client, probe::portions(1)).isEmpty());
        QVERIFY(!probe::run(*m_client, probe::picture(1)).isEmpty());
        QList<QByteArray> json = m_server->requests().at(0).headerNames();
        const QList<QByteArray> raw = m_server->requests().at(1).headerNames();
        json.removeAll("authorization");
        QCOMPARE(json, raw);
    }

    void readsTheKeyForEachRequest_data()
    {
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QList<QByteArray>>("lines");
        QTest::newRow("replaced between requests")
            << QStringList{u"first"_s, u"second"_s}
            << QList<QByteArray>{"Authorization: Api-Key first", "Authorization: Api-Key second"};
        QTest::newRow("empty key keeps the space")
            << QStringList{QString()} << QList<QByteArray>{"Authorization: Api-Key "};
        QTest::newRow("non-ASCII key as UTF-8")
            << QStringList{u"clé"_s} << QList<QByteArray>{"Authorization: Api-Key cl\xC3\xA9"};
    }

    void readsTheKeyForEachRequest()
    {
        QFETCH(QStringList, keys);
        QFETCH(QList<QByteArray>, lines);
        for (const QString &key : keys) {
            m_client->setApiKey(key);
            QVERIFY(!probe::run(*m_client, probe::accompanyingFoods(1)).isEmpty());
        }
        QList<QByteArray> sent;
        for (const RecordingServer::Request &request : m_server->requests()) {
            for (const QByteArray &line : request.headerLines) {
                if (line.toLower().startsWith("authorization:"))
                    sent.append(line);
            }
        }
        QCOMPARE(sent, lines);
    }

private:
    std::unique_ptr<RecordingServer> m_server;
    std::unique_ptr<ServiceClient> m_client;
};

QTEST_GUILESS_MAIN(WireTest)
#include "tst_wire.moc"
