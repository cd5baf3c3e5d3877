#include "search/SearchEngine.h"

#include "catalog/EmbeddedTables.h"
#include "search/Ranking.h"
#include "text/FoldedText.h"

#include <algorithm>

namespace foodservice {
namespace {

// More words than this add nothing to a food search and only cost time.
constexpr std::size_t maxSearchWords = 12;

} // namespace

SearchEngine::SearchEngine(const Catalog &catalog)
    : m_catalog(catalog), m_index(catalog), m_corrector(catalog.vocabulary()),
      m_searchWords(searchWordTable()), m_eatenForms(eatenFormTable())
{
    m_rules.reserve(catalog.foods().size());
    m_eatenScore.reserve(catalog.foods().size());
    for (const auto &food : catalog.foods()) {
        m_rules.push_back(m_eatenForms.rulesFor(food));
        int total = 0;
        for (const auto rule : m_rules.back())
            total += m_eatenForms.score(rule);
        m_eatenScore.push_back(total);
    }
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
        if (m_corrector.isKnownPrefix(word) || m_searchWords.hasSynonyms(word))
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
    const auto terms = m_searchWords.terms(words);
    const auto setAside = m_eatenForms.setAsideBy(terms);
    const bool anySetAside = std::find(setAside.begin(), setAside.end(), true) != setAside.end();
    std::vector<RankedFood> found;
    for (const auto index : m_index.lookUp(terms)) {
        const auto &food = m_catalog.foods()[index];
        int eaten = m_eatenScore[index];
        if (anySetAside) {
            for (const auto rule : m_rules[index])
                eaten -= setAside[rule] ? m_eatenForms.score(rule) : 0;
        }
        found.push_back({relevance(food, terms) + eaten, &food});
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
