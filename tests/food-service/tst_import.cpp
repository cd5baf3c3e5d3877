// The importer on a small fixture, checked through the served API, and the sources it refuses whole.
#include "FoodServiceProcess.h"
#include "ServiceClient.h"

#include <QDir>
#include <QJsonArray>
#include <QProcess>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <zip.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using Files = QList<QPair<QByteArray, QByteArray>>;

const QByteArray food = "/api/v1/healthcare//food";

const QByteArray banana =
    "<food uid=\"09040\" name=\"Bananas, raw\"><measure amount=\"1.0\" name=\"cup, mashed\" grams=\"225.0\"/>"
    "<measure amount=\"1.5\" name=\"extra small (less than 6&quot; long)\" grams=\"81.4\"/>"
    "<measure amount=\"1.0\" name=\"NLEA serving\" grams=\"126.0\"/>"
    "<measure amount=\"1.0\" name=\"slice, thin\" grams=\"0.3\"/>"
    "<nutrient amount=\"89.0\" name=\"Energy\"/><nutrient amount=\"22.84\" name=\"Carbs\"/>"
    "<nutrient amount=\"12.23\" name=\"Sugars\"/><nutrient amount=\"1.0\" name=\"Sodium\"/></food>";

const Files fixture = {
    {"sr/01077.xml",
     "<food uid=\"01077\" name=\"Milk, whole, 3.25% milkfat, with added vitamin D\" ccf=\"3.87\">"
     "<measure amount=\"1.0\" name=\"cup\" grams=\"244.0\"/><measure amount=\"1.0\" "
     "name=\"quart\" grams=\"976.0\"/><nutrient amount=\"61.0\" name=\"Energy\"/>"
     "<nutrient amount=\"4.8\" name=\"Carbs\"/><nutrient amount=\"43.0\" name=\"Sodium\"/></food>"},
    {"sr/08266.xml",
     "<food fcf=\"9.0\" uid=\"08266\" name=\"Cereals ready-to-eat, GENERAL MILLS, FROSTED "
     "WHEATIES\">\n<measure amount=\"0.75\" grams=\"30.0\" name=\"cup (1 NLEA serving)\"/>\n"
     "<nutrient amount=\"373.0\" name=\"Energy\"/><nutrient amount=\"85.4\" name=\"Carbs\"/></food>"},
    {"sr/09040.xml", banana},
    {"sr/21246.xml", "<food uid=\"21246\" name=\"WENDY'S, Chicken Nuggets\"><measure amount=\"5.0\" "
                     "name=\"pieces\" grams=\"75.4\"/><nutrient amount=\"326.0\" name=\"Energy\"/></food>"},
    {"sr/43546.xml", "<food uid=\"43546\" name=\"Babyfood, banana no tapioca, strained\"><nutrient "
                     "amount=\"91.0\" name=\"Energy\"/></food>"},
    {"sr/23567.xml", "<food uid=\"23567\" name=\"Beef, ground, 85% lean meat / 15% fat, raw\"/>"},
    {"sr/31003.xml",
     "<food uid=\"31003\" name=\"CAMPBELL Soup Company, V8 Vegetable Juice, Lemon Twist V8\"/>"},
    {"sr/11000.xml", "<?xml version=\"1.0\"?><!-- accents --><food uid=\"11000\" name=\"Cr&#232;me "
                     "br&#xFB;l&#233;e &amp; co\"/>"},
};

// How the files reach the importer.
enum class Form
{
    Folder,
    Jar,
    DamagedJar,
    CutJar
};

// A null content stands for 200 MB of blanks.
constexpr qint64 hugeSize = 200LL * 1024 * 1024;

// Billion laughs: ten entities, each ten of the one before.
QByteArray entityBomb()
{
    QByteArray xml = "<?xml version=\"1.0\"?>\n<!DOCTYPE food [\n<!ENTITY e0 \"laugh\">\n";
    for (int i = 1; i < 10; ++i)
        xml += "<!ENTITY e" + QByteArray::number(i) + " \"" +
               QByteArray("&e" + QByteArray::number(i - 1) + ";").repeated(10) + "\">\n";
    return xml + "]>\n<food uid=\"1\" name=\"&e9;\"/>\n";
}

