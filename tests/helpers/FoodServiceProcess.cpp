#include "FoodServiceProcess.h"

#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QSslCertificate>

namespace {

// Generous, for sanitizer builds on a busy machine.
constexpr int startTimeoutMs = 60000;
constexpr int stopTimeoutMs = 15000;

} // namespace

FoodServiceProcess::FoodServiceProcess(const QString &databasePath, const QString &apiKey) : m_apiKey(apiKey)
{
    m_process.setProgram(serviceBinary());
    m_process.setArguments({QStringLiteral("serve"), QStringLiteral("--db"), databasePath,
                            QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--api-key"),
                            apiKey});
    m_process.start();
    if (!m_process.waitForStarted(startTimeoutMs)) {
        m_error = QStringLiteral("cannot start %1: %2").arg(serviceBinary(), m_process.errorString());
        return;
    }
    static const QRegularExpression ready(QStringLiteral("^listening on (https://\\S+) ca=(.+)$"));
    const QDeadlineTimer deadline(startTimeoutMs);
    while (!deadline.hasExpired()) {
        if (!m_process.canReadLine() &&
            !m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            break;
        const QString line = QString::fromUtf8(m_process.readLine()).trimmed();
        const auto match = ready.match(line);
        if (match.hasMatch()) {
            m_origin = match.captured(1);
            m_caPath = match.captured(2);
            return;
        }
    }
    m_process.kill();
    m_process.waitForFinished(stopTimeoutMs);
    m_error = QStringLiteral("the food service did not start: %1")
                  .arg(QString::fromUtf8(m_process.readAllStandardError()));
}

FoodServiceProcess::~FoodServiceProcess()
{
    stop();
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
