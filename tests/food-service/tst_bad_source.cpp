// The import refuses damaged and hostile food data whole: a message naming the file and
// the problem, and the database left as it was, with no partial file beside it.
#include "FoodServiceProcess.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <zip.h>

namespace {

enum class BadSource
{
    CorruptJar,
    CutJar,
    TruncatedXml,
    EntityBomb,
    HugeFile,
    HugeMember,
};

const QByteArray banana = "<food uid=\"09040\" name=\"Bananas, raw\"><measure amount=\"1.0\" name=\"medium\" "
                          "grams=\"118.0\"/><nutrient amount=\"22.84\" name=\"Carbs\"/></food>";
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

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

// A jar of deflated members, written by libzip.
bool writeJar(const QString &path, const QList<QPair<QByteArray, QByteArray>> &members)
{
    int error = 0;
    zip_t *jar = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (jar == nullptr)
        return false;
    for (const auto &[name, content] : members) {
        zip_source_t *source = zip_source_buffer(jar, content.constData(), zip_uint64_t(content.size()), 0);
        const zip_int64_t index = zip_file_add(jar, name.constData(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0 || zip_set_file_compression(jar, zip_uint64_t(index), ZIP_CM_DEFLATE, 1) != 0) {
            zip_source_free(source);
            zip_discard(jar);
            return false;
        }
    }
    return zip_close(jar) == 0;
}

// Flips bytes inside the compressed data of the member, past its local header.
bool damageMember(const QString &jarPath, const QByteArray &member)
{
    QFile file(jarPath);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    QByteArray bytes = file.readAll();
    const qsizetype name = bytes.indexOf(member);
    const qsizetype header = name - 30;
    if (header < 0)
        return false;
    const auto extra = qsizetype(uchar(bytes[header + 28])) | qsizetype(uchar(bytes[header + 29])) << 8;
    const qsizetype data = name + member.size() + extra;
    for (qsizetype i = data + 4; i < data + 24 && i < bytes.size(); ++i)
        bytes[i] = char(~bytes[i]);
    return file.seek(0) && file.write(bytes) == bytes.size();
}

// Writes the bad source into `dir` and returns the path to import.
QString makeSource(BadSource kind, const QDir &dir)
{
    const QString folder = dir.filePath(QStringLiteral("source"));
    const QString jar = dir.filePath(QStringLiteral("data.jar"));
    dir.mkpath(QStringLiteral("source"));
    const bool goodFile = writeFile(folder + QStringLiteral("/09040.xml"), banana);
    switch (kind) {
    case BadSource::CorruptJar:
        return writeJar(jar, {{"sr/09040.xml", banana}, {"sr/09041.xml", banana.repeated(4)}}) &&
                       damageMember(jar, "sr/09041.xml")
                   ? jar
                   : QString();
    case BadSource::CutJar: {
        if (!writeJar(jar, {{"sr/09040.xml", banana}}))
            return {};
        QFile file(jar);
        return file.resize(file.size() * 2 / 3) ? jar : QString();
    }
    case BadSource::TruncatedXml:
        return goodFile && writeFile(folder + QStringLiteral("/cut.xml"), banana.left(banana.size() * 2 / 3))
                   ? folder
                   : QString();
    case BadSource::EntityBomb:
        return goodFile && writeFile(folder + QStringLiteral("/bomb.xml"), entityBomb()) ? folder : QString();
    case BadSource::HugeFile: {
        // Sparse: no disk is spent on it.
        QFile file(folder + QStringLiteral("/huge.xml"));
        return goodFile && file.open(QIODevice::WriteOnly) && file.resize(hugeSize) ? folder : QString();
    }
    case BadSource::HugeMember:
        return writeJar(jar, {{"sr/09040.xml", banana}, {"sr/huge.xml", QByteArray(hugeSize, ' ')}})
                   ? jar
                   : QString();
    }
    return {};
}

} // namespace

Q_DECLARE_METATYPE(BadSource)

class BadSourceTest : public QObject
{
    Q_OBJECT

private slots:
    void refusedWithoutWriting_data();
    void refusedWithoutWriting();
};

void BadSourceTest::refusedWithoutWriting_data()
{
    QTest::addColumn<BadSource>("kind");
    QTest::addColumn<QString>("message");

    QTest::newRow("corrupt jar member") << BadSource::CorruptJar << "data.jar: cannot read sr/09041.xml: ";
    QTest::newRow("jar cut short") << BadSource::CutJar << "data.jar is not a readable zip archive: ";
    QTest::newRow("truncated XML") << BadSource::TruncatedXml
                                   << "cut.xml: unterminated XML: the file ends early (truncated?)";
    QTest::newRow("entity bomb") << BadSource::EntityBomb << "bomb.xml: declares the entity \"e0\"";
    QTest::newRow("200 MB file") << BadSource::HugeFile << "huge.xml is 200 MB, too large for a food file";
    QTest::newRow("200 MB jar member")
        << BadSource::HugeMember << "data.jar: sr/huge.xml is 200 MB, too large for a food file";
}

void BadSourceTest::refusedWithoutWriting()
{
    QFETCH(BadSource, kind);
    QFETCH(QString, message);

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString source = makeSource(kind, QDir(dir.path()));
    QVERIFY(!source.isEmpty());
    const QString database = dir.filePath(QStringLiteral("foods.db"));
    QVERIFY(writeFile(database, "the database of an earlier import"));
    const QStringList before = QDir(dir.path()).entryList(QDir::Files | QDir::NoDotAndDotDot);

    QProcess import;
    import.start(FoodServiceProcess::serviceBinary(), {QStringLiteral("import"), QStringLiteral("--source"),
                                                       source, QStringLiteral("--db"), database});
    QVERIFY(import.waitForFinished(120000));
    QCOMPARE(import.exitStatus(), QProcess::NormalExit);
    QCOMPARE(import.exitCode(), 1);
    const QString error = QString::fromUtf8(import.readAllStandardError());
    QVERIFY2(error.contains(message), qPrintable(error));

    QFile kept(database);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("the database of an earlier import"));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::NoDotAndDotDot), before);
}

QTEST_GUILESS_MAIN(BadSourceTest)
#include "tst_bad_source.moc"
