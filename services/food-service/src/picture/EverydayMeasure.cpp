#include "picture/EverydayMeasure.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <vector>

namespace foodservice {
namespace {

constexpr std::size_t longest = 20;

bool isAmount(std::string_view word)
{
    return !word.empty() && std::all_of(word.begin(), word.end(), [](char c) {
        return (c >= '0' && c <= '9') || c == '/' || c == '.' || c == '-';
    });
}

bool isSizeWord(std::string_view word)
{
    static constexpr std::array<std::string_view, 8> sizes = {"small", "medium", "large",   "big",
                                                              "jumbo", "child",  "regular", "extra"};
    return std::find(sizes.begin(), sizes.end(), word) != sizes.end();
}

// Parenthesised details ("(3\" dia)", "(1 NLEA serving)") say more than a label can hold.
std::string withoutParentheses(std::string_view text)
{
    std::string kept;
    int depth = 0;
    for (const char c : text) {
        if (c == '(')
            ++depth;
        else if (c == ')' && depth > 0)
            --depth;
        else if (depth == 0)
            kept += c;
    }
    return kept;
}

std::vector<std::string> wordsOf(std::string_view text)
{
    std::vector<std::string> words;
    std::istringstream stream{std::string(text)};
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

// Drops a size note after the measure: "3.4 oz", "32 fl oz" and "size".
void dropSizeNotes(std::vector<std::string> &words)
{
    for (std::size_t i = 2; i < words.size();) {
        if (words[i] == "size")
            words.erase(words.begin() + static_cast<std::ptrdiff_t>(i));
        else if (isAmount(words[i]) && i + 1 < words.size() && words[i + 1] == "oz")
            words.erase(words.begin() + static_cast<std::ptrdiff_t>(i),
                        words.begin() + static_cast<std::ptrdiff_t>(i + 2));
        else if (isAmount(words[i]) && i + 2 < words.size() && words[i + 1] == "fl" && words[i + 2] == "oz")
            words.erase(words.begin() + static_cast<std::ptrdiff_t>(i),
                        words.begin() + static_cast<std::ptrdiff_t>(i + 3));
        else
            ++i;
    }
}

} // namespace

std::string everydayMeasure(std::string_view description)
{
    const std::string plain = withoutParentheses(description);
    const auto comma = plain.find(',');
    auto words = wordsOf(std::string_view(plain).substr(0, comma));
    dropSizeNotes(words);
    // One word after the comma says what kind of measure it is: "1 cup, diced", "1 slice, large".
    if (comma != std::string::npos) {
        const auto rest = std::string_view(plain).substr(comma + 1);
        const auto detail = wordsOf(rest.substr(0, rest.find(',')));
        static constexpr std::array<std::string_view, 4> unsaid = {"cooked", "raw", "edible", "boneless"};
        if (detail.size() == 1 && std::find(unsaid.begin(), unsaid.end(), detail[0]) == unsaid.end())
            words.push_back(detail[0]);
    }
    const auto amountEnd =
        std::find_if_not(words.begin(), words.end(), [](const auto &w) { return isAmount(w); });
    // "1 cup large" reads "1 large cup"; "1 medium whole" reads "1 medium".
    if (amountEnd != words.end() && amountEnd + 1 != words.end() && !isSizeWord(*amountEnd) &&
        isSizeWord(*(amountEnd + 1)))
        std::rotate(amountEnd, amountEnd + 1, amountEnd + 2);
    if (amountEnd != words.end() && isSizeWord(*amountEnd) && amountEnd + 1 != words.end() &&
        *(amountEnd + 1) == "whole")
        words.erase(amountEnd + 1);
    std::string measure;
    for (const auto &word : words) {
        if (!measure.empty() && measure.size() + 1 + word.size() > longest)
            break;
        measure += (measure.empty() ? "" : " ") + word;
    }
    return measure;
}

} // namespace foodservice
