#include "FoodItem.h"

#include "JsonFields.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

QJsonObject FoodItem::toJson() const
{
    return {{u"description"_s, description},
            {u"id"_s, id},
            {u"_id"_s, _id},
            {u"brand"_s, brand},
            {u"isBranded"_s, isBranded}};
}

FoodItem FoodItem::fromJson(const QJsonValue &value)
{
    const QJsonObject o = json::asObject(value, u"FoodItem");
    return {json::string(o, u"description"), json::integer(o, u"id"), json::integer(o, u"_id"),
            json::string(o, u"brand"), json::boolean(o, u"isBranded")};
}

} // namespace nutrika
