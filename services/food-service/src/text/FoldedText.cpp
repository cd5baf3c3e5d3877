#include "text/FoldedText.h"

#include <array>
#include <cctype>

namespace foodservice {
namespace {

// Folding of the two-byte UTF-8 Latin-1 supplement letters (U+00C0 to U+00FF).
constexpr std::array<const char *, 64> latin1Folds = {
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i",  "i",
    "d", "n", "o", "o", "o", "o", "o",  " ", "o", "u", "u", "u", "u", "y", "th", "ss",
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i",  "i",
    "d", "n", "o", "o", "o", "o", "o",  " ", "o", "u", "u", "u", "u", "y", "th", "y"};

void appendSpace(std::string &out)
{
    if (!out.empty() && out.back() != ' ')
        out += ' ';
}

bool isApostrophe(std::string_view text, std::size_t i, std::size_t &length)
{
    if (text[i] == '\'') {
        length = 1;
        return true;
    }
    // U+2019 right single quotation mark
    if (text.substr(i, 3) == "\xE2\x80\x99") {
        length = 3;
        return true;
    }
    return false;
}

} // namespace

std::string foldText(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        std::size_t apostropheLength = 0;
        if (std::isalnum(byte) != 0 && byte < 0x80) {
            out += static_cast<char>(std::tolower(byte));
            ++i;
        } else if (isApostrophe(text, i, apostropheLength)) {
            i += apostropheLength;
        } else if ((byte == 0xC3) && i + 1 < text.size()) {
            const auto next = static_cast<unsigned char>(text[i + 1]);
            if (next >= 0x80 && next <= 0xBF) {
                const std::string_view fold = latin1Folds[next - 0x80U];
                if (fold == " ")
                    appendSpace(out);
                else
                    out += fold;
                i += 2;
            } else {
                appendSpace(out);
                ++i;
            }
        } else if (byte == 0xC5 && i + 1 < text.size() && (text[i + 1] == '\x92' || text[i + 1] == '\x93')) {
            out += "oe";
            i += 2;
        } else {
            appendSpace(out);
            ++i;
        }
    }
    if (!out.empty() && out.back() == ' ')
        out.pop_back();
    return out;
}

std::vector<std::string> foldedWords(std::string_view folded)
{
    std::vector<std::string> words;
    std::size_t start = 0;
    while (start < folded.size()) {
        auto end = folded.find(' ', start);
        if (end == std::string_view::npos)
            end = folded.size();
        if (end > start)
            words.emplace_back(folded.substr(start, end - start));
        start = end + 1;
    }
    return words;
}

bool matchesPhrase(std::string_view foldedText, std::string_view phrase)
{
    const bool anchored = phrase.starts_with('^');
    if (anchored)
        phrase.remove_prefix(1);
    if (phrase.empty())
        return false;
    const auto endsWord = [&](std::size_t end) { return end == foldedText.size() || foldedText[end] == ' '; };
    if (anchored)
        return foldedText.starts_with(phrase) && endsWord(phrase.size());
    for (std::size_t at = foldedText.find(phrase); at != std::string_view::npos;
         at = foldedText.find(phrase, at + 1)) {
        if ((at == 0 || foldedText[at - 1] == ' ') && endsWord(at + phrase.size()))
            return true;
    }
    return false;
}

} // namespace foodservice
