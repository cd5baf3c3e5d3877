#pragma once

#include <string>
#include <string_view>

namespace foodservice {

// What a portion picture can show for a household measure: "cup", "glass", "bowl", "slice", "piece",
// "small", "medium", "large", "tablespoon" or "teaspoon"; "" when a picture cannot
// show it (weights such as "oz", packages, servings).
[[nodiscard]] std::string pictureKindOf(std::string_view measureName);

} // namespace foodservice
