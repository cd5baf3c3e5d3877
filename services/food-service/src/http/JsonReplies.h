#pragma once

#include "db/FoodStore.h"
#include "search/Catalog.h"

#include <nlohmann/json.hpp>
#include <string>

namespace foodservice {

// {"id", "description", "food_brand", "is_generic_item"}
[[nodiscard]] nlohmann::json foodJson(const FoodRecord &food);

// A portion with its grams base unit.
[[nodiscard]] nlohmann::json portionJson(const PortionRow &portion);

// {"nutrient": {"name"}, "amount": {"value", "units"}} for `grams` of the food.
[[nodiscard]] nlohmann::json nutrientJson(const NutrientAmount &nutrient, double grams);

// {"error": message} plus {"parameter": name} when a parameter is at fault.
[[nodiscard]] std::string errorBody(const std::string &message, const std::string &parameter = {});

// Serialises a reply; text that is not valid UTF-8 is replaced, never thrown on.
[[nodiscard]] std::string serialise(const nlohmann::json &reply);

} // namespace foodservice
