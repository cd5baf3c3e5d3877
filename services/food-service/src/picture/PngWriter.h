#pragma once

#include <string>

using cairo_surface_t = struct _cairo_surface;

namespace foodservice {

// A Cairo RGB24 image surface as an 8-bit RGB PNG, written by libpng for speed rather
// than size: the pictures are flat drawings that compress well at the fastest level.
[[nodiscard]] std::string encodePng(cairo_surface_t *surface);

} // namespace foodservice
