#pragma once

#include <optional>
#include <QString>

namespace nutrika {

/// The short form of a unit name ("grams" -> "g", "calories" -> " kcal"); an unknown name gets a
/// leading blank ("portion" -> " portion").
[[nodiscard]] QString formatUnitShort(const QString &unit);

/// `value` printed with `decimalPlaces` fixed decimals (unchanged when absent), then the short unit.
/// The decimal point is a point whatever the locale. Text that is not a number, or a negative count
/// of places, leaves the value as it was given.
[[nodiscard]] QString formatValueWithUnits(const QString &value, const QString &unit,
                                           std::optional<int> decimalPlaces);

/// The shortest plain decimal text that reads back as `value`, never in exponent form, with ".0" on a
/// whole number: 12.5, 12.0, 100000.0, 0.1.
[[nodiscard]] QString shortestDecimalText(double value);
/// `text` without each ".0" that ends a number: "12.0g" -> "12g"; "10.05" keeps its digits.
[[nodiscard]] QString withoutPointZero(QString text);
/// An amount in grams as lists show it: "12 g", "12.5 g", "0 g", "100000 g".
[[nodiscard]] QString amountText(double amount);

} // namespace nutrika
