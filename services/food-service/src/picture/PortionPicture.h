#pragma once

#include "picture/Canvas.h"

#include <string_view>

namespace foodservice {

// A square portion picture: the food group's pictogram in the corner on the group's
// colour, and the measure (a cup, a slice, a spoon, a small to large piece) drawn large.
[[nodiscard]] Canvas drawPortionPicture(std::string_view pictureKind, std::string_view category, int size);

} // namespace foodservice
