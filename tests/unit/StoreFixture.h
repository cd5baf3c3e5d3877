#pragma once

#include "Preferences.h"

#include <QFile>
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

    /// Writes any value under the meal key, as another program might.
    static void storeRaw(const QVariant &value)
    {
        nutrika::Preferences settings;
        settings.setValue(QStringLiteral("recipes"), value);
        settings.sync();
    }

    static void clear() { storeRaw(QVariant()); }

    [[nodiscard]] static QByteArray storedDocument()
    {
        return nutrika::Preferences().valueOnDisk(QStringLiteral("recipes")).toByteArray();
    }

    /// Overwrites the whole preferences file, as a failing disk or another program might.
    static void overwriteFile(const QByteArray &bytes)
    {
        QFile file(nutrika::Preferences().fileName());
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        file.write(bytes);
    }

private:
    QTemporaryDir m_home;
};
