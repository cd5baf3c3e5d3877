#include "picture/PortionPictures.h"

#include "catalog/EmbeddedTables.h"
#include "picture/PngWriter.h"
#include "picture/PortionScene.h"

namespace foodservice {

PortionPictures::PortionPictures() : m_looks(foodPictureTable()), m_fonts(m_looks.glyphs()) {}

Surface PortionPictures::draw(const PortionPictureRow &row, int size) const
{
    return drawPortionPicture(portionScene(row, m_looks), m_fonts, m_backdrops.copy(size));
}

std::string PortionPictures::png(const PortionPictureRow &row, int size) const
{
    return encodePng(draw(row, size).get());
}

} // namespace foodservice
