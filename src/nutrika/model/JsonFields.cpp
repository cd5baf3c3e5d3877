#include "JsonFields.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

JsonDecodeError::JsonDecodeError(const QString &description) : std::runtime_error(description.toStdString())
{
}

namespace json {
namespace {

[[noreturn]] void mismatch(QStringView key, QStringView expected)
{
    throw JsonDecodeError(u"Expected %1 for key \"%2\"."_s.arg(expected, key));
}

} // namespace

QJsonObject asObject(const QJsonValue &value, QStringView what)
{
    if (!value.isObject())
        throw JsonDecodeError(u"Expected an object for %1."_s.arg(what));
    return value.toObject();
}

QJsonValue required(const QJsonObject &object, QStringView key)
{
    const auto it = object.constFind(key);
    if (it == object.constEnd())
        throw JsonDecodeError(u"No value associated with key \"%1\"."_s.arg(key));
    return it.value();
}

qint64 integer(const QJsonObject &object, QStringView key)
{
    const QJsonValue value = required(object, key);
    if (!value.isDouble())
        mismatch(key, u"an integer");
    // toInteger keeps all 64 bits of an integer and accepts a double only when it is a whole number in
    // range; two different fallbacks tell a real 0 or 1 apart from a refused value.
    const qint64 result = value.toInteger(0);
    if (result == 0 && value.toInteger(1) != 0)
        mismatch(key, u"an integer");
    return result;
}

double number(const QJsonObject &object, QStringView key)
{
    const QJsonValue value = required(object, key);
    if (!value.isDouble())
        mismatch(key, u"a number");
    return value.toDouble();
}

bool boolean(const QJsonObject &object, QStringView key)
{
    const QJsonValue value = required(object, key);
    if (!value.isBool())
        mismatch(key, u"a boolean");
    return value.toBool();
}

QString string(const QJsonObject &object, QStringView key)
{
    const QJsonValue value = required(object, key);
    if (!value.isString())
        mismatch(key, u"a string");
    return value.toString();
}

QJsonObject object(const QJsonObject &object, QStringView key)
{
    const QJsonValue value = required(object, key);
    if (!value.isObject())
        mismatch(key, u"an object");
    return value.toObject();
}

QJsonArray array(const QJsonObject &object, QStringView key)
{
    const QJsonValue value = required(object, key);
    if (!value.isArray())
        mismatch(key, u"an array");
    return value.toArray();
}

} // namespace json
} // namespace nutrika
