#include "FoodService.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int startTimeoutMs = 30000;

// The build's service and database; the environment may point elsewhere.
QString setting(const char *variable, const char *builtIn)
{
    const QString value = qEnvironmentVariable(variable);
    return value.isEmpty() ? QString::fromUtf8(builtIn) : value;
}

QString randomKey()
{
    QByteArray bytes(24, Qt::Uninitialized);
    QRandomGenerator::system()->generate(bytes.begin(), bytes.end());
    return QString::fromLatin1(bytes.toHex());
}

} // namespace

FoodService::FoodService()
    : m_apiKey(randomKey())
{
}

FoodService::~FoodService()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(5000))
        m_process.kill();
}

bool FoodService::start()
{
    const QString program = setting("NUTRIKA_FOOD_SERVICE", NUTRIKA_FOOD_SERVICE_PATH);
    const QString database = setting("NUTRIKA_FOOD_DB", NUTRIKA_FOOD_DB_PATH);
    if (program.isEmpty() || !QFileInfo(program).isExecutable()) {
        m_error = u"the food-data service program was not built (set NUTRIKA_FOOD_SERVICE)"_s;
        return false;
    }
    if (database.isEmpty() || !QFileInfo::exists(database)) {
        m_error = u"the food database is missing: run scripts/demo, or set NUTRIKA_FOOD_DB"_s;
        return false;
    }
    m_process.setProgram(program);
    m_process.setArguments({u"serve"_s, u"--db"_s, database, u"--port"_s, u"0"_s, u"--api-key"_s, m_apiKey});
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start();
    if (!m_process.waitForStarted(startTimeoutMs)) {
        m_error = u"cannot start %1: %2"_s.arg(program, m_process.errorString());
        return false;
    }
    static const QRegularExpression ready(u"^listening on (https://\\S+) ca=(.+)$"_s);
    const QDeadlineTimer deadline(startTimeoutMs);
    while (!deadline.hasExpired()) {
        if (!m_process.canReadLine() && !m_process.waitForReadyRead(int(deadline.remainingTime())))
            break;
        const auto match = ready.match(QString::fromUtf8(m_process.readLine()).trimmed());
        if (match.hasMatch()) {
            m_origin = match.captured(1);
            m_caPath = match.captured(2);
            return true;
        }
    }
    m_error = u"the food-data service did not report that it listens"_s;
    return false;
}
