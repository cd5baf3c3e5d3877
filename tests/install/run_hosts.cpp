// Starts the local food-data service and runs each host given on the command line against it; each
// must find foods through the module and read the calculator's result.
#include "FoodServiceProcess.h"

#include <cstdio>
#include <QCoreApplication>
#include <QProcess>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    FoodServiceProcess service(QStringLiteral(NUTRIKA_FOOD_DB), FoodServiceProcess::randomApiKey());
    if (!service.isReady()) {
        std::fprintf(stderr, "%s\n", qPrintable(service.errorString()));
        return 1;
    }
    int failures = 0;
    for (const QString &host : QCoreApplication::arguments().mid(1)) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(host, {service.origin(), service.apiKey(), service.caPath()});
        const bool finished = process.waitForFinished(120000);
        const QString output = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
        // The search found foods, and the host read an empty result with its options kept.
        const bool found = finished && process.exitStatus() == QProcess::NormalExit &&
                           process.exitCode() == 0 &&
                           output.contains(QStringLiteral("matching your search")) &&
                           (output.endsWith(QStringLiteral("result: 0 lines, 0 g, unit KE kept")) ||
                            output.endsWith(QStringLiteral("result: 0 lines, 0 g, unit BE")));
        std::printf("%s: %s\n", qPrintable(host), found ? qPrintable(output) : "FAILED");
        failures += found ? 0 : 1;
    }
    return failures == 0 ? 0 : 1;
}
