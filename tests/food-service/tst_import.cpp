// The importer on a small fixture, checked through the served API.
#include "FoodServiceProcess.h"
#include "ServiceClient.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QMap<QString, QByteArray> fixtureFoods = {
    {"01077", "<food uid=\"01077\" name=\"Milk, whole, 3.25% milkfat, with added vitamin D\" ccf=\"3.87\">"
              "<measure amount=\"1.0\" name=\"cup\" grams=\"244.0\"/><measure amount=\"1.0\" name=\"quart\" "
              "grams=\"976.0\"/>"
              "<nutrient amount=\"61.0\" name=\"Energy\"/><nutrient amount=\"4.8\" name=\"Carbs\"/>"
              "<nutrient amount=\"43.0\" name=\"Sodium\"/></food>"},
    {"08266",
     "<food fcf=\"9.0\" uid=\"08266\" name=\"Cereals ready-to-eat, GENERAL MILLS, FROSTED WHEATIES\">"
     "\n"
     "<measure amount=\"0.75\" grams=\"30.0\" name=\"cup (1 NLEA serving)\"/>"
     "\n"
     "<nutrient amount=\"373.0\" name=\"Energy\"/><nutrient amount=\"85.4\" name=\"Carbs\"/></food>"},
    {"09040",
     "<food uid=\"09040\" name=\"Bananas, raw\"><measure amount=\"1.0\" name=\"cup, mashed\" "
     "grams=\"225.0\"/>"
     "<measure amount=\"1.5\" name=\"extra small (less than 6&quot; long)\" grams=\"81.4\"/>"
     "<measure amount=\"1.0\" name=\"NLEA serving\" grams=\"126.0\"/>"
     "<measure amount=\"1.0\" name=\"slice, thin\" grams=\"0.3\"/>"
     "<nutrient amount=\"89.0\" name=\"Energy\"/><nutrient amount=\"22.84\" name=\"Carbs\"/>"
     "<nutrient amount=\"12.23\" name=\"Sugars\"/><nutrient amount=\"1.0\" name=\"Sodium\"/></food>"},
    {"21246", "<food uid=\"21246\" name=\"WENDY'S, Chicken Nuggets\"><measure amount=\"5.0\" name=\"pieces\" "
              "grams=\"75.4\"/>"
              "<nutrient amount=\"326.0\" name=\"Energy\"/></food>"},
    {"43546", "<food uid=\"43546\" name=\"Babyfood, banana no tapioca, strained\"><nutrient amount=\"91.0\" "
              "name=\"Energy\"/></food>"},
    {"23567", "<food uid=\"23567\" name=\"Beef, ground, 85% lean meat / 15% fat, raw\"/>"},
    {"31003", "<food uid=\"31003\" name=\"CAMPBELL Soup Company, V8 Vegetable Juice, Lemon Twist V8\"/>"},
    {"11000", "<?xml version=\"1.0\"?><!-- accents --><food uid=\"11000\" name=\"Cr&#232;me br&#xFB;l&#233;e "
              "&amp; co\"/>"},
};

} // namespace

class ImportTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void foodsKeepBrandAndGroup_data();
    void foodsKeepBrandAndGroup();
    void portionsFollowMeasures();
    void nutrientsScaleWithAmount();
    void accompanimentsComeFromPairings();
    void parallelStartsShareOneAuthority();
    void rejectsBadSource_data();
    void rejectsBadSource();

private:
    static QProcess *runImport(const QString &source, const QString &database);
    QJsonObject firstFood(const QString &search);

    QTemporaryDir m_dir;
    std::unique_ptr<FoodServiceProcess> m_service;
    std::unique_ptr<ServiceClient> m_client;
};

QProcess *ImportTest::runImport(const QString &source, const QString &database)
{
    auto *process = new QProcess;
    process->start(FoodServiceProcess::serviceBinary(), {QStringLiteral("import"), QStringLiteral("--source"),
                                                         source, QStringLiteral("--db"), database});
    process->waitForFinished(60000);
    return process;
}

void ImportTest::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QDir(m_dir.path()).mkpath(QStringLiteral("source/sr"));
    for (auto it = fixtureFoods.begin(); it != fixtureFoods.end(); ++it) {
        QFile file(m_dir.filePath(QStringLiteral("source/sr/%1.xml").arg(it.key())));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(it.value());
    }
    const QString database = m_dir.filePath(QStringLiteral("foods.db"));
    const std::unique_ptr<QProcess> import(runImport(m_dir.filePath(QStringLiteral("source")), database));
    QCOMPARE(import->exitCode(), 0);
    QVERIFY(import->readAllStandardOutput().startsWith("imported 8 foods"));

    m_service = std::make_unique<FoodServiceProcess>(database);
    QVERIFY2(m_service->isReady(), qPrintable(m_service->errorString()));
    m_client = std::make_unique<ServiceClient>(*m_service);
}

