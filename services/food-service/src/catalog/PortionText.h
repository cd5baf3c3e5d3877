#pragma once

#include <string>
#include <string_view>

namespace foodservice {

// "1 cup, chopped", "1/2 cup", "1 1/2 tbsp": the measure as a person reads it.
[[nodiscard]] std::string portionDescription(double amount, std::string_view measureName);

// The amount a portion description starts with, as portionDescription writes it:
// "1 1/2 cup" gives 1.5, "3/4 cup" 0.75, "2.5 oz" 2.5; 1 when it starts with no amount.
[[nodiscard]] double leadingAmount(std::string_view description);

// Gram weight rounded to the nearest whole gram, at least 1.
[[nodiscard]] int portionGrams(double grams);

} // namespace foodservice
