#pragma once

#include <optional>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

namespace nutrika::lenient {

/// Any JSON number, cut toward zero, or true and false as 1 and 0; nothing else, nor a number out of range.
[[nodiscard]] std::optional<qint64> integer(const QJsonValue &value);
/// Only a JSON string.
[[nodiscard]] std::optional<QString> string(const QJsonValue &value);
/// A number, a numeric string, or true and false as 1 and 0; anything else reads as 0.
[[nodiscard]] double amount(const QJsonValue &value);

} // namespace nutrika::lenient