QJsonObject ImportTest::firstFood(const QString &search)
{
    const auto reply =
        m_client->get("/api/v1/healthcare//food?limit=1&search=" + QUrl::toPercentEncoding(search));
    const auto results = reply.json().object().value(QStringLiteral("results")).toArray();
    return results.isEmpty() ? QJsonObject() : results.first().toObject();
}

void ImportTest::foodsKeepBrandAndGroup_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("brand");
    QTest::addColumn<QString>("category");

    QTest::newRow("generic, leading zero dropped") << "milk whole" << 1077 << ""
                                                   << "Dairy and Egg Products";
    QTest::newRow("maker in the middle") << "wheaties" << 8266 << "GENERAL MILLS"
                                         << "Breakfast Cereals";
    QTest::newRow("maker first") << "nuggets" << 21246 << "WENDY'S"
                                 << "Fast Foods";
    QTest::newRow("group 43 by description") << "babyfood" << 43546 << ""
                                             << "Baby Foods";
    QTest::newRow("group 23 by description") << "beef" << 23567 << ""
                                             << "Beef Products";
    QTest::newRow("group 31 by description") << "v8" << 31003 << "CAMPBELL"
                                             << "Vegetables and Vegetable Products";
    QTest::newRow("entities decoded, accents folded") << "creme brulee" << 11000 << ""
                                                      << "Vegetables and Vegetable Products";
}

void ImportTest::foodsKeepBrandAndGroup()
{
    QFETCH(QString, search);
    QFETCH(int, id);
    QFETCH(QString, brand);
    QFETCH(QString, category);

    const QJsonObject food = firstFood(search);
    QCOMPARE(food.value(QStringLiteral("id")).toInt(), id);
    QCOMPARE(food.value(QStringLiteral("food_brand")).toString(), brand);
    QCOMPARE(food.value(QStringLiteral("is_generic_item")).toInt(), brand.isEmpty() ? 1 : 0);
    const auto filtered = m_client->get("/api/v1/healthcare//food?search=" + QUrl::toPercentEncoding(search) +
                                        "&food_category=" + QUrl::toPercentEncoding(category));
    QCOMPARE(filtered.json().object().value(QStringLiteral("count")).toInt(), 1);
}

void ImportTest::portionsFollowMeasures()
{
    const auto portions = m_client->get("/api/v1/healthcare//food/9040")
                              .json()
                              .object()
                              .value(QStringLiteral("portions"))
                              .toArray();
    QCOMPARE(portions.size(), 4);
    struct Expected
    {
        int id;
        int size;
        const char *description;
        bool pictured;
    };
    const Expected expected[] = {{904001, 225, "1 cup, mashed", true},
                                 {904002, 81, "1 1/2 extra small (less than 6\" long)", true},
                                 {904003, 126, "1 NLEA serving", false},
                                 {904004, 1, "1 slice, thin", true}};
    for (int i = 0; i < portions.size(); ++i) {
        const QJsonObject portion = portions.at(i).toObject();
        QCOMPARE(portion.value(QStringLiteral("id")).toInt(), expected[i].id);
        QCOMPARE(portion.value(QStringLiteral("order_num")).toInt(), i + 1);
        QCOMPARE(portion.value(QStringLiteral("size")).toInt(), expected[i].size);
        QCOMPARE(portion.value(QStringLiteral("description")).toString(),
                 QString::fromUtf8(expected[i].description));
        QCOMPARE(portion.value(QStringLiteral("is_default")).toBool(), i == 0);
        QCOMPARE(!portion.value(QStringLiteral("image_name")).toString().isEmpty(), expected[i].pictured);
    }
    const auto cereal = m_client->get("/api/v1/healthcare//food/8266")
                            .json()
                            .object()
                            .value(QStringLiteral("portions"))
                            .toArray();
    QCOMPARE(cereal.first().toObject().value(QStringLiteral("description")).toString(),
             QStringLiteral("3/4 cup (1 NLEA serving)"));
    const auto none =
        m_client->get("/api/v1/healthcare//food/23567").json().object().value(QStringLiteral("portions"));
    QVERIFY(none.isArray() && none.toArray().isEmpty());
}

void ImportTest::nutrientsScaleWithAmount()
{
    const auto reply =
        m_client->get("/api/v1/healthcare//food/9040/get_nutrients?amount_unit=grams&amount_value=150");
    QCOMPARE(reply.status, 200);
    const QJsonObject body = reply.json().object();
    QStringList macros;
    for (const auto &element : body.value(QStringLiteral("macronutrients")).toArray()) {
        const QJsonObject nutrient = element.toObject();
        macros
            << nutrient.value(QStringLiteral("nutrient")).toObject().value(QStringLiteral("name")).toString();
        if (macros.last() == QLatin1String("Carbohydrates"))
            QCOMPARE(
                nutrient.value(QStringLiteral("amount")).toObject().value(QStringLiteral("value")).toDouble(),
                22.84 * 150 / 100);
    }
    // Absent in the source, so absent in the reply rather than zero.
    QCOMPARE(macros, QStringList({"Calories", "Carbohydrates", "Total Sugars"}));
    const QJsonObject salt = body.value(QStringLiteral("micronutrients")).toArray().first().toObject();
    QCOMPARE(salt.value(QStringLiteral("nutrient")).toObject().value(QStringLiteral("name")).toString(),
             QStringLiteral("Salt"));
    QCOMPARE(salt.value(QStringLiteral("amount")).toObject().value(QStringLiteral("value")).toDouble(),
             1.0 * 2.5 / 1000 * 150 / 100);
    QCOMPARE(salt.value(QStringLiteral("amount")).toObject().value(QStringLiteral("units")).toString(),
             QStringLiteral("grams"));
}

