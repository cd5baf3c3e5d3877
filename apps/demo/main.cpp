#include "FoodService.h"
#include "HostWindow.h"
#include "Screenshot.h"
#include "nutrika/Nutrika.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QMap>
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
const QMap<QString, QByteArray> previews = {
    {u"calculator"_s, "import Nutrika\nNutrikaRoot { calculator: CarbCounterUIView { preview: Preview.Main } }\n"},
    {u"portion"_s, "import QtQuick.Controls.Basic\nimport Nutrika\nStackView { id: s; initialItem: "
                   "SelectPortionScreen { navigation: s; uiView.preview: Preview.Images } }\n"},
    {u"portion-descriptions"_s, "import QtQuick.Controls.Basic\nimport Nutrika\nStackView { id: s; initialItem: "
                                "SelectPortionScreen { navigation: s; uiView.preview: Preview.Descriptions } }\n"},
    {u"preview-add"_s, "import QtQuick.Controls.Basic\nimport Nutrika\nStackView { id: s; initialItem: "
                       "AddToCalcPreviewScreen { navigation: s; uiView.preview: Preview.AddNew } }\n"},
    {u"preview-edit"_s, "import QtQuick.Controls.Basic\nimport Nutrika\nStackView { id: s; initialItem: "
                        "AddToCalcPreviewScreen { navigation: s; uiView.preview: Preview.Edit } }\n"},
    {u"suggestions"_s, "import QtQuick\nimport Nutrika\nRectangle { color: \"#808080\"\n"
                       "Rectangle { anchors.fill: parent; anchors.margins: 20; radius: 14\n"
                       "FoodAccompanimentsScreen { anchors.fill: parent; uiView.preview: Preview.Main } } }\n"},
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
    const QCommandLineOption preview(u"preview"_s, u"Show <screen> with sample data; without a name, list the screens."_s, u"screen"_s);
    const QCommandLineOption screenshot(u"screenshot"_s, u"Save the view as <file.png> and exit."_s, u"file.png"_s);
    parser.addOptions({preview, screenshot});
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    // "--preview" without a name lists the names.
    if (const qsizetype at = arguments.indexOf(u"--preview"_s);
        at > 0 && (at + 1 == arguments.size() || arguments.at(at + 1).startsWith(u'-'))) {
        std::fputs(qPrintable(u"Screens with a preview: "_s + previews.keys().join(u", "_s) + u'\n'), stdout);
        return 0;
    }
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
