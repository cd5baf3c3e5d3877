#include "picture/Backdrops.h"

#include <cairo.h>
#include <cstring>
#include <stdexcept>
#include <string>

namespace foodservice {

Surface Backdrops::copy(int size) const
{
    Surface copied(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size, size), cairo_surface_destroy);
    if (cairo_surface_status(copied.get()) != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error("no memory for a picture of " + std::to_string(size) + " pixels");
    const std::lock_guard lock(m_lock);
    auto found = m_drawn.find(size);
    if (found == m_drawn.end()) {
        if (m_drawn.size() >= mostSizes)
            m_drawn.erase(m_drawn.begin());
        found = m_drawn.emplace(size, drawBackdrop(size)).first;
    }
    // Same size and format, so the same stride: one copy of the pixels.
    cairo_surface_flush(copied.get());
    std::memcpy(cairo_image_surface_get_data(copied.get()), cairo_image_surface_get_data(found->second.get()),
                static_cast<std::size_t>(cairo_image_surface_get_stride(copied.get())) *
                    static_cast<std::size_t>(size));
    cairo_surface_mark_dirty(copied.get());
    return copied;
}

} // namespace foodservice
