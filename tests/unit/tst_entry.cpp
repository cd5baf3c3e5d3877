#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "Look.h"
#include "nutrika/Nutrika.h"
#include "StdoutCapture.h"

#include <QApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

// A host's subclass that sets the module-internal callback.
class ClosingController : public MainViewController
{
public:
    explicit ClosingController(std::function<void()> callback) { m_onDismissCallback = std::move(callback); }
};

ServiceClient *sessionClient()
{
    return EnvironmentVariables::shared()->serviceClient();
}

QQuickItem *findItem(QWidget *container, const QString &objectName)
{
    auto *view = container->findChild<QQuickWidget *>();
    return view && view->rootObject() ? view->rootObject()->findChild<QQuickItem *>(objectName) : nullptr;
}

} // namespace

class EntryTest : public QObject
{
    Q_OBJECT

private slots:
    // Reopening with the search open is the QML journey's; here the widget around it. A second call
    // replaces the key and keeps the lines.
    void theContainerHostsTheCalculatorFullScreen()
    {
        EnvironmentVariables::shared()->setTrackedNutrientListItems({example::exampleTrackedNutrient1()});
        std::unique_ptr<QWidget> first(initNutrika(u"key-1"_s, [] {}));
        QCOMPARE(sessionClient()->apiKey(), u"key-1"_s);
        QVERIFY(first->windowState().testFlag(Qt::WindowFullScreen));
        // The size it keeps where no window manager grants full screen.
        QCOMPARE(first->geometry(), first->screen()->availableGeometry());
        auto *view = first->findChild<QQuickWidget *>();
        QVERIFY(view && view->rootObject());
        QCOMPARE(view->status(), QQuickWidget::Ready);
        QCOMPARE(first->palette().color(QPalette::Window), Look().detailColor());

        // "Close" calls the host once, while the container still shows, then closes it.
        QStringList calls;
        QWidget *second = nullptr;
        QSignalSpy installed(EnvironmentVariables::shared(), &EnvironmentVariables::dismissFunctionChanged);
        second = initNutrika(u"key-2"_s,
                             [&] { calls << (second->isVisible() ? u"host, shown"_s : u"host, hidden"_s); });
        std::unique_ptr<QWidget> owner(second);
        QCOMPARE(sessionClient()->apiKey(), u"key-2"_s);
        second->show();
        QVERIFY(QTest::qWaitForWindowExposed(second));
        QQuickItem *list = findItem(second, u"lineList"_s);
        QVERIFY(list);
        QTRY_COMPARE(list->property("count").toInt(), 1);
        QTRY_VERIFY(installed.size() >= 1); // the calculator has appeared
        EnvironmentVariables::shared()->dismiss();
        QCOMPARE(calls, QStringList{u"host, shown"_s});
        QVERIFY(!second->isVisible());
    }

    void serviceSettingsKeepWhatIsLeftEmpty_data()
    {
        QTest::addColumn<QUrl>("origin");
        QTest::addColumn<bool>("withAuthority");
        QTest::addColumn<QUrl>("expectedOrigin");
        const QUrl before(u"https://before.example"_s);
        QTest::newRow("both") << QUrl(u"https://food.example.org/"_s) << true
                              << QUrl(u"https://food.example.org"_s);
        QTest::newRow("authorities only") << QUrl() << true << before;
        QTest::newRow("nothing") << QUrl() << false << before;
    }

    void serviceSettingsKeepWhatIsLeftEmpty()
    {
        QFETCH(QUrl, origin);
        QFETCH(bool, withAuthority);
        QFETCH(QUrl, expectedOrigin);
        sessionClient()->setOrigin(QUrl(u"https://before.example"_s));
        sessionClient()->setCaCertificates({});
        const QList<QSslCertificate> authority = QSslCertificate::fromPath(NUTRIKA_TEST_TLS_DIR "/ca.pem"_L1);
        QCOMPARE(authority.size(), 1);

        setServiceSettings({origin, withAuthority ? authority : QList<QSslCertificate>()});
        QCOMPARE(serviceSettings().origin, expectedOrigin);
        QCOMPARE(serviceSettings().caCertificates.size(), withAuthority ? 1 : 0);
        QCOMPARE(sessionClient()->sslConfiguration().caCertificates().contains(authority.value(0)),
                 withAuthority);
    }

    void aQmlHostSetsTheKeyAndTheOrigin_data()
    {
        QTest::addColumn<QByteArray>("properties");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QUrl>("origin");
        QTest::newRow("both") << QByteArray("apiKey: 'qml-key'; serviceOrigin: 'https://qml.example/'")
                              << u"qml-key"_s << QUrl(u"https://qml.example"_s);
        QTest::newRow("left empty") << QByteArray() << u"earlier-key"_s << QUrl(u"https://earlier.example"_s);
    }

    void aQmlHostSetsTheKeyAndTheOrigin()
    {
        QFETCH(QByteArray, properties);
        QFETCH(QString, key);
        QFETCH(QUrl, origin);
        sessionClient()->setApiKey(u"earlier-key"_s);
        sessionClient()->setOrigin(QUrl(u"https://earlier.example"_s));
        QQmlEngine engine;
        prepareNutrikaEngine(engine);
        QQmlComponent component(&engine);
        component.setData("import Nutrika\nNutrikaRoot { " + properties + " }\n", QUrl());
        std::unique_ptr<QObject> root(component.create());
        QVERIFY2(root, qPrintable(component.errorString()));
        QCOMPARE(sessionClient()->apiKey(), key);
        QCOMPARE(sessionClient()->origin(), origin);

        // A later change is forwarded too; the value stays when the root goes.
        root->setProperty("apiKey", u"second-key"_s);
        root.reset();
        QCOMPARE(sessionClient()->apiKey(), u"second-key"_s);
    }

    // "View did load" once however often it shows; onClose closes first and calls back second.
    void mainViewControllerLoadsOnceAndClosesBeforeTheCallback()
    {
        QStringList calls;
        ClosingController *controller = nullptr;
        ClosingController owned([&] { calls << (controller->isVisible() ? u"visible"_s : u"closed"_s); });
        controller = &owned;
        StdoutCapture capture;
        owned.show();
        owned.hide();
        owned.show();
        QCOMPARE(capture.lines(), QList<QByteArray>{"View did load"});
        owned.onClose(QVariant());
        QCOMPARE(calls, QStringList{u"closed"_s});
    }
};

QTEST_MAIN(EntryTest)
#include "tst_entry.moc"
