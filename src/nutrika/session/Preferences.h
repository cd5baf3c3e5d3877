#pragma once

#include <QSettings>

namespace nutrika {

/// The module's own per-user preferences, whatever the host application calls itself. The file holds
/// each value as raw bytes, so a large meal document is stored and read back without any text escaping.
class Preferences : public QSettings
{
public:
    Preferences();
};

} // namespace nutrika
