#pragma once

#include <string_view>

namespace foodservice {

// Index, among the folded words of a description, of the word that names the food:
// the first word, or the first word of the second segment when the first only names
// a class or a maker ("Beverages, coffee, ..." names coffee, "KELLOGG, ..." a cereal).
[[nodiscard]] int leadWordIndex(std::string_view description, bool firstSegmentIsBrand);

} // namespace foodservice
