#include "search/Ranking.h"

#include <algorithm>
#include <string_view>

namespace foodservice {
namespace {

// The searched word itself or its plural.
bool isWholeWord(std::string_view word, std::string_view searched)
{
    if (!word.starts_with(searched))
        return false;
    const auto rest = word.substr(searched.size());
    return rest.empty() || rest == "s" || rest == "es";
}

struct Match
{
    int position = -1;
    bool whole = false;
};

bool contains(const std::vector<std::string> &forms, std::string_view word)
{
    return std::find(forms.begin(), forms.end(), word) != forms.end();
}

// The first whole-word occurrence, else the first prefix or singular occurrence.
Match findWord(const std::vector<std::string> &words, std::string_view searched,
               const std::vector<std::string> &forms, const std::vector<std::string> &singulars)
{
    Match match;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (isWholeWord(words[i], searched) || contains(forms, words[i]))
            return {static_cast<int>(i), true};
        if (match.position < 0 && (words[i].starts_with(searched) || contains(singulars, words[i])))
            match.position = static_cast<int>(i);
    }
    return match;
}

// Every word of the phrase present; placed at its earliest word.
Match findPhrase(const std::vector<std::string> &words, const std::vector<std::string> &phrase)
{
    static const std::vector<std::string> noForms;
    Match match{static_cast<int>(words.size()), true};
    for (const auto &word : phrase) {
        const Match found = findWord(words, word, noForms, noForms);
        if (found.position < 0)
            return {};
        match.position = std::min(match.position, found.position);
        match.whole = match.whole && found.whole;
    }
    return match;
}

int matchScore(const FoodRecord &food, const Match &match, bool firstTerm)
{
    constexpr int namesFood = 1000;
    constexpr int namesFoodAfterClass = 800;
    constexpr int alsoNamesFood = 400;
    constexpr int early = 200;
    constexpr int perWordLater = 25;
    constexpr int wholeWord = 150;

    if (match.position < 0)
        return 0;
    int score = 0;
    // Words before the lead name the class or maker, which the food also is.
    if (match.position <= food.leadWord)
        score += !firstTerm ? alsoNamesFood : (food.leadWord == 0 ? namesFood : namesFoodAfterClass);
    else
        score += std::max(0, early - perWordLater * (match.position - food.leadWord));
    if (match.whole)
        score += wholeWord;
    return score;
}

} // namespace

bool answers(const SearchTerm &term, std::string_view word)
{
    return word.starts_with(term.typed) || contains(term.forms, word) || contains(term.singulars, word);
}

int relevance(const FoodRecord &food, const std::vector<SearchTerm> &terms)
{
    constexpr int generic = 300;
    constexpr int perCoreWord = 12;
    constexpr int perDescriptionWord = 3;
    constexpr int perMeasure = 10;
    constexpr int countedMeasures = 8;

    int score = 0;
    for (std::size_t k = 0; k < terms.size(); ++k) {
        const auto &term = terms[k];
        int best = matchScore(food, findWord(food.words, term.typed, term.forms, term.singulars), k == 0);
        for (const auto &phrase : term.synonyms)
            best = std::max(best, matchScore(food, findPhrase(food.words, phrase), k == 0));
        score += best;
    }
    if (food.isGeneric())
        score += generic;
    score -= perCoreWord * food.coreWordCount + perDescriptionWord * static_cast<int>(food.words.size());
    score += perMeasure * std::min(food.measureCount, countedMeasures);
    return score;
}

} // namespace foodservice
