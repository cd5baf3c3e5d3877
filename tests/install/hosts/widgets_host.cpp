// A Qt Widgets host: widgets_host <service origin> <API key> <CA file>.
#include "SearchProbe.h"

#include <nutrika/Nutrika.h>

#include <cstdio>
#include <QApplication>
#include <QQuickItem>
#include <QQuickWidget>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return 2;

    nutrika::ServiceSettings settings;
    settings.origin = QUrl(arguments.at(1));
    settings.caCertificates = QSslCertificate::fromPath(arguments.at(3));
    nutrika::setServiceSettings(settings);
    QWidget *module = nutrika::initNutrika(arguments.at(2), [] { QCoreApplication::exit(0); });
    module->show();

    auto *view = module->findChild<QQuickWidget *>();
    if (!view || !view->rootObject())
        return 1;
    nutrika::setHostOptions({nutrika::CarbUnit::KE, true, true, true, true});
    searchAndExit(view->rootObject(), QStringLiteral("banana"));
    const int status = QApplication::exec();
    // What a bolus calculator would read; nothing was added, so nothing is counted.
    const nutrika::MealResult result = nutrika::mealResults()->result();
    std::printf("result: %lld lines, %g g, unit KE %s\n", static_cast<long long>(result.lines.size()),
                result.totalCarbohydrates,
                nutrika::hostOptions().carbUnit == nutrika::CarbUnit::KE ? "kept" : "lost");
    delete module;
    return status;
}
