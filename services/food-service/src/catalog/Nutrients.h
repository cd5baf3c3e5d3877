#pragma once

#include "source/SourceFood.h"

#include <string>
#include <vector>

namespace foodservice {

// A nutrient as the service reports it: display name, long unit name, amount per 100 g.
struct NutrientRow
{
    bool isMacro = false;
    std::string name;
    std::string units;
    double per100g = 0;
};

// The reported nutrients of a food, macronutrients first, in a fixed order.
// Nutrients the source does not give are left out rather than reported as zero.
[[nodiscard]] std::vector<NutrientRow> reportedNutrients(const SourceFood &food);

} // namespace foodservice
