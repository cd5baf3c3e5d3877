#pragma once

#include <optional>
#include <QSettings>

namespace nutrika {

/// The module's own per-user preferences, whatever the host application calls itself. The file holds
/// each value as raw bytes, so a large meal document is stored and read back without any text escaping.
class Preferences : public QSettings
{
public:
    Preferences();

    /// Every value the file holds now: none when there is no file or it is empty, nullopt when it holds
    /// bytes that cannot be read as preferences. QSettings rereads its file only when the size or the
    /// millisecond of the last change differs, so it can miss a same-sized write by another process.
    [[nodiscard]] std::optional<SettingsMap> valuesOnDisk() const;
};

} // namespace nutrika
