#include "search/EatenForms.h"

#include "search/Ranking.h"
#include "text/FoldedText.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace foodservice {
namespace {

// Prefixes shorter than this are still being typed and set no rule aside.
constexpr std::size_t shortestNamingPrefix = 3;

std::vector<std::string> strings(const nlohmann::json &rule, const char *key)
{
    std::vector<std::string> values;
    if (rule.contains(key)) {
        for (const auto &value : rule.at(key))
            values.push_back(value.get<std::string>());
    }
    return values;
}

// Folded like descriptions, keeping a leading "^".
std::vector<std::string> phrases(const nlohmann::json &rule, const char *key)
{
    auto values = strings(rule, key);
    for (auto &value : values) {
        const bool anchored = value.starts_with('^');
        value = (anchored ? "^" : "") + foldText(std::string_view(value).substr(anchored ? 1 : 0));
    }
    return values;
}

bool hasAny(std::string_view folded, const std::vector<std::string> &phrases)
{
    return phrases.empty() || std::any_of(phrases.begin(), phrases.end(),
                                          [&](const auto &phrase) { return matchesPhrase(folded, phrase); });
}

bool names(const SearchTerm &term, std::string_view word)
{
    return term.typed == word || (term.typed.size() >= shortestNamingPrefix && answers(term, word));
}

} // namespace

EatenForms::EatenForms(std::string_view json)
{
    try {
        const auto table = nlohmann::json::parse(json);
        for (const auto &entry : table.at("rules")) {
            Rule rule{strings(entry, "groups"),
                      phrases(entry, "foods"),
                      phrases(entry, "words"),
                      {},
                      entry.at("score").get<int>()};
            if (!entry.at("why").is_string())
                throw std::runtime_error("every rule says why");
            for (const auto &phrase : rule.words)
                rule.named.push_back(foldedWords(phrase.starts_with('^') ? phrase.substr(1) : phrase));
            for (const auto &word : strings(entry, "unless_searched"))
                rule.named.push_back(foldedWords(foldText(word)));
            m_rules.push_back(std::move(rule));
        }
        if (m_rules.size() > std::numeric_limits<RuleIndex>::max())
            throw std::runtime_error("too many rules");
    } catch (const std::exception &error) {
        throw std::runtime_error(std::string("bad eaten-form table: ") + error.what());
    }
}

std::vector<EatenForms::RuleIndex> EatenForms::rulesFor(const FoodRecord &food) const
{
    std::string folded;
    for (const auto &word : food.words)
        folded += (folded.empty() ? "" : " ") + word;
    std::vector<RuleIndex> applying;
    for (std::size_t i = 0; i < m_rules.size(); ++i) {
        const auto &rule = m_rules[i];
        const bool inGroup = rule.groups.empty() || std::find(rule.groups.begin(), rule.groups.end(),
                                                              food.category) != rule.groups.end();
        if (inGroup && hasAny(folded, rule.foods) && hasAny(folded, rule.words))
            applying.push_back(static_cast<RuleIndex>(i));
    }
    return applying;
}

std::vector<bool> EatenForms::setAsideBy(const std::vector<SearchTerm> &terms) const
{
    std::vector<bool> setAside(m_rules.size(), false);
    const auto searched = [&](const std::string &word) {
        return std::any_of(terms.begin(), terms.end(), [&](const auto &term) { return names(term, word); });
    };
    for (std::size_t i = 0; i < m_rules.size(); ++i) {
        for (const auto &phrase : m_rules[i].named) {
            if (std::all_of(phrase.begin(), phrase.end(), searched))
                setAside[i] = true;
        }
    }
    return setAside;
}

} // namespace foodservice
