#include "catalog/Brand.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

namespace foodservice {
namespace {

// Capitalised words of descriptions that name no maker.
constexpr std::array<std::string_view, 14> genericWords = {
    "NFS", "NFSMI", "USDA", "NLEA", "UHT", "RTE", "RTF", "RTD", "NS", "II", "III", "DHA", "ARA", "TV"};
constexpr std::array<std::string_view, 4> genericNames = {"MUESLI", "OAT BRAN FLAKES", "CRISPY BROWN RICE",
                                                          "AMARANTH FLAKES"};

// "KELLOGG", "McDONALD'S" and "M&M's" are brand words; "Big'N" and "2%" are not.
bool isBrandWord(std::string_view word)
{
    if (word.empty() || word.front() == '(' || word.front() == '"' || word.back() == ')')
        return false;
    int upper = 0;
    int lower = 0;
    for (const char c : word) {
        const auto byte = static_cast<unsigned char>(c);
        upper += std::isupper(byte) != 0 ? 1 : 0;
        lower += std::islower(byte) != 0 ? 1 : 0;
    }
    return upper >= 2 && lower <= 1;
}

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    while (start <= text.size()) {
        auto end = text.find(separator, start);
        if (end == std::string_view::npos)
            end = text.size();
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

template <std::size_t N> bool contains(const std::array<std::string_view, N> &list, std::string_view text)
{
    return std::find(list.begin(), list.end(), text) != list.end();
}

} // namespace

std::string brandOf(std::string_view description)
{
    for (const auto segment : split(description, ',')) {
        std::string brand;
        for (const auto word : split(segment, ' ')) {
            if (word.empty())
                continue;
            if (!isBrandWord(word))
                break;
            if (brand.empty() && contains(genericWords, word))
                continue;
            if (!brand.empty())
                brand += ' ';
            brand += word;
        }
        while (!brand.empty() && (brand.back() == '.' || brand.back() == ':'))
            brand.pop_back();
        if (!brand.empty() && !contains(genericWords, brand) && !contains(genericNames, brand))
            return brand;
    }
    return {};
}

} // namespace foodservice
