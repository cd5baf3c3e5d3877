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
    void theContainerHostsTheCalculatorFullScreen()
    {
        EnvironmentVariables::shared()->setTrackedNutrientListItems({});
        EnvironmentVariables::shared()->setSearchActive(false);
        std::unique_ptr<QWidget> container(initNutrika(u"key-1"_s, [] {}));
        QCOMPARE(sessionClient()->apiKey(), u"key-1"_s);
        QVERIFY(container->windowState().testFlag(Qt::WindowFullScreen));
        // The size it keeps where no window manager grants full screen.
        QCOMPARE(container->geometry(), container->screen()->availableGeometry());
        auto *view = container->findChild<QQuickWidget *>();
        QVERIFY(view);
        QCOMPARE(view->status(), QQuickWidget::Ready);
        QVERIFY(view->rootObject());
        QCOMPARE(container->palette().color(QPalette::Window), Look().detailColor());

        container->show();
        QVERIFY(QTest::qWaitForWindowExposed(container.get()));
        // Shown over an empty calculator, the search opens at once; closed and opened again while the
        // search was open, the new container shows the search in front as well.
        QTRY_VERIFY(EnvironmentVariables::shared()->searchActive());
        QVERIFY(findItem(container.get(), u"searchMoreButton"_s));
        QTRY_COMPARE(findItem(container.get(), u"navigation"_s)->property("depth").toInt(), 2);
        container.reset(initNutrika(u"key-1"_s, [] {}));
        container->show();
        QVERIFY(QTest::qWaitForWindowExposed(container.get()));
        QQuickItem *navigation = findItem(container.get(), u"navigation"_s);
        QTRY_COMPARE(navigation->property("depth").toInt(), 2);
        QTRY_VERIFY(findItem(container.get(), u"searchField"_s));
        QVERIFY(findItem(container.get(), u"searchField"_s)->isVisible());
    }

    void aSecondCallReplacesTheKeyAndKeepsTheLines()
    {
        EnvironmentVariables::shared()->setTrackedNutrientListItems({example::exampleTrackedNutrient1()});
        std::unique_ptr<QWidget> first(initNutrika(u"key-1"_s, [] {}));
        std::unique_ptr<QWidget> second(initNutrika(u"key-2"_s, [] {}));
        QCOMPARE(sessionClient()->apiKey(), u"key-2"_s);
        second->show();
        QVERIFY(QTest::qWaitForWindowExposed(second.get()));
        QQuickItem *list = findItem(second.get(), u"lineList"_s);
        QVERIFY(list);
        QTRY_COMPARE(list->property("count").toInt(), 1);
    }

    void serviceSettingsKeepWhatIsLeftEmpty_data()
    {
        QTest::addColumn<QUrl>("origin");
        QTest::addColumn<bool>("withAuthority");
        QTest::addColumn<QUrl>("expectedOrigin");
        QTest::addColumn<int>("expectedAuthorities");
        const QUrl before(u"https://before.example"_s);
        QTest::newRow("both") << QUrl(u"https://food.example.org/"_s) << true
                              << QUrl(u"https://food.example.org"_s) << 1;
        QTest::newRow("origin only") << QUrl(u"https://food.example.org"_s) << false
                                     << QUrl(u"https://food.example.org"_s) << 0;
        QTest::newRow("authorities only") << QUrl() << true << before << 1;
        QTest::newRow("nothing") << QUrl() << false << before << 0;
    }

    void serviceSettingsKeepWhatIsLeftEmpty()
    {
        QFETCH(QUrl, origin);
        QFETCH(bool, withAuthority);
        QFETCH(QUrl, expectedOrigin);
        QFETCH(int, expectedAuthorities);
        sessionClient()->setOrigin(QUrl(u"https://before.example"_s));
        sessionClient()->setCaCertificates({});
        const QList<QSslCertificate> authority = QSslCertificate::fromPath(NUTRIKA_TEST_TLS_DIR "/ca.pem"_L1);
        QCOMPARE(authority.size(), 1);

        setServiceSettings({origin, withAuthority ? authority : QList<QSslCertificate>()});
        QCOMPARE(serviceSettings().origin, expectedOrigin);
        QCOMPARE(serviceSettings().caCertificates.size(), expectedAuthorities);
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

    void closeCallsTheHostOnceThenClosesTheContainer()
    {
        QWidget *container = nullptr;
        QStringList calls;
        QSignalSpy installed(EnvironmentVariables::shared(), &EnvironmentVariables::dismissFunctionChanged);
        container = initNutrika(
            u"key"_s, [&] { calls << (container->isVisible() ? u"host, shown"_s : u"host, hidden"_s); });
        std::unique_ptr<QWidget> owner(container);
        container->show();
        QVERIFY(QTest::qWaitForWindowExposed(container));
        QTRY_VERIFY(installed.size() >= 1); // the calculator has appeared
        EnvironmentVariables::shared()->dismiss();
        QCOMPARE(calls, QStringList{u"host, shown"_s});
        QVERIFY(!container->isVisible());
    }

    void mainViewControllerSaysViewDidLoadOnce()
    {
        StdoutCapture capture;
        MainViewController controller;
        controller.show();
        controller.hide();
        controller.show();
        QCOMPARE(capture.lines(), QList<QByteArray>{"View did load"});
        MainVC plain;
        plain.show();
    }

    void onCloseClosesFirstAndCallsBackSecond()
    {
        QStringList calls;
        ClosingController *controller = nullptr;
        ClosingController owned([&] { calls << (controller->isVisible() ? u"visible"_s : u"closed"_s); });
        controller = &owned;
        owned.show();
        owned.onClose(QVariant());
        QCOMPARE(calls, QStringList{u"closed"_s});
    }
};

QTEST_MAIN(EntryTest)
#include "tst_entry.moc"
