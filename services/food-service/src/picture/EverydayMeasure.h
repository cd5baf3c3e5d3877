#pragma once

#include <string>
#include <string_view>

namespace foodservice {

// A portion's measure in the words a person uses, short enough for a picture's label:
// "1 cup large 32 fl oz size" gives "1 large cup", "1 medium (3\" dia)" gives "1 medium",
// "1 piece, cooked, excluding refuse" gives "1 piece". The full text stays with the portion.
[[nodiscard]] std::string everydayMeasure(std::string_view description);

} // namespace foodservice
