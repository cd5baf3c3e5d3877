#include "FoodService.h"
#include "HostWindow.h"
#include "Screenshot.h"
#include "nutrika/Nutrika.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QQuickWindow>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

// A phone-sized window for pictures and previews.
constexpr QSize previewSize(430, 860);

// Each previewable screen, drawn over its sample data the way a QML host embeds the module.
const QHash<QString, QByteArray> previews = {
    {u"calculator"_s, "import Nutrika\nNutrikaRoot { calculator: CarbCounterUIView { preview: Preview.Main } }\n"},
};

int fail(const QString &message)
{
    std::fprintf(stderr, "nutrika-demo: %s\n", qPrintable(message));
    return 1;
}

// A QML host: the preview is the module's root item in a plain Qt Quick window.
int showPreview(const QString &screen, const QString &screenshot)
{
    QQuickView view;
    view.setTitle(u"Nutrika preview: "_s + screen);
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    nutrika::prepareNutrikaEngine(*view.engine());
    QQmlComponent component(view.engine());
    component.setData(previews.value(screen), QUrl(u"preview.qml"_s));
    QObject *root = component.create();
    if (!root)
        return fail(component.errorString());
    view.setContent(QUrl(u"preview.qml"_s), &component, root);
    view.resize(previewSize);
    view.show();
    if (!screenshot.isEmpty())
        saveScreenshotAndQuit(&view, screenshot);
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const bool headless = qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"A host application that opens the Nutrika carb calculator."_s);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption preview(u"preview"_s, u"Show <screen> with sample data (calculator)."_s, u"screen"_s);
    const QCommandLineOption screenshot(u"screenshot"_s, u"Save the view as <file.png> and exit."_s, u"file.png"_s);
    parser.addOptions({preview, screenshot});
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (!parser.parse(arguments))
        return fail(parser.errorText());
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }
    const QString shot = parser.isSet(screenshot) ? parser.value(screenshot) : QString();

    // A preview needs no widgets: the module is shown the way a QML host embeds it.
    if (parser.isSet(preview)) {
        QGuiApplication app(argc, argv);
        const QString screen = parser.value(preview);
        if (!previews.contains(screen))
            return fail(u"no preview of \"%1\"; screens with a preview: %2"_s.arg(screen, previews.keys().join(u", "_s)));
        return showPreview(screen, shot);
    }

    QApplication app(argc, argv);
    FoodService service;
    if (!service.start())
        return fail(u"cannot start the food-data service: "_s + service.errorString());
    qputenv("NUTRIKA_SERVICE_ORIGIN", service.origin().toUtf8());
    qputenv("NUTRIKA_CA_CERT", service.caPath().toUtf8());

    if (!shot.isEmpty()) {
        QWidget *module = nutrika::initNutrika(service.apiKey(), [] {});
        module->setWindowState(Qt::WindowNoState);
        module->resize(previewSize);
        module->show();
        saveScreenshotAndQuit(module, shot);
        return QApplication::exec();
    }

    HostWindow host(service.apiKey(), u"Food data: local service at %1"_s.arg(service.origin()));
    host.show();
    return QApplication::exec();
}
