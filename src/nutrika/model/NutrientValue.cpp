#include "NutrientValue.h"

#include "JsonFields.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

QJsonObject NutrientValue::toJson() const
{
    return {{u"name"_s, name}, {u"unit"_s, unit}, {u"value"_s, value}, {u"dp"_s, dp}};
}

NutrientValue NutrientValue::fromJson(const QJsonValue &value)
{
    const QJsonObject o = json::asObject(value, u"NutrientValue");
    return {json::string(o, u"name"), json::string(o, u"unit"), json::number(o, u"value"),
            json::integer(o, u"dp")};
}

} // namespace nutrika
