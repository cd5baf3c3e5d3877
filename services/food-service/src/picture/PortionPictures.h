#pragma once

#include "db/FoodStore.h"
#include "picture/Backdrops.h"
#include "picture/FoodLooks.h"
#include "picture/PictureFonts.h"
#include "picture/PortionPicture.h"

#include <string>

namespace foodservice {

// Draws the portion pictures the service serves, as PNG files.
// Throws std::runtime_error when the fonts or the table of food looks are missing.
class PortionPictures
{
public:
    PortionPictures();

    [[nodiscard]] Surface draw(const PortionPictureRow &row, int size) const;
    [[nodiscard]] std::string png(const PortionPictureRow &row, int size) const;

private:
    FoodLooks m_looks;
    PictureFonts m_fonts;
    Backdrops m_backdrops;
};

} // namespace foodservice
