#include "Screenshot.h"

#include <QApplication>
#include <QPixmap>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>

void saveScreenshotAndQuit(QWidget *widget, const QString &path)
{
    auto save = [widget, path] {
        const bool ok = widget->grab().save(path);
        if (!ok)
            std::fprintf(stderr, "nutrika-demo: cannot write %s\n", qPrintable(path));
        QCoreApplication::exit(ok ? 0 : 1);
    };
    auto *view = widget->findChild<QQuickWidget *>();
    if (!view) {
        QTimer::singleShot(0, widget, save);
        return;
    }
    // Saved shortly after the first frame, so the list has settled; a window that never draws is
    // saved anyway after a while rather than hanging.
    auto *done = new QTimer(widget);
    done->setSingleShot(true);
    QObject::connect(done, &QTimer::timeout, widget, save);
    QObject::connect(view->quickWindow(), &QQuickWindow::afterRendering, done, [done] { done->start(50); },
                     Qt::SingleShotConnection);
    done->start(5000);
}
