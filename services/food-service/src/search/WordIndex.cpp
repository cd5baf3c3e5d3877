#include "search/WordIndex.h"

#include <algorithm>
#include <bit>
#include <map>

namespace foodservice {
namespace {

constexpr std::size_t bitsPerBlock = 64;

void add(std::vector<std::uint64_t> &set, std::uint32_t food)
{
    set[food / bitsPerBlock] |= std::uint64_t{1} << (food % bitsPerBlock);
}

} // namespace

WordIndex::WordIndex(const Catalog &catalog) : m_foodCount(catalog.foods().size())
{
    std::map<std::string, std::vector<std::uint32_t>, std::less<>> byWord;
    for (std::size_t i = 0; i < catalog.foods().size(); ++i) {
        for (const auto &word : catalog.foods()[i].words) {
            auto &foods = byWord[word];
            if (foods.empty() || foods.back() != i)
                foods.push_back(static_cast<std::uint32_t>(i));
        }
    }
    m_words.assign(std::make_move_iterator(byWord.begin()), std::make_move_iterator(byWord.end()));
}

void WordIndex::addPrefix(std::string_view prefix, FoodSet &set) const
{
    auto at = std::lower_bound(m_words.begin(), m_words.end(), prefix,
                               [](const auto &entry, std::string_view key) { return entry.first < key; });
    for (; at != m_words.end() && at->first.starts_with(prefix); ++at) {
        for (const auto food : at->second)
            add(set, food);
    }
}

void WordIndex::addWord(std::string_view word, FoodSet &set) const
{
    const auto at =
        std::lower_bound(m_words.begin(), m_words.end(), word,
                         [](const auto &entry, std::string_view key) { return entry.first < key; });
    if (at != m_words.end() && at->first == word) {
        for (const auto food : at->second)
            add(set, food);
    }
}

WordIndex::FoodSet WordIndex::termFoods(const SearchTerm &term) const
{
    const std::size_t blocks = (m_foodCount + bitsPerBlock - 1) / bitsPerBlock;
    FoodSet set(blocks, 0);
    addPrefix(term.typed, set);
    for (const auto &form : term.forms)
        addWord(form, set);
    for (const auto &form : term.singulars)
        addWord(form, set);
    for (const auto &phrase : term.synonyms) {
        FoodSet all(blocks, ~std::uint64_t{0});
        for (const auto &word : phrase) {
            FoodSet some(blocks, 0);
            addPrefix(word, some);
            for (std::size_t b = 0; b < blocks; ++b)
                all[b] &= some[b];
        }
        for (std::size_t b = 0; b < blocks; ++b)
            set[b] |= all[b];
    }
    return set;
}

std::vector<std::size_t> WordIndex::lookUp(const std::vector<SearchTerm> &terms) const
{
    if (terms.empty())
        return {};
    FoodSet found = termFoods(terms.front());
    for (std::size_t k = 1; k < terms.size(); ++k) {
        const auto more = termFoods(terms[k]);
        for (std::size_t b = 0; b < found.size(); ++b)
            found[b] &= more[b];
    }
    std::vector<std::size_t> positions;
    for (std::size_t b = 0; b < found.size(); ++b) {
        for (auto bits = found[b]; bits != 0; bits &= bits - 1)
            positions.push_back(b * bitsPerBlock + static_cast<std::size_t>(std::countr_zero(bits)));
    }
    return positions;
}

} // namespace foodservice
