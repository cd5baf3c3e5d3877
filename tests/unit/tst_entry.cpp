#include "ApiKey.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "Look.h"
#include "StdoutCapture.h"
#include "nutrika/Nutrika.h"

#include <QApplication>
#include <QQuickItem>
#include <QQuickWidget>
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
        QCOMPARE(API_KEY, u"key-1"_s);
        QVERIFY(container->windowState().testFlag(Qt::WindowFullScreen));
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
        QCOMPARE(API_KEY, u"key-2"_s);
        second->show();
        QVERIFY(QTest::qWaitForWindowExposed(second.get()));
        QQuickItem *list = findItem(second.get(), u"lineList"_s);
        QVERIFY(list);
        QTRY_COMPARE(list->property("count").toInt(), 1);
    }

    void closeCallsTheHostOnceThenClosesTheContainer()
    {
        QWidget *container = nullptr;
        QStringList calls;
        QSignalSpy installed(EnvironmentVariables::shared(), &EnvironmentVariables::dismissFunctionChanged);
        container = initNutrika(u"key"_s, [&] { calls << (container->isVisible() ? u"host, shown"_s : u"host, hidden"_s); });
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
