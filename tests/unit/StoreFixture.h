#pragma once

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

/// Points the preferences store at a private, empty folder, so that tests never touch a user's settings
/// and tests running side by side never share a store.
class StoreFixture
{
public:
    StoreFixture()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("HOME", m_home.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", QByteArray(m_home.path().toUtf8() + "/config"));
    }

    [[nodiscard]] QString home() const { return m_home.path(); }

    /// Writes any value under the meal key, as another program might.
    static void storeRaw(const QVariant &value)
    {
        QSettings settings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Nutrika"),
                           QStringLiteral("nutrika"));
        settings.setValue(QStringLiteral("recipes"), value);
        settings.sync();
    }

    static void clear() { storeRaw(QVariant()); }

private:
    QTemporaryDir m_home;
};
