#include "db/FoodStore.h"

namespace foodservice {

FoodStore::FoodStore(ConnectionPool &pool) : m_pool(pool) {}

std::vector<PortionRow> FoodStore::portions(std::int64_t foodId) const
{
    auto lease = m_pool.acquire();
    auto &query = lease->prepared("SELECT id, order_num, size, description, picture FROM portion"
                                  " WHERE food_id = ? ORDER BY order_num");
    query.bind(1, foodId);
    std::vector<PortionRow> rows;
    while (query.step())
        rows.push_back({query.integer(0), query.integer(1), query.integer(2), query.text(3), query.text(4)});
    return rows;
}

std::vector<NutrientAmount> FoodStore::nutrients(std::int64_t foodId) const
{
    auto lease = m_pool.acquire();
    auto &query = lease->prepared("SELECT is_macro, name, units, per_100g FROM nutrient"
                                  " WHERE food_id = ? ORDER BY position");
    query.bind(1, foodId);
    std::vector<NutrientAmount> rows;
    while (query.step())
        rows.push_back({query.integer(0) != 0, query.text(1), query.text(2), query.real(3)});
    return rows;
}

std::vector<std::int64_t> FoodStore::accompaniments(std::int64_t foodId) const
{
    auto lease = m_pool.acquire();
    auto &query = lease->prepared("SELECT other_id FROM accompaniment WHERE food_id = ? ORDER BY position");
    query.bind(1, foodId);
    std::vector<std::int64_t> ids;
    while (query.step())
        ids.push_back(query.integer(0));
    return ids;
}

std::optional<PortionPictureRow> FoodStore::portionPicture(std::int64_t portionId) const
{
    auto lease = m_pool.acquire();
    auto &query = lease->prepared("SELECT p.picture, p.description, p.size, f.description, f.category"
                                  " FROM portion p JOIN food f ON f.id = p.food_id WHERE p.id = ?");
    query.bind(1, portionId);
    if (!query.step())
        return std::nullopt;
    return PortionPictureRow{query.text(0), query.text(1), query.integer(2), query.text(3), query.text(4)};
}

} // namespace foodservice
