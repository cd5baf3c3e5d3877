#include "text/FoldedText.h"

#include <stdexcept>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace foodservice {
namespace {

bool isApostrophe(UChar32 c)
{
    return c == u'\'' || c == u'\u2019';
}

const icu::Normalizer2 &compatibilityDecomposition()
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2 *normalizer = icu::Normalizer2::getNFKDInstance(status);
    if (U_FAILURE(status) || normalizer == nullptr)
        throw std::runtime_error(std::string("ICU normalization data missing: ") + u_errorName(status));
    return *normalizer;
}

} // namespace

std::string foldText(std::string_view text)
{
    static const icu::Normalizer2 &decomposition = compatibilityDecomposition();
    auto unicode =
        icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
    unicode.foldCase();
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString decomposed = decomposition.normalize(unicode, status);
    if (U_FAILURE(status))
        throw std::runtime_error(std::string("cannot normalize text: ") + u_errorName(status));

    icu::UnicodeString folded;
    bool spaced = true;
    for (int32_t i = 0; i < decomposed.length(); i = decomposed.moveIndex32(i, 1)) {
        const UChar32 c = decomposed.char32At(i);
        // Marks are the accents the decomposition split off; apostrophes join their word.
        if (u_charType(c) == U_NON_SPACING_MARK || isApostrophe(c))
            continue;
        if (u_isalnum(c)) {
            folded.append(c);
            spaced = false;
        } else if (!spaced) {
            folded.append(u' ');
            spaced = true;
        }
    }
    if (spaced && !folded.isEmpty())
        folded.truncate(folded.length() - 1);
    std::string out;
    folded.toUTF8String(out);
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
