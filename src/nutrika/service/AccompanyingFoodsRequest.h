#pragma once

#include "FoodItem.h"
#include "ServiceFailure.h"

#include <functional>
#include <optional>
#include <QList>
#include <QObject>

namespace nutrika {

class ServiceClient;

[[nodiscard]] QString accompanyingFoodsPath(qint64 foodId);

/// The foods in reply order, skipping incomplete elements; a top level that is not an array is an
/// empty list, a body that is not JSON a server error.
[[nodiscard]] ServiceResult<QList<FoodItem>> mapAccompanyingFoodsReply(const ServiceReply &reply);

/// Sends the request for the food's `id`; any failure passes nullopt without a word.
void requestAccompanyingFoods(ServiceClient &client, qint64 foodId, QObject *context,
                              std::function<void(std::optional<QList<FoodItem>> foods)> done);

} // namespace nutrika
