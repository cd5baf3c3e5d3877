#include "NutrientsRequest.h"

#include "ReplyFields.h"
#include "ServiceClient.h"
#include "Totals.h"

#include <cmath>
#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

std::optional<NutrientValue> nutrientValue(const QJsonValue &element)
{
    const QJsonObject o = element.toObject();
    std::optional<QString> name = lenient::string(o.value("nutrient"_L1).toObject().value("name"_L1));
    const QJsonObject amount = o.value("amount"_L1).toObject();
    std::optional<QString> unit = lenient::string(amount.value("units"_L1));
    if (!name || !unit)
        return std::nullopt;
    const qint64 dp = *name == u"Calories" ? 0 : 1;
    return NutrientValue{std::move(*name), std::move(*unit), lenient::amount(amount.value("value"_L1)), dp};
}

} // namespace

QString nutrientsPath(qint64 foodUnderscoreId)
{
    return u"/api/v1/healthcare//food/"_s + QString::number(foodUnderscoreId) + u"/get_nutrients"_s;
}

QString amountValueText(qint64 size)
{
    const float thousandths = std::round(static_cast<float>(size) * 1000.0f);
    const double value = static_cast<double>(thousandths / 1000.0f);
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

QueryParameters nutrientsParameters(const PortionItem &portion)
{
    return {{u"amount_value"_s, amountValueText(portion.size)}, {u"amount_unit"_s, portion.unit}};
}

ServiceResult<PortionNutrients> mapNutrientsReply(const ServiceReply &reply)
{
    if (!hasJsonBody(reply) || !reply.json.isObject())
        return failureOf(reply);
    const QJsonObject root = reply.json.object();
    const QJsonArray macronutrients = root.value("macronutrients"_L1).toArray();
    const QJsonArray micronutrients = root.value("micronutrients"_L1).toArray();
    PortionNutrients result;
    result.nutrients.reserve(macronutrients.size() + micronutrients.size());
    for (const QJsonArray &group : {macronutrients, micronutrients}) {
        for (const QJsonValue element : group) {
            std::optional<NutrientValue> value = nutrientValue(element);
            if (!value)
                continue;
            if (value->name == COUNTER_TYPE)
                result.trackedNutrient = std::move(value);
            else
                result.nutrients.append(std::move(*value));
        }
    }
    return result;
}

void requestNutrients(ServiceClient &client, const FoodItem &food, const PortionItem &portion,
                      QObject *context, std::function<void(const std::optional<PortionNutrients> &)> done)
{
    client.sendJsonRequest(nutrientsPath(food._id), nutrientsParameters(portion), context,
                           [done = std::move(done)](const ServiceReply &reply) {
                               ServiceResult<PortionNutrients> result = mapNutrientsReply(reply);
                               if (auto *nutrients = std::get_if<PortionNutrients>(&result))
                                   done(std::move(*nutrients));
                               else
                                   done(std::nullopt);
                           });
}

} // namespace nutrika
