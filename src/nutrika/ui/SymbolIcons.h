#pragma once

#include <QString>

namespace nutrika {

/// The Material Icons glyph drawn for a system symbol name ("chevron.left"); empty for an unknown name.
[[nodiscard]] QString symbolGlyph(const QString &symbolName);

/// The family of the Material Icons font, loaded from the system's fonts on first use; empty if missing.
[[nodiscard]] QString symbolFontFamily();

} // namespace nutrika
