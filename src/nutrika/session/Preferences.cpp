#include "Preferences.h"

#include <QDataStream>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

constexpr quint32 fileMagic = 0x4e545231; // "NTR1"

bool readPreferences(QIODevice &device, QSettings::SettingsMap &map)
{
    QDataStream in(&device);
    in.setVersion(QDataStream::Qt_6_4);
    quint32 magic = 0;
    in >> magic;
    if (magic != fileMagic)
        return false;
    in >> map;
    return in.status() == QDataStream::Ok && in.atEnd();
}

bool writePreferences(QIODevice &device, const QSettings::SettingsMap &map)
{
    QDataStream out(&device);
    out.setVersion(QDataStream::Qt_6_4);
    out << fileMagic << map;
    return out.status() == QDataStream::Ok;
}

QSettings::Format preferencesFormat()
{
    static const QSettings::Format format =
        QSettings::registerFormat(u"prefs"_s, readPreferences, writePreferences);
    return format;
}

} // namespace

Preferences::Preferences() : QSettings(preferencesFormat(), QSettings::UserScope, u"Nutrika"_s, u"nutrika"_s)
{
}

std::optional<QSettings::SettingsMap> Preferences::valuesOnDisk() const
{
    QFile file(fileName());
    SettingsMap map;
    if (!file.open(QIODevice::ReadOnly) || file.size() == 0)
        return map;
    if (!readPreferences(file, map))
        return std::nullopt;
    return map;
}

} // namespace nutrika
