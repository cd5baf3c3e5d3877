#pragma once

#include <QString>

class QQuickWindow;
class QWidget;

/// Saves a picture of `widget` once its Qt Quick content has drawn, then quits the application with
/// status 0 when the file was written. Returns at once.
void saveScreenshotAndQuit(QWidget *widget, const QString &path);
/// The same for a Qt Quick window.
void saveScreenshotAndQuit(QQuickWindow *window, const QString &path);
