#include "ReplyFields.h"

#include <cmath>

namespace nutrika::lenient {

std::optional<qint64> integer(const QJsonValue &value)
{
    if (value.isBool())
        return value.toBool() ? 1 : 0;
    if (!value.isDouble())
        return std::nullopt;
    constexpr double limit = 9223372036854775808.0; // 2^63
    const double truncated = std::trunc(value.toDouble());
    if (!(truncated >= -limit && truncated < limit))
        return std::nullopt;
    // Integers beyond 2^53 are kept exact when the reply wrote them without a fraction.
    return value.toInteger(static_cast<qint64>(truncated));
}

std::optional<QString> string(const QJsonValue &value)
{
    if (!value.isString())
        return std::nullopt;
    return value.toString();
}

double amount(const QJsonValue &value)
{
    double result = 0;
    if (value.isBool()) {
        result = value.toBool() ? 1 : 0;
    } else if (value.isDouble()) {
        result = value.toDouble();
    } else if (value.isString()) {
        bool ok = false;
        result = value.toString().toDouble(&ok);
        if (!ok)
            result = 0;
    }
    return std::isfinite(result) ? result : 0;
}

} // namespace nutrika::lenient
