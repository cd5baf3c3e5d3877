#pragma once

#include <optional>
#include <QColor>
#include <QString>

namespace nutrika {

/// A colour from the module's own catalogue, looked up by name; absent when the catalogue lacks it.
[[nodiscard]] std::optional<QColor> namedColor(const QString &name);

/// False only when XCODE_RUNNING_FOR_PREVIEWS is exactly "1"; computed once per process.
[[nodiscard]] bool notCanvas();

/// The catalogue colour when running for real, else the preview fallback. Pure, for the accessors below.
[[nodiscard]] std::optional<QColor> resolveUIColor(const QString &name, bool running,
                                                   const QColor &previewFallback);

/// Colours for widget-side code, each computed once on first use.
namespace UIColor {
[[nodiscard]] const std::optional<QColor> &titleText();
[[nodiscard]] const std::optional<QColor> &headingText();
[[nodiscard]] const std::optional<QColor> &detailColor();
[[nodiscard]] const std::optional<QColor> &lightGray();
} // namespace UIColor

} // namespace nutrika
