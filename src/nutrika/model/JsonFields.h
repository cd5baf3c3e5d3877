#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <stdexcept>

namespace nutrika {

/// Why a stored record could not be decoded; caught where outside bytes enter the module.
class JsonDecodeError : public std::runtime_error
{
public:
    explicit JsonDecodeError(const QString &description);
};

/// Strict readers for the stored records: a missing key or a value of another JSON type is an error.
namespace json {
[[nodiscard]] QJsonObject asObject(const QJsonValue &value, QStringView what);
[[nodiscard]] QJsonValue required(const QJsonObject &object, QStringView key);
[[nodiscard]] qint64 integer(const QJsonObject &object, QStringView key);
[[nodiscard]] double number(const QJsonObject &object, QStringView key);
[[nodiscard]] bool boolean(const QJsonObject &object, QStringView key);
[[nodiscard]] QString string(const QJsonObject &object, QStringView key);
[[nodiscard]] QJsonObject object(const QJsonObject &object, QStringView key);
[[nodiscard]] QJsonArray array(const QJsonObject &object, QStringView key);
} // namespace json

} // namespace nutrika
