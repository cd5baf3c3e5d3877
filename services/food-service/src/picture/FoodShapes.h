#pragma once

#include "picture/FoodLooks.h"

using cairo_t = struct _cairo;

namespace foodservice {

// Foods drawn in their form where no glyph shows them, in picture units.

// One item of `shape` (not Glyph), exactly `width` across, standing or lying at `base`.
void drawFoodShape(cairo_t *cr, Shape shape, const FoodLook &food, double centreX, double base, double width);

// The top of a food that fills a bowl, cup or spoon: its colour, its texture and its edge.
void drawSurface(cairo_t *cr, const FoodLook &food, double centreX, double centreY, double radiusX,
                 double radiusY);

} // namespace foodservice
