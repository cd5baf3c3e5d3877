// A QML host: qml_host <service origin> <API key> <CA file>. Its main.qml sets the key and the origin.
#include "SearchProbe.h"

#include <nutrika/Nutrika.h>

#include <cstdio>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return 2;

    nutrika::setServiceSettings({QUrl(), QSslCertificate::fromPath(arguments.at(3))});
    QQuickView view;
    nutrika::prepareNutrikaEngine(*view.engine());
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setSource(QUrl(QStringLiteral("qrc:/main.qml")));
    if (!view.rootObject())
        return 1;
    view.resize(400, 720);
    view.show();
    searchAndExit(view.rootObject(), QStringLiteral("banana"));
    const int status = QGuiApplication::exec();
    // What a bolus calculator would read; nothing was added, so nothing is counted.
    const QVariantMap result = view.rootObject()->property("mealResult").toMap();
    std::printf("result: %lld lines, %g g, unit %s\n",
                static_cast<long long>(result.value(QStringLiteral("lines")).toList().size()),
                result.value(QStringLiteral("totalCarbohydrates")).toDouble(),
                qPrintable(view.rootObject()->property("carbUnit").toString()));
    return status;
}
