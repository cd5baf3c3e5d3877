#include "Screenshot.h"

#include <cstdio>
#include <functional>
#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QTimer>

namespace {

void quitAfter(bool saved, const QString &path)
{
    if (!saved)
        std::fprintf(stderr, "nutrika-demo: cannot write %s\n", qPrintable(path));
    QCoreApplication::exit(saved ? 0 : 1);
}

// Saves shortly after the first frame, so the list has settled; a window that never draws is saved
// anyway after a while rather than hanging.
void afterFirstFrame(QQuickWindow *window, QObject *context, const std::function<void()> &save)
{
    auto *done = new QTimer(context);
    done->setSingleShot(true);
    QObject::connect(done, &QTimer::timeout, context, save);
    QObject::connect(
        window, &QQuickWindow::afterRendering, done, [done] { done->start(50); }, Qt::SingleShotConnection);
    done->start(5000);
}

} // namespace

void saveScreenshotAndQuit(QWidget *widget, const QString &path)
{
    const auto save = [widget, path] { quitAfter(widget->grab().save(path), path); };
    if (auto *view = widget->findChild<QQuickWidget *>())
        afterFirstFrame(view->quickWindow(), widget, save);
    else
        QTimer::singleShot(0, widget, save);
}

void saveScreenshotAndQuit(QQuickWindow *window, const QString &path)
{
    afterFirstFrame(window, window, [window, path] { quitAfter(window->grabWindow().save(path), path); });
}
