#include "DemoOptions.h"
#include "FoodServiceProcess.h"
#include "HostWindow.h"
#include "nutrika/Nutrika.h"
#include "Screenshot.h"

#include <cstdio>
#include <QApplication>
#include <QMap>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QQuickWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

// Each previewable screen, drawn over its sample data the way a QML host embeds the module.
const QMap<QString, QByteArray> previews = {
    {u"calculator"_s,
     "import Nutrika\nNutrikaRoot { calculator: CarbCounterUIView { preview: Preview.Main } }\n"},
    {u"calculator-long"_s,
     "import Nutrika\nNutrikaRoot { calculator: CarbCounterUIView { preview: Preview.LongLines } }\n"},
    {u"portion"_s, "import Nutrika\nNavigationStack { id: s; initialItem: "
                   "SelectPortionScreen { navigation: s; uiView.preview: Preview.Images } }\n"},
    {u"portion-descriptions"_s,
     "import Nutrika\nNavigationStack { id: s; initialItem: "
     "SelectPortionScreen { navigation: s; uiView.preview: Preview.Descriptions } }\n"},
    {u"preview-add"_s, "import Nutrika\nNavigationStack { id: s; initialItem: "
                       "AddToCalcPreviewScreen { navigation: s; uiView.preview: Preview.AddNew } }\n"},
    {u"preview-edit"_s, "import Nutrika\nNavigationStack { id: s; initialItem: "
                        "AddToCalcPreviewScreen { navigation: s; uiView.preview: Preview.Edit } }\n"},
    {u"meal-new"_s,
     "import Nutrika\nNavigationStack { id: s; initialItem: "
     "CreateRecipeScreen { navigation: s; uiView.preview: CreateRecipeUIView.PreviewCreate } }\n"},
    {u"meal-edit"_s,
     "import Nutrika\nNavigationStack { id: s; initialItem: "
     "CreateRecipeScreen { navigation: s; uiView.preview: CreateRecipeUIView.PreviewEdit } }\n"},
    {u"meal-view"_s,
     "import Nutrika\nNavigationStack { id: s; initialItem: "
     "CreateRecipeScreen { navigation: s; uiView.preview: CreateRecipeUIView.PreviewView } }\n"},
    {u"meal-select"_s,
     "import Nutrika\nNavigationStack { id: s; initialItem: "
     "CreateRecipeScreen { navigation: s; uiView.preview: CreateRecipeUIView.PreviewSelect } }\n"},
    {u"meals"_s, "import Nutrika\nNavigationStack { id: s; initialItem: "
                 "RecipeSearchScreen { navigation: s; uiView.preview: Preview.Main } }\n"},
    {u"suggestions"_s,
     "import QtQuick\nimport Nutrika\nRectangle { color: \"#808080\"\n"
     "Rectangle { anchors.fill: parent; anchors.margins: 20; radius: 14\n"
     "FoodAccompanimentsScreen { anchors.fill: parent; uiView.preview: Preview.Main } } }\n"},
};

int fail(const QString &message)
{
    std::fprintf(stderr, "nutrika-demo: %s\n", qPrintable(message));
    return 1;
}

// The build's service and database; the environment may point elsewhere.
QString setting(const char *variable, const QString &builtIn)
{
    const QString value = qEnvironmentVariable(variable);
    return value.isEmpty() ? builtIn : value;
}

// A QML host: the preview is the module's root item in a plain Qt Quick window.
int showPreview(const QString &screen, const QString &screenshot, QSize windowSize)
{
    if (!previews.contains(screen))
        return fail(
            u"no preview of \"%1\"; screens with a preview: %2"_s.arg(screen, previews.keys().join(u", "_s)));
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
    view.resize(windowSize);
    view.show();
    if (!screenshot.isEmpty())
        saveScreenshotAndQuit(&view, screenshot);
    return QGuiApplication::exec();
}

// A Widgets host, against the service the options name or the bundled one.
int runHost(DemoOptions options)
{
    nutrika::ServiceSettings settings;
    std::unique_ptr<FoodServiceProcess> bundled;
    QString note = u"Food data: service at %1"_s.arg(options.serviceOrigin.toDisplayString());
    if (options.serviceOrigin.isEmpty()) {
        if (options.apiKey.isEmpty())
            options.apiKey = FoodServiceProcess::randomApiKey();
        bundled = std::make_unique<FoodServiceProcess>(
            setting("NUTRIKA_FOOD_DB", QStringLiteral(NUTRIKA_FOOD_DB)), options.apiKey,
            setting("NUTRIKA_FOOD_SERVICE", FoodServiceProcess::serviceBinary()));
        if (!bundled->isReady())
            return fail(u"cannot start the food-data service: %1 (run scripts/demo, set NUTRIKA_FOOD_DB and "
                        u"NUTRIKA_FOOD_SERVICE, or pass --service-origin)"_s.arg(bundled->errorString()));
        options.serviceOrigin = QUrl(bundled->origin());
        options.caCertificates += QSslCertificate::fromPath(bundled->caPath(), QSsl::Pem);
        note = u"Food data: local service at %1"_s.arg(bundled->origin());
    }
    settings.origin = options.serviceOrigin;
    settings.caCertificates = options.caCertificates;
    nutrika::setServiceSettings(settings);
    std::printf("nutrika-demo: food data from %s\n",
                qPrintable(nutrika::serviceSettings().origin.toDisplayString()));
    std::fflush(stdout);

    if (!options.screenshot.isEmpty()) {
        QWidget *module = nutrika::initNutrika(options.apiKey, [] {});
        module->setWindowState(Qt::WindowNoState);
        module->resize(options.windowSize);
        module->show();
        saveScreenshotAndQuit(module, options.screenshot);
        return QApplication::exec();
    }

    HostWindow host(options.apiKey, note);
    host.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const bool headless =
        qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);

    const std::unique_ptr<QCoreApplication> app = createApplication(argc, argv);
    // "--preview" without a name lists the names.
    const QStringList arguments = QCoreApplication::arguments();
    if (const qsizetype at = arguments.indexOf(u"--preview"_s);
        at > 0 && (at + 1 == arguments.size() || arguments.at(at + 1).startsWith(u'-'))) {
        std::fputs(qPrintable(u"Screens with a preview: "_s + previews.keys().join(u", "_s) + u'\n'), stdout);
        return 0;
    }
    std::variant<DemoOptions, int> parsed = parseDemoOptions(arguments);
    if (const int *status = std::get_if<int>(&parsed))
        return *status;
    DemoOptions &options = std::get<DemoOptions>(parsed);
    nutrika::setHostOptions(options.hostOptions);
    if (!options.preview.isEmpty())
        return showPreview(options.preview, options.screenshot, options.windowSize);
    return runHost(std::move(options));
}
