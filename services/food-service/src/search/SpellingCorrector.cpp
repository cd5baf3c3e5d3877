#include "search/SpellingCorrector.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace foodservice {
namespace {

// Optimal string alignment distance: insertions, deletions, substitutions and
// transpositions of neighbours each count one. Gives up beyond `limit`.
int editDistance(std::string_view a, std::string_view b, int limit)
{
    const auto lengthGap = static_cast<int>(a.size()) - static_cast<int>(b.size());
    if (std::abs(lengthGap) > limit)
        return limit + 1;
    const std::size_t columns = b.size() + 1;
    std::vector<int> previous2(columns);
    std::vector<int> previous(columns);
    std::vector<int> current(columns);
    for (std::size_t j = 0; j < columns; ++j)
        previous[j] = static_cast<int>(j);
    for (std::size_t i = 1; i <= a.size(); ++i) {
        current[0] = static_cast<int>(i);
        int rowBest = current[0];
        for (std::size_t j = 1; j < columns; ++j) {
            const int cost = a[i - 1] == b[j - 1] ? 0 : 1;
            current[j] = std::min({previous[j] + 1, current[j - 1] + 1, previous[j - 1] + cost});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                current[j] = std::min(current[j], previous2[j - 2] + 1);
            rowBest = std::min(rowBest, current[j]);
        }
        if (rowBest > limit)
            return limit + 1;
        std::swap(previous2, previous);
        std::swap(previous, current);
    }
    return previous[b.size()];
}

} // namespace

SpellingCorrector::SpellingCorrector(const std::vector<std::pair<std::string, int>> &vocabulary)
    : m_vocabulary(vocabulary)
{
}

bool SpellingCorrector::isKnownPrefix(std::string_view word) const
{
    const auto found =
        std::lower_bound(m_vocabulary.begin(), m_vocabulary.end(), word,
                         [](const auto &entry, std::string_view key) { return entry.first < key; });
    return found != m_vocabulary.end() && found->first.starts_with(word);
}

std::optional<std::string> SpellingCorrector::correction(std::string_view word) const
{
    constexpr std::size_t shortestCorrected = 3;
    if (word.size() < shortestCorrected)
        return std::nullopt;
    const int limit = word.size() <= 4 ? 1 : 2;
    const std::string *best = nullptr;
    int bestDistance = std::numeric_limits<int>::max();
    int bestCount = 0;
    for (const auto &[term, count] : m_vocabulary) {
        const int distance = editDistance(word, term, limit);
        if (distance > limit)
            continue;
        if (distance < bestDistance || (distance == bestDistance && count > bestCount)) {
            best = &term;
            bestDistance = distance;
            bestCount = count;
        }
    }
    return best ? std::optional(*best) : std::nullopt;
}

} // namespace foodservice
