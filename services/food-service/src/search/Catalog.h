#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace foodservice {

class Connection;

struct FoodRecord
{
    std::int64_t id = 0;
    std::string description;
    std::string brand;
    std::string category;
    // Folded words of the description, in order.
    std::vector<std::string> words;
    // Index in `words` of the word that names the food.
    int leadWord = 0;
    // Words up to the end of the segment after the one naming the food: the name and
    // its first qualifier ("Milk, whole", "Bananas, raw"), without the details after.
    int coreWordCount = 0;
    int measureCount = 0;
    [[nodiscard]] bool isGeneric() const { return brand.empty(); }
};

// All foods in memory, for ranking and for the food objects of every reply.
class Catalog
{
public:
    explicit Catalog(Connection &connection);

    // nullptr when there is no such food.
    [[nodiscard]] const FoodRecord *find(std::int64_t id) const;
    [[nodiscard]] const std::vector<FoodRecord> &foods() const { return m_foods; }
    // Indexed words with the number of foods using each, in word order.
    [[nodiscard]] const std::vector<std::pair<std::string, int>> &vocabulary() const { return m_vocabulary; }

private:
    std::vector<FoodRecord> m_foods;
    std::vector<std::pair<std::string, int>> m_vocabulary;
};

} // namespace foodservice
