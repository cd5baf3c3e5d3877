#include "picture/PictureCache.h"

namespace foodservice {

PictureCache::PictureCache(std::size_t budgetBytes) : m_budget(budgetBytes) {}

std::shared_ptr<const std::string> PictureCache::find(std::int64_t portionId, int size)
{
    const std::lock_guard lock(m_lock);
    const auto found = m_index.find({portionId, size});
    if (found == m_index.end())
        return nullptr;
    m_order.splice(m_order.begin(), m_order, found->second);
    return found->second->second;
}

void PictureCache::keep(std::int64_t portionId, int size, std::shared_ptr<const std::string> picture)
{
    const std::lock_guard lock(m_lock);
    const Key key{portionId, size};
    if (m_index.contains(key) || picture->size() > m_budget)
        return;
    m_bytes += picture->size();
    m_order.emplace_front(key, std::move(picture));
    m_index.emplace(key, m_order.begin());
    while (m_bytes > m_budget) {
        m_bytes -= m_order.back().second->size();
        m_index.erase(m_order.back().first);
        m_order.pop_back();
    }
}

} // namespace foodservice
