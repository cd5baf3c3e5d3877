#pragma once

#include "search/Catalog.h"
#include "search/SearchTerms.h"

#include <string>
#include <vector>

namespace foodservice {

// How well a food's name answers the search terms; higher is better.
// The plain food comes first: a food named by the first search word ("Bananas, raw"
// for "banana") beats one that merely mentions it ("Bread, banana"); whole words
// beat prefixes, generic foods beat branded ones, short plain descriptions beat long
// ones, and foods with more household measures (the common ones) come earlier.
// The form in which a food is eaten is scored apart, by EatenForms.
[[nodiscard]] int relevance(const FoodRecord &food, const std::vector<SearchTerm> &terms);

// True when a word of a food's description answers the term as typed or in another form.
[[nodiscard]] bool answers(const SearchTerm &term, std::string_view word);

} // namespace foodservice
