#pragma once

#include "picture/PictureFonts.h"
#include "picture/PortionScene.h"

#include <memory>

using cairo_surface_t = struct _cairo_surface;

namespace foodservice {

using Surface = std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t *)>;

// A square portion picture, size × size pixels (RGB24): the food's glyph in or beside its
// vessel, as many as the measure counts, sized against the plate, and the label
// "1 medium · 118 g" below. Without a glyph the vessel is drawn alone.
[[nodiscard]] Surface drawPortionPicture(const PortionScene &scene, const PictureFonts &fonts, int size);

} // namespace foodservice
