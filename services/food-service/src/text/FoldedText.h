#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace foodservice {

// Folds text for matching: case folded and compatibility decomposed (ICU), accents removed,
// apostrophes dropped ("WENDY'S" reads "wendys"), every run of other characters that are
// not letters or digits one space.
[[nodiscard]] std::string foldText(std::string_view text);

// Splits folded text into its words.
[[nodiscard]] std::vector<std::string> foldedWords(std::string_view folded);

// True when the folded phrase occurs in folded text on word boundaries;
// a phrase starting with "^" must begin the text.
[[nodiscard]] bool matchesPhrase(std::string_view foldedText, std::string_view phrase);

} // namespace foodservice
