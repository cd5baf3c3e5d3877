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
    // Singular or plural spellings, matched as whole words ("cherry" -> "cherries").
    std::vector<std::string> forms;
    // What the food table calls an everyday word, each a phrase whose words must all
    // be present, each as a word prefix ("ketchup" -> catsup, "soda" -> carbonated beverage).
    std::vector<std::vector<std::string>> synonyms;
};

// The other spellings of a folded word: singular for a plural, plural for a word in -y.
[[nodiscard]] std::vector<std::string> wordForms(std::string_view word);

// The FTS5 expression matching foods that answer every term.
[[nodiscard]] std::string matchExpression(const std::vector<SearchTerm> &terms);

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
