#pragma once

#include "picture/FoodLooks.h"

using cairo_t = struct _cairo;

namespace foodservice {

// The small Cairo helpers the vessels and the food forms share, in picture units.

// The width of outlines.
constexpr double outlineWidth = 0.004;

void setColour(cairo_t *cr, const Colour &colour, double alpha = 1);
// The same colour darker (factor < 1) or lighter (factor > 1).
[[nodiscard]] Colour shade(const Colour &colour, double factor);
// Adds an ellipse to the path as a sub-path of its own.
void ellipse(cairo_t *cr, double centreX, double centreY, double radiusX, double radiusY);
// Strokes the path in the colour at the outline width.
void outline(cairo_t *cr, const Colour &colour, double alpha = 1);

} // namespace foodservice
