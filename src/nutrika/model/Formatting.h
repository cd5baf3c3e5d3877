#pragma once

#include <QString>
#include <optional>

namespace nutrika {

/// The short form of a unit name ("grams" -> "g", "calories" -> " kcal"); an unknown name gets a
/// leading blank ("portion" -> " portion").
[[nodiscard]] QString formatUnitShort(const QString &unit);

/// `value` printed with `decimalPlaces` fixed decimals (unchanged when absent), then the short unit.
/// The decimal point is a point whatever the locale. Text that is not a number, or a negative count
/// of places, leaves the value as it was given.
[[nodiscard]] QString formatValueWithUnits(const QString &value, const QString &unit,
                                           std::optional<int> decimalPlaces);

} // namespace nutrika
