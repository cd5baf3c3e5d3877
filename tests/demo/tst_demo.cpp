#include <csignal>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <sys/prctl.h>
#include <sys/wait.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString demo = QStringLiteral(NUTRIKA_DEMO);

// The processes whose parent is `parent`, from /proc.
QList<pid_t> childrenOf(pid_t parent)
{
    QList<pid_t> children;
    for (const QString &entry : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        bool isPid = false;
        const pid_t pid = entry.toInt(&isPid);
        QFile stat(u"/proc/%1/stat"_s.arg(entry));
        if (!isPid || !stat.open(QIODevice::ReadOnly))
            continue;
        // "pid (name) state ppid ...": the name may hold spaces and parentheses.
        const QByteArray line = stat.readAll();
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 1 && fields.at(1).toInt() == parent)
            children.append(pid);
    }
    return children;
}

// Reaps `pid`, which this process inherits as its subreaper; false if it still runs after the timeout.
bool reaped(pid_t pid, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    do {
        int status = 0;
        if (waitpid(pid, &status, WNOHANG) == pid)
            return true;
        QTest::qWait(20);
    } while (!deadline.hasExpired());
    return false;
}

// Starts the demo host and waits for the line that names its food data.
QString startDemo(QProcess &process, const QStringList &arguments)
{
    process.start(demo, arguments);
    if (!process.waitForStarted(30000))
        return {};
    const QDeadlineTimer deadline(60000);
    while (!process.canReadLine() && !deadline.hasExpired())
        process.waitForReadyRead(int(deadline.remainingTime()));
    return QString::fromUtf8(process.readLine()).trimmed();
}

} // namespace

class DemoTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The demo's service, orphaned when the demo dies, becomes this process's child to reap.
        QCOMPARE(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    }

    void helpNamesTheProgramAndItsOptions()
    {
        QProcess process;
        process.start(demo, {u"--help"_s});
        QVERIFY(process.waitForFinished(30000));
        QCOMPARE(process.exitCode(), 0);
        const QString help = QString::fromUtf8(process.readAllStandardOutput());
        QVERIFY2(help.startsWith(u"Usage: "_s + demo + u" [options]"_s), qPrintable(help));
        for (const QString &option :
             {u"--service-origin <URL>"_s, u"--api-key <KEY>"_s, u"--ca-cert <FILE>"_s,
              u"--preview <screen>"_s, u"--screenshot <file.png>"_s})
            QVERIFY2(help.contains(option), qPrintable(option));
    }

    void rejectsBadArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("plain http") << QStringList{u"--service-origin"_s, u"http://food.example.org"_s}
                                    << u"--service-origin needs an https origin"_s;
        QTest::newRow("origin with a path")
            << QStringList{u"--service-origin"_s, u"https://food.example.org/api"_s}
            << u"--service-origin needs an https origin"_s;
        QTest::newRow("empty key") << QStringList{u"--api-key="_s} << u"--api-key needs a key"_s;
        QTest::newRow("not PEM") << QStringList{u"--ca-cert"_s, demo} << u"holds no PEM certificate"_s;
        QTest::newRow("unknown option") << QStringList{u"--origin"_s} << u"Unknown option 'origin'"_s;
        QTest::newRow("size without a height") << QStringList{u"--size"_s, u"1000"_s} << u"--size needs"_s;
        QTest::newRow("unknown preview") << QStringList{u"--preview"_s, u"nothing"_s} << u"no preview of"_s;
    }

    void rejectsBadArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        QProcess process;
        process.start(demo, arguments);
        QVERIFY(process.waitForFinished(30000));
        QVERIFY(process.exitCode() != 0);
        const QString errors = QString::fromUtf8(process.readAllStandardError());
        QVERIFY2(errors.contains(message), qPrintable(errors));
    }

    void opensAgainstAnotherService()
    {
        QProcess process;
        const QString line =
            startDemo(process, {u"--service-origin"_s, u"https://127.0.0.1:9/"_s, u"--api-key"_s, u"k"_s,
                                u"--ca-cert"_s, NUTRIKA_TEST_TLS_DIR "/ca.pem"_L1});
        QCOMPARE(line, u"nutrika-demo: food data from https://127.0.0.1:9"_s);
        QVERIFY(childrenOf(pid_t(process.processId())).isEmpty()); // no bundled service
        process.terminate();
        QVERIFY(process.waitForFinished(30000));
    }

    void theServiceStopsWithTheDemo_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGKILL") << SIGKILL;
    }

    void theServiceStopsWithTheDemo()
    {
        QFETCH(int, signal);
        QProcess process;
        QVERIFY(startDemo(process, {}).startsWith(u"nutrika-demo: food data from https://127.0.0.1:"_s));
        const QList<pid_t> services = childrenOf(pid_t(process.processId()));
        QCOMPARE(services.size(), 1);

        QCOMPARE(kill(pid_t(process.processId()), signal), 0);
        QVERIFY(process.waitForFinished(30000));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        const bool stopped = reaped(services.first(), 15000);
        if (!stopped) {
            kill(services.first(), SIGKILL);
            reaped(services.first(), 15000);
        }
        QVERIFY2(stopped, "the food-data service outlived the demo");
    }
};

QTEST_GUILESS_MAIN(DemoTest)
#include "tst_demo.moc"
