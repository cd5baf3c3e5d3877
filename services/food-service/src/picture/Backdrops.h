#pragma once

#include "picture/PortionPicture.h"

#include <map>
#include <mutex>

namespace foodservice {

// The backdrop is the same in every picture of a size, and drawing it costs as much as the
// food: it is drawn once per size and copied. Holds a few sizes; any thread may ask.
class Backdrops
{
public:
    // A new surface holding the backdrop of `size` pixels.
    [[nodiscard]] Surface copy(int size) const;

private:
    static constexpr std::size_t mostSizes = 8;
    mutable std::mutex m_lock;
    mutable std::map<int, Surface> m_drawn;
};

} // namespace foodservice
