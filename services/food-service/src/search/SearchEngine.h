#pragma once

#include "search/Catalog.h"
#include "search/EatenForms.h"
#include "search/SearchTerms.h"
#include "search/SpellingCorrector.h"
#include "search/WordIndex.h"

#include <string>
#include <string_view>
#include <vector>

namespace foodservice {

struct RankedFood
{
    int score = 0;
    const FoodRecord *food = nullptr;
};

// Food search over the words of the descriptions: case and accents do not matter, every word must match as
// a word prefix, in another form or through a synonym, and a misspelt word is
// corrected when nothing matches as typed. Foods in the form people eat them rank first.
class SearchEngine
{
public:
    explicit SearchEngine(const Catalog &catalog);

    // Every food matching the text, unordered, with its relevance.
    [[nodiscard]] std::vector<RankedFood> matches(std::string_view text) const;

    // Orders the first `count` foods best first (ties by description, then id).
    static void orderBest(std::vector<RankedFood> &foods, std::size_t count);

private:
    [[nodiscard]] std::vector<RankedFood> lookUp(const std::vector<std::string> &words) const;

    const Catalog &m_catalog;
    WordIndex m_index;
    SpellingCorrector m_corrector;
    SearchWords m_searchWords;
    EatenForms m_eatenForms;
    // Per food, by catalog position: the eaten-form rules that apply and their total.
    std::vector<std::vector<EatenForms::RuleIndex>> m_rules;
    std::vector<int> m_eatenScore;
};

} // namespace foodservice
