#include "search/SearchTerms.h"

#include "text/FoldedText.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace foodservice {
namespace {

constexpr std::size_t shortestInflected = 4;

bool isVowel(char c)
{
    return c == 'a' || c == 'e' || c == 'i' || c == 'o' || c == 'u';
}

} // namespace

std::vector<std::string> singularForms(std::string_view word)
{
    std::vector<std::string> forms;
    if (word.size() < shortestInflected)
        return forms;
    const auto stem = [&](std::size_t dropped) { return std::string(word.substr(0, word.size() - dropped)); };
    if (word.ends_with("ies")) {
        forms.push_back(stem(3) + 'y');
        forms.push_back(stem(1));
    } else if (word.ends_with("es")) {
        forms.push_back(stem(2));
        forms.push_back(stem(1));
    } else if (word.ends_with('s') && !word.ends_with("ss") && !word.ends_with("us")) {
        forms.push_back(stem(1));
    }
    return forms;
}

std::vector<std::string> pluralForms(std::string_view word)
{
    if (word.size() < shortestInflected || !word.ends_with('y') || isVowel(word[word.size() - 2]))
        return {};
    return {std::string(word.substr(0, word.size() - 1)) + "ies"};
}

SearchWords::SearchWords(std::string_view json)
{
    try {
        const auto table = nlohmann::json::parse(json);
        for (const auto &[word, phrases] : table.at("synonyms").items()) {
            const auto key = foldedWords(foldText(word));
            if (key.size() != 1)
                throw std::runtime_error("a synonym is looked up by one word, not \"" + word + "\"");
            auto &synonyms = m_synonyms[key.front()];
            for (const auto &phrase : phrases) {
                auto words = foldedWords(foldText(phrase.get<std::string>()));
                if (words.empty())
                    throw std::runtime_error("empty synonym for \"" + word + "\"");
                synonyms.push_back(std::move(words));
            }
        }
    } catch (const std::exception &error) {
        throw std::runtime_error(std::string("bad search word table: ") + error.what());
    }
}

std::vector<SearchTerm> SearchWords::terms(const std::vector<std::string> &words) const
{
    std::vector<SearchTerm> terms;
    terms.reserve(words.size());
    for (const auto &word : words) {
        SearchTerm term{word, pluralForms(word), singularForms(word), {}};
        if (const auto found = m_synonyms.find(word); found != m_synonyms.end())
            term.synonyms = found->second;
        terms.push_back(std::move(term));
    }
    return terms;
}

} // namespace foodservice