// A jar of deflated members, written by libzip.
bool writeJar(const QString &path, const Files &members)
{
    int error = 0;
    zip_t *jar = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (jar == nullptr)
        return false;
    QByteArray blanks; // read when the jar is closed
    for (const auto &[name, content] : members) {
        if (content.isNull())
            blanks = QByteArray(hugeSize, ' ');
        const QByteArray &data = content.isNull() ? blanks : content;
        zip_source_t *source = zip_source_buffer(jar, data.constData(), zip_uint64_t(data.size()), 0);
        if (zip_file_add(jar, name.constData(), source, ZIP_FL_ENC_UTF_8) < 0) {
            zip_source_free(source);
            zip_discard(jar);
            return false;
        }
    }
    return zip_close(jar) == 0;
}

// Flips bytes inside the compressed data of the member: past its local header, 30 bytes, the name
// and an extra field whose length ends the 30 bytes.
bool damageMember(const QString &jarPath, const QByteArray &member)
{
    QFile file(jarPath);
    QByteArray bytes = file.open(QIODevice::ReadWrite) ? file.readAll() : QByteArray();
    const qsizetype name = bytes.indexOf(member);
    if (name < 30)
        return false;
    const qsizetype data = name + member.size() + uchar(bytes[name - 2]) + (uchar(bytes[name - 1]) << 8);
    for (qsizetype i = data + 4; i < data + 24 && i < bytes.size(); ++i)
        bytes[i] = char(~bytes[i]);
    return file.seek(0) && file.write(bytes) == bytes.size();
}

// Writes the files into `dir` in the given form and returns the path to import (a folder that
// does not exist when there are no files), or nothing.
QString writeSource(const QDir &dir, const Files &files, Form form)
{
    if (form == Form::Folder) {
        for (const auto &[name, content] : files) {
            QFile file(dir.filePath("source/" + QString::fromUtf8(name)));
            // Sparse: no disk is spent on the blanks.
            if (!dir.mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly) ||
                !(content.isNull() ? file.resize(hugeSize) : file.write(content) == content.size()))
                return {};
        }
        return dir.filePath(u"source"_s);
    }
    QFile jar(dir.filePath(u"data.jar"_s));
    if (!writeJar(jar.fileName(), files) ||
        (form == Form::DamagedJar && !damageMember(jar.fileName(), files.last().first)) ||
        (form == Form::CutJar && !jar.resize(jar.size() * 2 / 3)))
        return {};
    return jar.fileName();
}

// Runs the import to its end: its exit code (-1 for a crash), and what it printed.
QPair<int, QByteArray> runImport(const QString &source, const QString &database)
{
    QProcess import;
    import.start(FoodServiceProcess::serviceBinary(),
                 {u"import"_s, u"--source"_s, source, u"--db"_s, database});
    import.waitForFinished(120000);
    return {import.exitStatus() == QProcess::NormalExit ? import.exitCode() : -1,
            import.readAllStandardOutput() + import.readAllStandardError()};
}

} // namespace

class ImportTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<FoodServiceProcess> m_service;
    std::unique_ptr<ServiceClient> m_client;

