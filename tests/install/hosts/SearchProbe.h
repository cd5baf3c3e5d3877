#pragma once

#include <QString>

class QQuickItem;

/// Once the module's food search shows under `root`, types `text` into it as a person would, waits for a
/// count of results above zero from the service and exits the application: with 0 after printing the
/// count line, with 1 after printing why none came (the error alert, or nothing within 30 seconds).
void searchAndExit(QQuickItem *root, const QString &text);
