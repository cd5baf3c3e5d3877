#pragma once

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace foodservice {

// Encoded portion pictures by portion and size. The portion screen asks for a picture
// each time its box comes into view, so a picture drawn once is served many times.
// Past the byte budget the least recently used are dropped. Safe from any thread.
class PictureCache
{
public:
    explicit PictureCache(std::size_t budgetBytes);

    [[nodiscard]] std::shared_ptr<const std::string> find(std::int64_t portionId, int size);
    void keep(std::int64_t portionId, int size, std::shared_ptr<const std::string> picture);

private:
    using Key = std::pair<std::int64_t, int>;
    using Entry = std::pair<Key, std::shared_ptr<const std::string>>;

    std::mutex m_lock;
    // Most recently used first.
    std::list<Entry> m_order;
    std::map<Key, std::list<Entry>::iterator> m_index;
    std::size_t m_bytes = 0;
    std::size_t m_budget;
};

} // namespace foodservice
