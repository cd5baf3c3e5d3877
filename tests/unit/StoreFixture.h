#pragma once

#include "Preferences.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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

    /// Removes every file of the store: the preferences, their locks and the copies kept of unreadable
    /// stores. Not through the settings, whose lock a writer killed in its save may have left behind.
    static void clear()
    {
        QDir folder = QFileInfo(nutrika::Preferences().fileName()).dir();
        for (const QString &file : folder.entryList(QDir::Files | QDir::Hidden))
            folder.remove(file);
    }

    /// The copies of unreadable stores kept beside the preferences file.
    [[nodiscard]] static QStringList keptCopies()
    {
        const QFileInfo store(nutrika::Preferences().fileName());
        QStringList paths;
        for (const QFileInfo &copy :
             store.dir().entryInfoList({store.completeBaseName() + QStringLiteral("-unreadable-*")}))
            paths << copy.filePath();
        return paths;
    }

    [[nodiscard]] static QByteArray fileBytes()
    {
        QFile file(nutrika::Preferences().fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    [[nodiscard]] static QByteArray storedDocument()
    {
        return nutrika::Preferences()
            .valuesOnDisk()
            .value_or(QSettings::SettingsMap())
            .value(QStringLiteral("recipes"))
            .toByteArray();
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
