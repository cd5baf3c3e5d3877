#include "nutrika/Nutrika.h"

#include "CarbCounterUIView.h"
#include "EnvironmentVariables.h"
#include "HostSettings.h"
#include "ItemTeardown.h"
#include "Look.h"
#include "SymbolIcons.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickWidget>
#include <QScreen>
#include <QVBoxLayout>

// The module is a static QML plugin: a host that reaches initNutrika also gets the plugin registered.
Q_IMPORT_QML_PLUGIN(NutrikaPlugin)

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

// The module's view deletes its items directly, not through the event loop: hide them first.
class ModuleView : public QQuickWidget
{
public:
    using QQuickWidget::QQuickWidget;
    ~ModuleView() override
    {
        if (QQuickItem *root = rootObject())
            hideForTeardown(root);
    }
    Q_DISABLE_COPY_MOVE(ModuleView)
};

} // namespace

void prepareNutrikaEngine(QQmlEngine &engine)
{
    engine.addImportPath(u"qrc:/qt/qml"_s);
    // The screens' texts are translated as they are built: the language comes before any of them.
    static const bool languageApplied = [] {
        HostSettings::shared()->applyLanguage();
        return true;
    }();
    (void)languageApplied;
    HostSettings::shared()->addEngine(&engine);
    // Adding a font drops every font engine already built, so the icon font comes before any text is
    // laid out; and after the system fonts are listed, or their WOFF2 copy of it would win.
    (void)QFontDatabase::families();
    (void)symbolFontFamily();
}

QWidget *initNutrika(const QString &apiKey, std::function<void()> onDismissCallback)
{
    EnvironmentVariables::shared()->serviceClient()->setApiKey(apiKey);

    auto *container = new QWidget;
    container->setWindowTitle(u"Nutrika"_s);
    container->setAccessibleName(QCoreApplication::translate("Nutrika", "Nutrika carbohydrate calculator"));
    auto *view = new ModuleView(container);
    // A child of the view, so it outlives the QML root that the view deletes first.
    auto *calculator = new CarbCounterUIView(std::move(onDismissCallback), view);
    view->setResizeMode(QQuickWidget::SizeRootObjectToView);
    const QColor background = Look().detailColor();
    view->setClearColor(background);
    QPalette palette = container->palette();
    palette.setColor(QPalette::Window, background);
    container->setPalette(palette);
    container->setAutoFillBackground(true);

    prepareNutrikaEngine(*view->engine());
    const QUrl root(u"qrc:/qt/qml/Nutrika/entry/NutrikaRoot.qml"_s);
    auto *component = new QQmlComponent(view->engine(), root, view);
    QObject *item =
        component->createWithInitialProperties({{u"calculator"_s, QVariant::fromValue(calculator)}});
    if (!item)
        qCritical("Nutrika: the calculator could not be built: %s", qPrintable(component->errorString()));
    view->setContent(root, component, item);

    auto *layout = new QVBoxLayout(container);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    view->setFocus();

    QObject::connect(calculator, &CarbCounterUIView::dismissPresentation, container, &QWidget::close);
    // Without a window manager nobody grants full screen; the window then keeps this size.
    container->setGeometry(container->screen()->availableGeometry());
    container->setWindowState(Qt::WindowFullScreen);
    return container;
}

} // namespace nutrika
