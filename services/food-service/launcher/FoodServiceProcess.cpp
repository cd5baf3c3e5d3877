#include "FoodServiceProcess.h"

#include <csignal>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSslCertificate>
#include <sys/prctl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// Generous, for sanitizer builds on a busy machine.
constexpr int startTimeoutMs = 60000;
constexpr int stopTimeoutMs = 15000;

} // namespace

FoodServiceProcess::FoodServiceProcess(const QString &databasePath, const QString &apiKey,
                                       const QString &program)
    : m_apiKey(apiKey)
{
    start(program, databasePath);
    if (!isReady() && m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(stopTimeoutMs);
    }
}

FoodServiceProcess::~FoodServiceProcess()
{
    stop();
}

void FoodServiceProcess::start(const QString &program, const QString &databasePath)
{
    if (program.isEmpty() || !QFileInfo(program).isExecutable()) {
        m_error = u"the food-data service program \"%1\" is missing"_s.arg(program);
        return;
    }
    if (databasePath.isEmpty() || !QFileInfo::exists(databasePath)) {
        m_error = u"the food database \"%1\" is missing"_s.arg(databasePath);
        return;
    }
    m_process.setProgram(program);
    m_process.setArguments(
        {u"serve"_s, u"--db"_s, databasePath, u"--port"_s, u"0"_s, u"--api-key"_s, m_apiKey});
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const pid_t owner = getpid();
    m_process.setChildProcessModifier([owner] {
        // Runs in the child before exec: SIGTERM when the owner dies, and at once if it already has.
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (getppid() != owner)
            _exit(1);
    });
    m_process.start();
    if (!m_process.waitForStarted(startTimeoutMs)) {
        m_error = u"cannot start %1: %2"_s.arg(program, m_process.errorString());
        return;
    }
    if (!readReadyLine())
        m_error = u"the food-data service did not report that it listens"_s;
}

bool FoodServiceProcess::readReadyLine()
{
    static const QRegularExpression ready(u"^listening on (https://\\S+) ca=(.+)$"_s);
    const QDeadlineTimer deadline(startTimeoutMs);
    while (!deadline.hasExpired()) {
        if (!m_process.canReadLine() &&
            !m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return false;
        const QRegularExpressionMatch match = ready.match(QString::fromUtf8(m_process.readLine()).trimmed());
        if (match.hasMatch()) {
            m_origin = match.captured(1);
            m_caPath = match.captured(2);
            return true;
        }
    }
    return false;
}

QSslConfiguration FoodServiceProcess::sslConfiguration() const
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificates(QSslCertificate::fromPath(m_caPath));
    return configuration;
}

bool FoodServiceProcess::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    m_process.terminate();
    if (!m_process.waitForFinished(stopTimeoutMs)) {
        m_process.kill();
        m_process.waitForFinished(stopTimeoutMs);
        return false;
    }
    return m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
}

QString FoodServiceProcess::serviceBinary()
{
    return QStringLiteral(NUTRIKA_FOOD_SERVICE_BIN);
}

QString FoodServiceProcess::randomApiKey()
{
    QByteArray bytes(24, Qt::Uninitialized);
    QRandomGenerator::system()->generate(bytes.begin(), bytes.end());
    return QString::fromLatin1(bytes.toHex());
}
