#include "search/SearchEngine.h"

#include "search/Ranking.h"
#include "text/FoldedText.h"

#include <algorithm>

namespace foodservice {
namespace {

// More words than this add nothing to a food search and only cost time.
constexpr std::size_t maxSearchWords = 12;

} // namespace

SearchEngine::SearchEngine(const Catalog &catalog, ConnectionPool &pool)
    : m_catalog(catalog), m_pool(pool), m_corrector(catalog.vocabulary())
{
}

std::vector<RankedFood> SearchEngine::matches(std::string_view text) const
{
    auto words = foldedWords(foldText(text));
    if (words.size() > maxSearchWords)
        words.resize(maxSearchWords);
    if (words.empty())
        return {};
    auto found = lookUp(words);
    if (!found.empty())
        return found;
    bool corrected = false;
    for (auto &word : words) {
        if (m_corrector.isKnownPrefix(word))
            continue;
        if (auto correction = m_corrector.correction(word)) {
            word = std::move(*correction);
            corrected = true;
        }
    }
    return corrected ? lookUp(words) : found;
}

std::vector<RankedFood> SearchEngine::lookUp(const std::vector<std::string> &words) const
{
    // Folded words hold only letters and digits, so quoting them is enough.
    std::string expression;
    for (const auto &word : words) {
        if (!expression.empty())
            expression += ' ';
        expression += '"' + word + "\"*";
    }
    std::vector<RankedFood> found;
    auto lease = m_pool.acquire();
    auto &query = lease->prepared("SELECT rowid FROM food_search WHERE food_search MATCH ?");
    query.bind(1, expression);
    while (query.step()) {
        if (const auto *food = m_catalog.find(query.integer(0)))
            found.push_back({relevance(*food, words), food});
    }
    return found;
}

void SearchEngine::orderBest(std::vector<RankedFood> &foods, std::size_t count)
{
    const auto better = [](const RankedFood &a, const RankedFood &b) {
        if (a.score != b.score)
            return a.score > b.score;
        if (a.food->description != b.food->description)
            return a.food->description < b.food->description;
        return a.food->id < b.food->id;
    };
    const auto middle = foods.begin() + static_cast<std::ptrdiff_t>(std::min(count, foods.size()));
    std::partial_sort(foods.begin(), middle, foods.end(), better);
}

} // namespace foodservice
