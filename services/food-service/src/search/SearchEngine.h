#pragma once

#include "db/ConnectionPool.h"
#include "search/Catalog.h"
#include "search/SpellingCorrector.h"

#include <string>
#include <string_view>
#include <vector>

namespace foodservice {

struct RankedFood
{
    int score = 0;
    const FoodRecord *food = nullptr;
};

// Full-text food search: case and accents do not matter, every word must match as
// a word prefix, and a misspelt word is corrected when nothing matches as typed.
class SearchEngine
{
public:
    SearchEngine(const Catalog &catalog, ConnectionPool &pool);

    // Every food matching the text, unordered, with its relevance.
    [[nodiscard]] std::vector<RankedFood> matches(std::string_view text) const;

    // Orders the first `count` foods best first (ties by description, then id).
    static void orderBest(std::vector<RankedFood> &foods, std::size_t count);

private:
    [[nodiscard]] std::vector<RankedFood> lookUp(const std::vector<std::string> &words) const;

    const Catalog &m_catalog;
    ConnectionPool &m_pool;
    SpellingCorrector m_corrector;
};

} // namespace foodservice
