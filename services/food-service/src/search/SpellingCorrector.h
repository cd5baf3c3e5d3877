#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace foodservice {

// Finds the indexed word a misspelt search word most likely meant
// ("brocoli" -> "broccoli", "bananna" -> "banana").
class SpellingCorrector
{
public:
    // The vocabulary is sorted by word; the count is how many foods use the word.
    explicit SpellingCorrector(const std::vector<std::pair<std::string, int>> &vocabulary);

    // True when some indexed word starts with `word`.
    [[nodiscard]] bool isKnownPrefix(std::string_view word) const;
    // The closest indexed word within the allowed edits (one for short words, two for
    // longer ones), the most used on a tie; nothing when none is close enough.
    [[nodiscard]] std::optional<std::string> correction(std::string_view word) const;

private:
    const std::vector<std::pair<std::string, int>> &m_vocabulary;
};

} // namespace foodservice
