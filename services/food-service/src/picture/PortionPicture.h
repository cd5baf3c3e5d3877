#pragma once

#include "picture/PictureFonts.h"
#include "picture/PortionScene.h"

#include <memory>

using cairo_surface_t = struct _cairo_surface;

namespace foodservice {

using Surface = std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t *)>;

// The backdrop of every portion picture, size × size pixels (RGB24): the table and the plate.
[[nodiscard]] Surface drawBackdrop(int size);

// Draws a portion picture onto a square backdrop: the food in its vessel or on the plate, as
// many as the measure counts, true to size against the plate, named where no glyph shows it,
// and the label "1 medium · 118 g" below.
[[nodiscard]] Surface drawPortionPicture(const PortionScene &scene, const PictureFonts &fonts,
                                         Surface backdrop);

} // namespace foodservice
