#pragma once

#include "db/ConnectionPool.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace foodservice {

struct PortionRow
{
    std::int64_t id = 0;
    std::int64_t orderNum = 0;
    std::int64_t size = 0;
    std::string description;
    std::string picture;
};

struct NutrientAmount
{
    bool isMacro = false;
    std::string name;
    std::string units;
    double per100g = 0;
};

// What a portion picture shows: the measure ("cup", "slice", ...), the portion as the
// portion list describes it, its weight and the food.
struct PortionPictureRow
{
    std::string picture;
    std::string description;
    std::int64_t grams = 0;
    std::string foodDescription;
    std::string category;
};

// The per-food rows of the database, read on demand.
class FoodStore
{
public:
    explicit FoodStore(ConnectionPool &pool);

    [[nodiscard]] std::vector<PortionRow> portions(std::int64_t foodId) const;
    [[nodiscard]] std::vector<NutrientAmount> nutrients(std::int64_t foodId) const;
    [[nodiscard]] std::vector<std::int64_t> accompaniments(std::int64_t foodId) const;
    [[nodiscard]] std::optional<PortionPictureRow> portionPicture(std::int64_t portionId) const;

private:
    ConnectionPool &m_pool;
};

} // namespace foodservice
