#pragma once

#include "nutrika/MealResult.h"

#include <functional>
#include <QList>
#include <QSslCertificate>
#include <QString>
#include <QUrl>
#include <QVariant>
#include <QWidget>

class QQmlEngine;

namespace nutrika {

/// Where the module finds the food-data service. A field left empty keeps its current value: at first
/// the build's origin and the system's authorities, or NUTRIKA_SERVICE_ORIGIN and NUTRIKA_CA_CERT when
/// they were set as the process started.
struct ServiceSettings
{
    /// Scheme, host and port of the service, such as "https://food.example.org".
    QUrl origin;
    /// Authorities trusted besides the system's, for a service whose certificate they sign.
    QList<QSslCertificate> caCertificates;
};

/// Applies `settings` to every later request of the process, the screens already open included.
void setServiceSettings(const ServiceSettings &settings);
/// The origin and the extra authorities the requests use now.
[[nodiscard]] ServiceSettings serviceSettings();

/// Applies `options` to every screen of the process, the ones already open included.
void setHostOptions(const HostOptions &options);
[[nodiscard]] HostOptions hostOptions();

/// The calculator's lines and total as they stand now.
[[nodiscard]] MealResult mealResult();
/// Empties the calculator, for a host that has dosed from it.
void clearCalculator();

/// Tells a C++ host about the calculator's result. One object for the process, from mealResults().
class MealResults : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] MealResult result() const { return m_result; }

signals:
    /// The lines or the total changed: a line was added, edited or removed.
    void changed(const nutrika::MealResult &result);
    /// "Close" was tapped, before the host's dismiss callback runs.
    void closed(const nutrika::MealResult &result);

private:
    friend MealResults *mealResults();
    MealResults() = default;
    MealResult m_result;
};

/// The process's MealResults, created on first use; it follows the calculator from then on.
[[nodiscard]] MealResults *mealResults();

/// Opens the module for a Qt Widgets host. Stores `apiKey` for every later request and returns the
/// container to present: a widget marked full screen, sized to the screen, that holds the calculator.
/// `onDismissCallback` runs once per "Close", before the container closes itself. The calculator's lines
/// stay for the next call.
[[nodiscard]] QWidget *initNutrika(const QString &apiKey, std::function<void()> onDismissCallback);

/// Prepares a host's own QML engine so that `import Nutrika` works. The root item is NutrikaRoot; its
/// `apiKey` and `serviceOrigin` properties set the key and the origin, `mealResult` holds the result
/// (lines, totalCarbohydrates), `closedWith(mealResult)` is signalled on "Close", `clearCalculator()`
/// empties it, and `carbUnit` ("g", "BE", "KE", "exchanges"), `netCarbohydrates`, `fatProteinUnits`,
/// `undoRemoval`, `recentFoods` and `language` are the host options.
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
