#include "ServiceFood.h"

#include "ReplyFields.h"

#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

std::optional<FoodItem> serviceFood(const QJsonValue &element)
{
    const QJsonObject object = element.toObject();
    std::optional<QString> description = lenient::string(object.value("description"_L1));
    const std::optional<qint64> id = lenient::integer(object.value("id"_L1));
    std::optional<QString> brand = lenient::string(object.value("food_brand"_L1));
    const std::optional<qint64> generic = lenient::integer(object.value("is_generic_item"_L1));
    if (!description || !id || !brand || !generic)
        return std::nullopt;
    return FoodItem{std::move(*description), *id, *id, std::move(*brand), *generic != 1};
}

} // namespace nutrika
