#pragma once

#include "db/FoodStore.h"
#include "picture/FoodLooks.h"

#include <string>

namespace foodservice {

// What holds the food in a portion picture. Pieces and slices lie on the plate; the
// plate is drawn in every picture, at one size, as the reference for the others.
enum class Vessel
{
    Plate,
    Bowl,
    Glass,
    Cup,
    Tablespoon,
    Teaspoon,
};

struct PortionScene
{
    Vessel vessel = Vessel::Plate;
    FoodLook look;
    // The form an item on the plate takes: a whole one, or a slice or piece cut from it.
    FoodForm form;
    // Items on the plate, or vessels or spoons; a fraction shows part of the last one.
    double count = 1;
    // How wide one item on the plate is drawn, in picture units, true to size against the plate.
    double itemWidth = 0;
    // What one bowl, glass or cup holds, in cups: a "12 fl oz size" drink cup holds 1.5.
    double capacityCups = 1;
    // The label in a person's words: "1 large cup" and "722 g".
    std::string measure;
    std::string weight;
};

[[nodiscard]] PortionScene portionScene(const PortionPictureRow &row, const FoodLooks &looks);

} // namespace foodservice
