#pragma once

#include "search/Catalog.h"
#include "search/SearchTerms.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace foodservice {

// The foods using each word of the catalog's descriptions, held in memory: a search
// answers from here without a database query.
class WordIndex
{
public:
    explicit WordIndex(const Catalog &catalog);

    // Catalog positions of the foods answering every term, ascending.
    [[nodiscard]] std::vector<std::size_t> lookUp(const std::vector<SearchTerm> &terms) const;

private:
    // One bit per food, by catalog position.
    using FoodSet = std::vector<std::uint64_t>;

    void addPrefix(std::string_view prefix, FoodSet &set) const;
    void addWord(std::string_view word, FoodSet &set) const;
    [[nodiscard]] FoodSet termFoods(const SearchTerm &term) const;

    std::size_t m_foodCount = 0;
    // Sorted by word; each food position once per word.
    std::vector<std::pair<std::string, std::vector<std::uint32_t>>> m_words;
};

} // namespace foodservice