void ImportTest::accompanimentsComeFromPairings()
{
    // Cereal with milk and banana; the pairing table's other offers are not in the fixture.
    const auto cereal = m_client->get("/api/v1/healthcare//food/8266/accompanying_food_items").json().array();
    QList<int> ids;
    for (const auto &food : cereal)
        ids << food.toObject().value(QStringLiteral("id")).toInt();
    QCOMPARE(ids, QList<int>({1077, 9040}));
}

void ImportTest::parallelStartsShareOneAuthority()
{
    // Several services making the local CA at once must agree on one.
    QTemporaryDir data;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), data.path());
    std::vector<std::unique_ptr<QProcess>> services;
    for (int i = 0; i < 4; ++i) {
        services.push_back(std::make_unique<QProcess>());
        services.back()->setProcessEnvironment(environment);
        services.back()->start(FoodServiceProcess::serviceBinary(),
                               {QStringLiteral("serve"), QStringLiteral("--db"),
                                m_dir.filePath(QStringLiteral("foods.db")), QStringLiteral("--port"),
                                QStringLiteral("0"), QStringLiteral("--api-key"), QStringLiteral("k")});
    }
    static const QRegularExpression ready(QStringLiteral("^listening on https://127.0.0.1:(\\d+) ca=(.+)$"));
    QSet<QString> authorities;
    for (const auto &service : services) {
        while (!service->canReadLine())
            QVERIFY2(service->waitForReadyRead(60000), service->readAllStandardError().constData());
        const auto match = ready.match(QString::fromUtf8(service->readLine()).trimmed());
        QVERIFY(match.hasMatch());
        authorities.insert(match.captured(2));
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.addCaCertificates(QSslCertificate::fromPath(match.captured(2)));
        QSslSocket socket;
        socket.setSslConfiguration(configuration);
        socket.connectToHostEncrypted(QStringLiteral("127.0.0.1"), match.captured(1).toUShort());
        QVERIFY2(socket.waitForEncrypted(60000), qPrintable(socket.errorString()));
    }
    QCOMPARE(authorities.size(), 1);
    for (const auto &service : services) {
        service->terminate();
        QVERIFY(service->waitForFinished(15000));
        QCOMPARE(service->exitCode(), 0);
    }
}

void ImportTest::rejectsBadSource_data()
{
    QTest::addColumn<QByteArray>("fileName");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("message");

    QTest::newRow("missing source") << QByteArray() << QByteArray() << QByteArray("not found");
    QTest::newRow("no foods") << QByteArray("notes.xml") << QByteArray("<notes/>")
                              << QByteArray("no foods found");
    QTest::newRow("uid not a number") << QByteArray("a.xml") << QByteArray("<food uid=\"abc\" name=\"x\"/>")
                                      << QByteArray("a.xml: food uid is not a food number");
    QTest::newRow("weight not a number")
        << QByteArray("b.xml")
        << QByteArray("<food uid=\"1\" name=\"x\"><measure amount=\"1\" name=\"cup\" grams=\"lots\"/></food>")
        << QByteArray("grams is not a number");
    QTest::newRow("unterminated tag")
        << QByteArray("c.xml") << QByteArray("<food uid=\"1\" name=\"x") << QByteArray("c.xml: unterminated");
    QTest::newRow("archive that is no zip")
        << QByteArray("data.jar") << QByteArray("PK not really") << QByteArray("not a readable zip archive");
}

void ImportTest::rejectsBadSource()
{
    QFETCH(QByteArray, fileName);
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, message);

    QTemporaryDir dir;
    QString source = dir.filePath(QStringLiteral("absent"));
    if (!fileName.isEmpty()) {
        QFile file(dir.filePath(QString::fromUtf8(fileName)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        source = fileName.endsWith(".jar") ? file.fileName() : dir.path();
    }
    const QString database = dir.filePath(QStringLiteral("foods.db"));
    const std::unique_ptr<QProcess> import(runImport(source, database));
    QCOMPARE(import->exitStatus(), QProcess::NormalExit);
    QCOMPARE(import->exitCode(), 1);
    const QByteArray error = import->readAllStandardError();
    QVERIFY2(error.contains(message), error.constData());
    QVERIFY(!QFile::exists(database));
}

QTEST_GUILESS_MAIN(ImportTest)
#include "tst_import.moc"
