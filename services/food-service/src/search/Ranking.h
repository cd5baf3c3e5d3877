#pragma once

#include "search/Catalog.h"

#include <string>
#include <vector>

namespace foodservice {

// How well a food answers the search words (folded); higher is better.
// The plain food comes first: a food named by the first search word ("Bananas, raw"
// for "banana") beats one that merely mentions it ("Bread, banana"); whole words
// beat prefixes, generic foods beat branded ones, short plain descriptions beat long
// ones, and foods with more household measures (the common ones) come earlier.
[[nodiscard]] int relevance(const FoodRecord &food, const std::vector<std::string> &searchWords);

} // namespace foodservice
