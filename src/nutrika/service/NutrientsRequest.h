#pragma once

#include "FoodItem.h"
#include "NutrientValue.h"
#include "PortionItem.h"
#include "QueryEncoding.h"
#include "ServiceFailure.h"

#include <functional>
#include <optional>
#include <QList>
#include <QObject>

namespace nutrika {

class ServiceClient;

/// The nutrients of one portion: the tracked one ("Carbohydrates") apart, every other in reply order.
struct PortionNutrients
{
    QList<NutrientValue> nutrients;
    std::optional<NutrientValue> trackedNutrient;
};

/// Path by the food's `_id`.
[[nodiscard]] QString nutrientsPath(qint64 foodUnderscoreId);
/// "amount_value" is the size through a 32-bit float rounded to thousandths, written without ".0".
[[nodiscard]] QString amountValueText(qint64 size);
[[nodiscard]] QueryParameters nutrientsParameters(const PortionItem &portion);

/// Macronutrients then micronutrients; the last "Carbohydrates" is the tracked one. Elements without a
/// string name or units are skipped; a body that is not a JSON object is a server error.
[[nodiscard]] ServiceResult<PortionNutrients> mapNutrientsReply(const ServiceReply &reply);

/// Sends the request for one portion of the food; any failure passes nullopt without a word.
void requestNutrients(ServiceClient &client, const FoodItem &food, const PortionItem &portion,
                      QObject *context, std::function<void(const std::optional<PortionNutrients> &)> done);

} // namespace nutrika
