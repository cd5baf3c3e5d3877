#include "PortionItem.h"

#include "Formatting.h"
#include "JsonFields.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

QString PortionItem::sizeText() const
{
    return QString::number(size) + formatUnitShort(unit);
}

QJsonObject ConvertibleUnit::toJson() const
{
    return {{u"type"_s, type}, {u"is_base"_s, is_base},
            {u"id"_s, id},     {u"to_base_conversion_rate"_s, to_base_conversion_rate},
            {u"name"_s, name}, {u"unit"_s, unit}};
}

ConvertibleUnit ConvertibleUnit::fromJson(const QJsonValue &value)
{
    const QJsonObject o = json::asObject(value, u"ConvertibleUnit");
    return {json::string(o, u"type"), json::integer(o, u"is_base"),
            json::integer(o, u"id"),  json::integer(o, u"to_base_conversion_rate"),
            json::string(o, u"name"), json::string(o, u"unit")};
}

QJsonObject PortionItem::toJson() const
{
    QJsonObject o{{u"order_num"_s, order_num},
                  {u"id"_s, id},
                  {u"_id"_s, _id},
                  {u"unit"_s, unit},
                  {u"database_import"_s, database_import},
                  {u"size"_s, size},
                  {u"image_name"_s, image_name},
                  {u"description"_s, description},
                  {u"convertible_unit"_s, convertible_unit.toJson()}};
    if (is_default)
        o.insert(u"is_default", *is_default);
    return o;
}

PortionItem PortionItem::fromJson(const QJsonValue &value)
{
    const QJsonObject o = json::asObject(value, u"PortionItem");
    PortionItem p;
    p.order_num = json::integer(o, u"order_num");
    p.id = json::integer(o, u"id");
    p._id = json::integer(o, u"_id");
    p.unit = json::string(o, u"unit");
    p.database_import = json::integer(o, u"database_import");
    p.size = json::integer(o, u"size");
    // An optional key may be missing or null; either way the flag is absent.
    if (const QJsonValue flag = o.value(u"is_default"); !flag.isUndefined() && !flag.isNull())
        p.is_default = json::boolean(o, u"is_default");
    p.image_name = json::string(o, u"image_name");
    p.description = json::string(o, u"description");
    p.convertible_unit = ConvertibleUnit::fromJson(json::object(o, u"convertible_unit"));
    return p;
}

const PortionItem &basePortionItem()
{
    static const PortionItem base{123,
                                  -1,
                                  -1,
                                  u"grams"_s,
                                  1233,
                                  23,
                                  std::nullopt,
                                  QString(),
                                  u"tablespoon, dry"_s,
                                  ConvertibleUnit{QString(), 123, 132, 342, QString(), QString()}};
    return base;
}

} // namespace nutrika
