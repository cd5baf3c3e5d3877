#pragma once

#include <QString>

class QWidget;

/// Saves a picture of `widget` once its Qt Quick content has drawn, then quits the application.
/// Returns at once; the exit code tells whether the file was written.
void saveScreenshotAndQuit(QWidget *widget, const QString &path);
