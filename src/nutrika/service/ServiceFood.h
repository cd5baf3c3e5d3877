#pragma once

#include "FoodItem.h"

#include <optional>
#include <QJsonValue>

namespace nutrika {

/// A food object of a search or accompanying-food reply: "description", "id", "food_brand" and
/// "is_generic_item" (1 marks a generic food). Absent when one of them is missing or of another type.
[[nodiscard]] std::optional<FoodItem> serviceFood(const QJsonValue &element);

} // namespace nutrika
