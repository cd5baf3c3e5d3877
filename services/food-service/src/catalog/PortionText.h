#pragma once

#include <string>
#include <string_view>

namespace foodservice {

// "1 cup, chopped", "1/2 cup", "1 1/2 tbsp": the measure as a person reads it.
[[nodiscard]] std::string portionDescription(double amount, std::string_view measureName);

// Gram weight rounded to the nearest whole gram, at least 1.
[[nodiscard]] int portionGrams(double grams);

} // namespace foodservice
