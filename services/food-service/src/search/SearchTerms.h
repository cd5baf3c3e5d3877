#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace foodservice {

// One word of a search with the other ways the food table may write it.
struct SearchTerm
{
    // As typed, folded: matches any word it starts.
    std::string typed;
    // Plurals not spelt by adding "s" or "es", matched as whole words ("cherry" -> "cherries").
    std::vector<std::string> forms;
    // Singulars of a plural, matched as whole words but ranked as a looser match: "grape
    // leaves" answers "grapes" less well than "grapes" does.
    std::vector<std::string> singulars;
    // What the food table calls an everyday word, each a phrase whose words must all
    // be present, each as a word prefix ("ketchup" -> catsup, "soda" -> carbonated beverage).
    std::vector<std::vector<std::string>> synonyms;
};

// The singulars of a folded plural word ("cherries" -> "cherry", "cherrie").
[[nodiscard]] std::vector<std::string> singularForms(std::string_view word);
// The plural of a folded word in -y ("cherry" -> "cherries"); other plurals are word prefixes.
[[nodiscard]] std::vector<std::string> pluralForms(std::string_view word);

// Turns folded search words into terms, with the synonyms of data/search-words.json.
class SearchWords
{
public:
    // Reads {"synonyms": {"word": ["phrase", ...]}}; throws std::runtime_error.
    explicit SearchWords(std::string_view json);

    [[nodiscard]] std::vector<SearchTerm> terms(const std::vector<std::string> &words) const;
    [[nodiscard]] bool hasSynonyms(std::string_view word) const { return m_synonyms.contains(word); }

private:
    std::map<std::string, std::vector<std::vector<std::string>>, std::less<>> m_synonyms;
};

} // namespace foodservice
