#pragma once

#include <string>
#include <string_view>

namespace foodservice {

// The brand or maker named in a food description, or "" for a generic food.
// The brand is the first comma-separated segment that opens with words in capitals
// ("Cereals ready-to-eat, KELLOGG, ..." gives "KELLOGG", "WENDY'S, Chicken Nuggets"
// gives "WENDY'S"), taking the capitalised words up to the first ordinary word.
[[nodiscard]] std::string brandOf(std::string_view description);

} // namespace foodservice
