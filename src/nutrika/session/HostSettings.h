#pragma once

#include "nutrika/MealResult.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQmlIntegration>

class QQmlEngine;
class QJSEngine;
class QTranslator;

namespace nutrika {

/// The host's options for the whole process, and the texts the screens show with them. Every option
/// is off until the host turns it on; with all off, every text is the one the screens had without them.
class HostSettings : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// "g", "BE", "KE" or "exchanges"; an unknown name is refused with a warning.
    Q_PROPERTY(QString carbUnit READ carbUnitName WRITE setCarbUnitName NOTIFY changed)
    Q_PROPERTY(bool netCarbohydrates READ netCarbohydrates WRITE setNetCarbohydrates NOTIFY changed)
    Q_PROPERTY(bool fatProteinUnits READ fatProteinUnits WRITE setFatProteinUnits NOTIFY changed)
    Q_PROPERTY(bool undoRemoval READ undoRemoval WRITE setUndoRemoval NOTIFY changed)
    Q_PROPERTY(bool recentFoods READ recentFoods WRITE setRecentFoods NOTIFY changed)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY changed)

public:
    [[nodiscard]] static HostSettings *shared();
    static HostSettings *create(QQmlEngine *, QJSEngine *);

    [[nodiscard]] const HostOptions &options() const { return m_options; }
    void setOptions(const HostOptions &options);

    [[nodiscard]] QString carbUnitName() const;
    void setCarbUnitName(const QString &name);
    [[nodiscard]] bool netCarbohydrates() const { return m_options.netCarbohydrates; }
    void setNetCarbohydrates(bool on);
    [[nodiscard]] bool fatProteinUnits() const { return m_options.fatProteinUnits; }
    void setFatProteinUnits(bool on);
    [[nodiscard]] bool undoRemoval() const { return m_options.undoRemoval; }
    void setUndoRemoval(bool on);
    [[nodiscard]] bool recentFoods() const { return m_options.recentFoods; }
    void setRecentFoods(bool on);
    [[nodiscard]] const QString &language() const { return m_options.language; }
    void setLanguage(const QString &language);

    /// Installs the translation of the chosen language, or of the system's locale, in place of the one
    /// before, and has every engine prepared for the module translate its screens again.
    void applyLanguage();
    void addEngine(QQmlEngine *engine);

signals:
    void changed();

private:
    HostSettings() = default;
    void setFlag(bool HostOptions::*flag, bool on);
    HostOptions m_options;
    QTranslator *m_translator = nullptr;
    QList<QPointer<QQmlEngine>> m_engines;
};

} // namespace nutrika
