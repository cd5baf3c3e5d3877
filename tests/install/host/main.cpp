// A Qt Widgets host that knows the module only through its installed package.
#include <nutrika/Nutrika.h>

#include <QApplication>
#include <QQuickItem>
#include <QQuickWidget>
#include <QTimer>
#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    bool called = false;
    QWidget *module = nutrika::initNutrika(QStringLiteral("host-key"), [&called] { called = true; });
    module->show();
    auto *view = module->findChild<QQuickWidget *>();
    if (!view || view->status() != QQuickWidget::Ready || !view->rootObject()) {
        std::fprintf(stderr, "the module's root did not load\n");
        return 1;
    }
    if (!view->rootObject()->findChild<QQuickItem *>(QStringLiteral("searchMoreButton"))) {
        std::fprintf(stderr, "the calculator is not on screen\n");
        return 1;
    }
    QTimer::singleShot(100, &app, &QCoreApplication::quit);
    app.exec();
    delete module;
    std::puts("host opened the module");
    return 0;
}
