#pragma once

#include "picture/FoodLooks.h"

#include <functional>

using cairo_t = struct _cairo;

namespace foodservice {

// The vessels of the portion pictures, drawn with Cairo in picture units: (0, 0) is the
// top left corner and (1, 1) the bottom right. A vessel stands with its foot at `base`.
// `fill` is the share of the vessel the food fills, 0 to 1.

// The dinner plate every picture shows at the same size, as the reference for the rest.
void drawPlate(cairo_t *cr);
// The top of the plate where vessels and food stand.
constexpr double plateCentreY = 0.7;
// The plate is a 27 cm dinner plate, so every food and vessel is drawn at its own size.
constexpr double plateWidth = 0.88;
constexpr double pictureUnitsPerCm = plateWidth / 27;

// `contents` draws what shows above the food in the bowl (its glyph) before the bowl's
// front hides the part below the rim; it gets the height and width of the food's surface.
void drawBowl(cairo_t *cr, double centreX, double base, double width, const FoodLook &food, double fill,
              const std::function<void(double surfaceY, double surfaceWidth)> &contents);
void drawGlass(cairo_t *cr, double centreX, double base, double width, const FoodLook &food, double fill);
void drawCup(cairo_t *cr, double centreX, double base, double width, const FoodLook &food, double fill);
// A spoon lying on the plate with the bowl of the spoon at (x, y); `scale` 1 is a tablespoon.
void drawSpoon(cairo_t *cr, double x, double y, double scale, const FoodLook &food, double fill);

// The soft shadow an object casts where it stands.
void drawShadow(cairo_t *cr, double centreX, double base, double width);

} // namespace foodservice