private slots:
    void initTestCase()
    {
        const QString database = m_dir.filePath(u"foods.db"_s);
        const auto [code, output] =
            runImport(writeSource(QDir(m_dir.path()), fixture, Form::Folder), database);
        QCOMPARE(code, 0);
        QVERIFY2(output.startsWith("imported 8 foods, 8 portions, 2 accompanying foods\n"),
                 output.constData());
        m_service = std::make_unique<FoodServiceProcess>(database);
        QVERIFY2(m_service->isReady(), qPrintable(m_service->errorString()));
        m_client = std::make_unique<ServiceClient>(*m_service);
    }

    void foodsKeepBrandAndGroup_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<qint64>("id");
        QTest::addColumn<QString>("brand");
        QTest::addColumn<QString>("category");

        QTest::newRow("generic, leading zero dropped")
            << u"milk whole"_s << 1077LL << QString() << u"Dairy and Egg Products"_s;
        QTest::newRow("maker in the middle")
            << u"wheaties"_s << 8266LL << u"GENERAL MILLS"_s << u"Breakfast Cereals"_s;
        QTest::newRow("maker first") << u"nuggets"_s << 21246LL << u"WENDY'S"_s << u"Fast Foods"_s;
        QTest::newRow("group 43 by description") << u"babyfood"_s << 43546LL << QString() << u"Baby Foods"_s;
        QTest::newRow("group 23 by description") << u"beef"_s << 23567LL << QString() << u"Beef Products"_s;
        QTest::newRow("group 31 by description")
            << u"v8"_s << 31003LL << u"CAMPBELL"_s << u"Vegetables and Vegetable Products"_s;
        QTest::newRow("entities decoded, accents folded")
            << u"creme brulee"_s << 11000LL << QString() << u"Vegetables and Vegetable Products"_s;
    }

    void foodsKeepBrandAndGroup()
    {
        QFETCH(QString, search);
        QFETCH(qint64, id);
        QFETCH(QString, brand);
        QFETCH(QString, category);

        const QByteArray target = food + "?search=" + QUrl::toPercentEncoding(search);
        const QJsonValue first = m_client->get(target + "&limit=1").json()[u"results"][0];
        QCOMPARE(first[u"id"].toInteger(), id);
        QCOMPARE(first[u"food_brand"].toString(), brand);
        QCOMPARE(first[u"is_generic_item"].toInt(), brand.isEmpty() ? 1 : 0);
        const auto filtered = m_client->get(target + "&food_category=" + QUrl::toPercentEncoding(category));
        QCOMPARE(filtered.json()[u"count"].toInt(), 1);
    }

    void portionsFollowMeasures_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QStringList>("portions");

        // Ids follow the food's number and its measures' order; grams are rounded, but never to nothing.
        // Whole ones come first, then household measures, then servings.
        QTest::newRow("whole ones first")
            << 9040
            << QStringList{u"[1] 904002: 1 1/2 extra small (less than 6\" long), 81 g, default, pictured"_s,
                           u"[2] 904004: 1 slice, thin, 1 g, pictured"_s,
                           u"[3] 904001: 1 cup, mashed, 225 g, pictured"_s,
                           u"[4] 904003: 1 NLEA serving, 126 g"_s};
        QTest::newRow("amount as a fraction")
            << 8266 << QStringList{u"[1] 826601: 3/4 cup (1 NLEA serving), 30 g, default, pictured"_s};
        QTest::newRow("no measures") << 23567 << QStringList();
    }

    void portionsFollowMeasures()
    {
        QFETCH(int, id);
        QFETCH(QStringList, portions);

        const QJsonDocument reply = m_client->get(food + '/' + QByteArray::number(id)).json();
        QVERIFY(reply[u"portions"].isArray());
        QStringList served;
        for (const auto &portion : reply[u"portions"].toArray())
            served << describePortion(portion);
        QCOMPARE(served, portions);
    }

    // Per 100 g in the source, scaled to the amount; sodium as salt; what the source lacks is left
    // out rather than shown as zero.
    void nutrientsScaleWithAmount()
    {
        const QJsonDocument reply =
            m_client->get(food + "/9040/get_nutrients?amount_unit=grams&amount_value=150").json();
        QCOMPARE(describeNutrients(reply[u"macronutrients"]),
                 QStringList({u"Calories 133.5 calories"_s, u"Carbohydrates 34.26 grams"_s,
                              u"Total Sugars 18.345 grams"_s}));
        QCOMPARE(describeNutrients(reply[u"micronutrients"]),
                 QStringList({u"Salt 0.00375 grams"_s, u"Sodium 1.5 milligrams"_s}));
    }

    // Cereal with milk and banana; the pairing table's other offers are not in the fixture.
    void accompanimentsComeFromPairings()
    {
        QList<qint64> ids;
        for (const auto &accompaniment : m_client->get(food + "/8266/accompanying_food_items").json().array())
            ids << accompaniment[u"id"].toInteger();
        QCOMPARE(ids, QList<qint64>({1077, 9040}));
    }

    // Services starting at once in a fresh data folder make one local CA and trust it alike, and
    // stop cleanly on SIGTERM.
    void parallelStartsShareOneAuthority()
    {
        QTemporaryDir data;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, data.path());
        std::vector<std::unique_ptr<QProcess>> services(4);
        for (auto &service : services) {
            service = std::make_unique<QProcess>();
            service->setProcessEnvironment(environment);
            service->start(FoodServiceProcess::serviceBinary(),
                           {u"serve"_s, u"--db"_s, m_dir.filePath(u"foods.db"_s), u"--port"_s, u"0"_s,
                            u"--api-key"_s, u"k"_s});
        }
        static const QRegularExpression ready(u"^listening on https://127.0.0.1:(\\d+) ca=(.+)$"_s);
        QList<QRegularExpressionMatch> listening;
        for (const auto &service : services) {
            while (!service->canReadLine())
                QVERIFY2(service->waitForReadyRead(60000), service->readAllStandardError().constData());
            listening << ready.match(QString::fromUtf8(service->readLine()).trimmed());
            QVERIFY(listening.last().hasMatch());
        }
        // Each service's certificate comes from the one authority left on disk.
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.addCaCertificates(QSslCertificate::fromPath(listening.first().captured(2)));
        for (const auto &match : listening) {
            QCOMPARE(match.captured(2), listening.first().captured(2));
            QSslSocket socket;
            socket.setSslConfiguration(configuration);
            socket.connectToHostEncrypted(u"127.0.0.1"_s, match.captured(1).toUShort());
            QVERIFY2(socket.waitForEncrypted(60000), qPrintable(socket.errorString()));
        }
        for (const auto &service : services) {
            service->terminate();
            QVERIFY(service->waitForFinished(15000));
            QVERIFY(service->exitStatus() == QProcess::NormalExit && service->exitCode() == 0);
        }
    }

    // Damaged and hostile sources are refused whole: a message naming the file and the problem, and
    // an earlier database left as it was, with no partial file beside it.
    void badSourceIsRefused_data()
    {
        QTest::addColumn<Files>("files");
        QTest::addColumn<Form>("form");
        QTest::addColumn<QString>("message");

        const Files good = {{"sr/09040.xml", banana}};
        QTest::newRow("missing source") << Files() << Form::Folder << u"not found"_s;
        QTest::newRow("no foods") << Files{{"notes.xml", "<notes/>"}} << Form::Folder << u"no foods found"_s;
        QTest::newRow("uid not a number") << good + Files{{"a.xml", "<food uid=\"abc\" name=\"x\"/>"}}
                                          << Form::Folder << u"a.xml: food uid is not a food number"_s;
        QTest::newRow("weight not a number")
            << good + Files{{"b.xml", "<food uid=\"1\" name=\"x\"><measure amount=\"1\" name=\"cup\" "
                                      "grams=\"lots\"/></food>"}}
            << Form::Folder << u"b.xml: <measure> grams is not a number"_s;
        QTest::newRow("truncated XML")
            << good + Files{{"cut.xml", banana.left(banana.size() * 2 / 3)}} << Form::Folder
            << u"cut.xml: unterminated XML: the file ends early (truncated?)"_s;
        QTest::newRow("entity bomb") << good + Files{{"bomb.xml", entityBomb()}} << Form::Folder
                                     << u"bomb.xml: declares the entity \"e0\""_s;
        QTest::newRow("200 MB file") << good + Files{{"huge.xml", QByteArray()}} << Form::Folder
                                     << u"huge.xml is 200 MB, too large for a food file"_s;
        QTest::newRow("200 MB jar member") << good + Files{{"sr/huge.xml", QByteArray()}} << Form::Jar
                                           << u"data.jar: sr/huge.xml is 200 MB, too large for a food file"_s;
        QTest::newRow("damaged jar member") << good + Files{{"sr/09041.xml", banana.repeated(4)}}
                                            << Form::DamagedJar << u"data.jar: cannot read sr/09041.xml: "_s;
        QTest::newRow("jar cut short")
            << good << Form::CutJar << u"data.jar is not a readable zip archive: "_s;
    }

    void badSourceIsRefused()
    {
        QFETCH(Files, files);
        QFETCH(Form, form);
        QFETCH(QString, message);

        QTemporaryDir dir;
        const QString source = writeSource(QDir(dir.path()), files, form);
        QVERIFY(!source.isEmpty());
        QFile database(dir.filePath(u"foods.db"_s));
        QVERIFY(database.open(QIODevice::WriteOnly) && database.write("an earlier import") > 0);
        database.close();
        const QStringList before = QDir(dir.path()).entryList(QDir::Files | QDir::Hidden);

        const auto [code, output] = runImport(source, database.fileName());
        QCOMPARE(code, 1);
        QVERIFY2(output.contains(message.toUtf8()), output.constData());
        QVERIFY(database.open(QIODevice::ReadOnly));
        QCOMPARE(database.readAll(), "an earlier import");
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), before);
    }
};

QTEST_GUILESS_MAIN(ImportTest)
#include "tst_import.moc"
