#pragma once

#include <QWidget>

class QLabel;

/// The host application's own window: a button that opens the module full screen, and a line that
/// says when the module has handed control back.
class HostWindow : public QWidget
{
    Q_OBJECT

public:
    HostWindow(QString apiKey, QString serviceNote);

    /// Opens the module and hides this window until the module calls back.
    void openModule();

private:
    QString m_apiKey;
    QLabel *m_status;
};
