#include "search/Catalog.h"

#include "db/Sqlite.h"
#include "text/FoldedText.h"

#include <algorithm>

namespace foodservice {
namespace {

int coreWords(std::string_view description, int leadWord)
{
    int total = 0;
    bool named = false;
    std::size_t start = 0;
    while (start <= description.size()) {
        auto end = description.find(',', start);
        if (end == std::string_view::npos)
            end = description.size();
        total += static_cast<int>(foldedWords(foldText(description.substr(start, end - start))).size());
        if (named)
            break;
        named = total > leadWord;
        start = end + 1;
    }
    return total;
}

} // namespace

Catalog::Catalog(Connection &connection)
{
    auto foods = connection.prepare("SELECT id, description, brand, category, search_text, lead_word,"
                                    " measure_count FROM food ORDER BY id");
    while (foods.step()) {
        FoodRecord food{foods.integer(0),
                        foods.text(1),
                        foods.text(2),
                        foods.text(3),
                        foldedWords(foods.text(4)),
                        static_cast<int>(foods.integer(5)),
                        0,
                        static_cast<int>(foods.integer(6))};
        food.coreWordCount = coreWords(food.description, food.leadWord);
        m_foods.push_back(std::move(food));
    }
    auto terms = connection.prepare("SELECT term, doc FROM food_terms ORDER BY term");
    while (terms.step())
        m_vocabulary.emplace_back(terms.text(0), static_cast<int>(terms.integer(1)));
}

const FoodRecord *Catalog::find(std::int64_t id) const
{
    const auto found =
        std::lower_bound(m_foods.begin(), m_foods.end(), id,
                         [](const FoodRecord &food, std::int64_t key) { return food.id < key; });
    return found != m_foods.end() && found->id == id ? &*found : nullptr;
}

} // namespace foodservice
