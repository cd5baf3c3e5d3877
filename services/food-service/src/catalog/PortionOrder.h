#pragma once

#include <string_view>

namespace foodservice {

// Where a portion stands in its food's list, lowest first: whole natural units (a medium one first,
// then a slice, a piece, a large one), then household measures (a cup first, as a drink is poured), then
// weights, then servings, packages and the rest. People mostly mean the first kind; a weight is for
// those who weighed.
[[nodiscard]] int portionRank(std::string_view measureName);

} // namespace foodservice
