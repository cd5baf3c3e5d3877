#pragma once

#include "search/Catalog.h"
#include "search/SearchTerms.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace foodservice {

// Which forms of a food people eat and weigh, from data/eaten-forms.json: each rule
// gives a score to the foods of some groups whose description has some words
// ("cooked" rice up, "raw" rice down). A rule is set aside for a search that asks
// for its words itself ("raw rice", "baby food").
class EatenForms
{
public:
    using RuleIndex = std::uint16_t;

    // Reads {"rules": [{"why", "groups"?, "foods"?, "words"?, "unless_searched"?, "score"}]}:
    // groups (none: every group), foods and words (phrases, "^" anchored at the start; the
    // food must have one of each list given). Throws std::runtime_error.
    explicit EatenForms(std::string_view json);

    // The rules that apply to a food.
    [[nodiscard]] std::vector<RuleIndex> rulesFor(const FoodRecord &food) const;
    // One flag per rule: true when the search asks for what the rule is about.
    [[nodiscard]] std::vector<bool> setAsideBy(const std::vector<SearchTerm> &terms) const;
    [[nodiscard]] int score(RuleIndex rule) const { return m_rules[rule].score; }
    [[nodiscard]] std::size_t ruleCount() const { return m_rules.size(); }

private:
    struct Rule
    {
        std::vector<std::string> groups;
        std::vector<std::string> foods;
        std::vector<std::string> words;
        // Phrases that set the rule aside when the search has all their words: those of
        // `words` and "unless_searched".
        std::vector<std::vector<std::string>> named;
        int score = 0;
    };
    std::vector<Rule> m_rules;
};

} // namespace foodservice
