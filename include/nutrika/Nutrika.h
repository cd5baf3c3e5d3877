#pragma once

#include <QString>
#include <QVariant>
#include <QWidget>
#include <functional>

class QQmlEngine;

namespace nutrika {

/// Opens the module for a Qt Widgets host. Stores `apiKey` for every request and returns the container
/// to present: a widget marked full screen that holds the calculator. `onDismissCallback` runs once per
/// "Close", before the container closes itself. The calculator's lines stay for the next call.
[[nodiscard]] QWidget *initNutrika(const QString &apiKey, std::function<void()> onDismissCallback);

/// Prepares a host's own QML engine so that `import Nutrika` works (the root item is NutrikaRoot).
void prepareNutrikaEngine(QQmlEngine &engine);

/// A host-side controller: prints "View did load" when first shown. onClose() closes it first and
/// calls back second.
class MainViewController : public QWidget
{
    Q_OBJECT

public:
    explicit MainViewController(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

public slots:
    void onClose(const QVariant &sender);

protected:
    virtual void viewDidLoad();
    void showEvent(QShowEvent *event) override;

    std::function<void()> m_onDismissCallback = [] {};

private:
    bool m_loaded = false;
};

/// A plain host-side controller without state of its own.
class MainVC : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

} // namespace nutrika
