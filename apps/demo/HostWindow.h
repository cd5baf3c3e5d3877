#pragma once

#include "nutrika/MealResult.h"

#include <QWidget>

class QLabel;

/// The host application's own window: a button that opens the module full screen, what was counted
/// when the module hands control back, and a button that clears the calculator once dosed.
class HostWindow : public QWidget
{
    Q_OBJECT

public:
    HostWindow(QString apiKey, QString serviceNote);

    /// Opens the module and hides this window until the module calls back.
    void openModule();

private:
    void showResult(const QString &heading, const nutrika::MealResult &result);

    QString m_apiKey;
    QLabel *m_status;
    QLabel *m_result;
};
