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

// The first whole-word occurrence, else the first prefix occurrence.
Match findMatch(const std::vector<std::string> &words, const std::string &searched)
{
    Match match;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (isWholeWord(words[i], searched))
            return {static_cast<int>(i), true};
        if (match.position < 0 && words[i].starts_with(searched))
            match.position = static_cast<int>(i);
    }
    return match;
}

} // namespace

int relevance(const FoodRecord &food, const std::vector<std::string> &searchWords)
{
    constexpr int namesFood = 1000;
    constexpr int namesFoodAfterClass = 800;
    constexpr int alsoNamesFood = 400;
    constexpr int early = 200;
    constexpr int perWordLater = 25;
    constexpr int wholeWord = 150;
    constexpr int generic = 300;
    // Foods for few people come after the everyday ones.
    constexpr int specialtyGroup = 150;
    constexpr int perCoreWord = 12;
    constexpr int perDescriptionWord = 3;
    constexpr int perMeasure = 10;
    constexpr int countedMeasures = 8;
    constexpr int raw = 40;

    int score = 0;
    for (std::size_t k = 0; k < searchWords.size(); ++k) {
        const Match match = findMatch(food.words, searchWords[k]);
        if (match.position < 0)
            continue;
        // Words before the lead name the class or maker, which the food also is.
        if (match.position <= food.leadWord)
            score += k != 0 ? alsoNamesFood : (food.leadWord == 0 ? namesFood : namesFoodAfterClass);
        else
            score += std::max(0, early - perWordLater * (match.position - food.leadWord));
        if (match.whole)
            score += wholeWord;
    }
    if (food.isGeneric())
        score += generic;
    if (food.category == "Baby Foods" || food.category == "American Indian/Alaska Native Foods")
        score -= specialtyGroup;
    score -= perCoreWord * food.coreWordCount + perDescriptionWord * static_cast<int>(food.words.size());
    score += perMeasure * std::min(food.measureCount, countedMeasures);
    const bool searchedRaw = std::find(searchWords.begin(), searchWords.end(), "raw") != searchWords.end();
    if (!searchedRaw && std::find(food.words.begin(), food.words.end(), "raw") != food.words.end())
        score += raw;
    return score;
}

} // namespace foodservice
