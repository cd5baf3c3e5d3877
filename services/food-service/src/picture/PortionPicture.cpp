#include "picture/PortionPicture.h"

#include "picture/Vessels.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <stdexcept>
#include <string>

namespace foodservice {
namespace {

constexpr int mostItems = 36;
constexpr int mostVessels = 4;
constexpr double labelBaseline = 0.935;
constexpr double labelWidth = 0.94;

// The glyph of the food, `width` wide, standing at (centreX, base); only the left
// `share` of it shows when the measure counts a part of one.
void drawGlyph(cairo_t *cr, const PictureFonts &fonts, char32_t glyph, double centreX, double base,
               double width, double share = 1)
{
    const auto image = fonts.emoji(glyph);
    const double scale = width / image->width;
    const double height = image->height * scale;
    cairo_surface_t *source =
        cairo_image_surface_create_for_data(const_cast<unsigned char *>(image->pixels.data()),
                                            CAIRO_FORMAT_ARGB32, image->width, image->height, image->stride);
    cairo_save(cr);
    cairo_rectangle(cr, centreX - width / 2, base - height, width * share, height);
    cairo_clip(cr);
    cairo_translate(cr, centreX - width / 2, base - height);
    cairo_scale(cr, scale, scale);
    cairo_set_source_surface(cr, source, 0, 0);
    cairo_pattern_set_filter(cairo_get_source(cr), CAIRO_FILTER_GOOD);
    cairo_paint(cr);
    cairo_restore(cr);
    cairo_surface_destroy(source);
}

// The part of the last item, vessel or spoon past the whole ones: 1 when whole.
double lastShare(double count)
{
    const double part = count - std::floor(count);
    return part < 0.05 ? 1 : part;
}

int wholeCount(double count, int most)
{
    return std::clamp(static_cast<int>(std::ceil(count - 0.05)), 1, most);
}

// Items lie on the plate in rows, back rows first, the part-item last in the front row.
// An item's area grows with its weight, so a large one looks larger than a small one.
void drawItems(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts)
{
    if (scene.look.glyph == 0)
        return;
    const int count = wholeCount(scene.count, mostItems);
    double width = std::clamp(0.46 * std::sqrt(scene.itemGrams / 100), 0.15, 0.72);
    int perRow = 1;
    int rows = 1;
    for (;;) {
        const double spacing = width * 0.72;
        perRow = std::max(1, 1 + static_cast<int>((0.8 - width) / spacing));
        rows = (count + perRow - 1) / perRow;
        if (rows <= 4 || width < 0.06)
            break;
        width *= 0.85;
    }
    const double spacing = width * 0.72;
    const double depth = std::min(0.07, width * 0.3);
    int drawn = 0;
    for (int row = rows - 1; row >= 0; --row) {
        const int inRow = row == 0 ? count - (rows - 1) * perRow : perRow;
        const double base = plateCentreY + 0.03 + (rows - 1) * depth / 2 - row * depth;
        for (int i = 0; i < inRow; ++i) {
            const double centreX = 0.5 + (i - (inRow - 1) / 2.0) * spacing;
            ++drawn;
            drawShadow(cr, centreX, base, width * 0.8);
            drawGlyph(cr, fonts, scene.look.glyph, centreX, base, width,
                      drawn == count ? lastShare(scene.count) : 1);
        }
    }
}

// Bowls, glasses or cups side by side; the glyph stands beside a glass or cup, or in a bowl.
void drawVessels(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts)
{
    const int count = wholeCount(scene.count, mostVessels);
    const double grow = std::sqrt(std::max(scene.capacityCups, 0.25));
    const bool bowl = scene.vessel == Vessel::Bowl;
    const bool beside = !bowl && scene.look.glyph != 0;
    const double oneCup = bowl ? 0.42 : scene.vessel == Vessel::Glass ? 0.2 : 0.25;
    const double width = std::min(oneCup * grow, bowl ? 0.8 : 0.4);
    const double room = beside ? 0.58 : 0.86;
    const double spacing = std::min(width * 1.08, count > 1 ? (room - width) / (count - 1) : width);
    const double left = (beside ? 0.42 : 0.5) - (count - 1) * spacing / 2;
    const double base = plateCentreY + 0.04;
    for (int i = 0; i < count; ++i) {
        const double centreX = left + i * spacing;
        const double fill = i == count - 1 ? std::min(lastShare(scene.count), scene.count) : 1;
        if (bowl) {
            drawBowl(cr, centreX, base, width, scene.look, fill, [&](double surfaceY, double surfaceWidth) {
                if (scene.look.glyph != 0)
                    drawGlyph(cr, fonts, scene.look.glyph, centreX, surfaceY + surfaceWidth * 0.18,
                              surfaceWidth * 0.8);
            });
        } else if (scene.vessel == Vessel::Glass) {
            drawGlass(cr, centreX, base, width, scene.look, fill);
        } else {
            drawCup(cr, centreX, base, width, scene.look, fill);
        }
    }
    if (beside) {
        const double glyphWidth = 0.3;
        const double centreX = std::min(left + (count - 1) * spacing + width / 2 + glyphWidth * 0.55, 0.84);
        drawShadow(cr, centreX, base + 0.02, glyphWidth * 0.8);
        drawGlyph(cr, fonts, scene.look.glyph, centreX, base + 0.02, glyphWidth);
    }
}

// The glyph behind, the spoons in front, lying across the plate one above the other.
void drawSpoons(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts)
{
    const int count = wholeCount(scene.count, mostVessels);
    const double scale = scene.vessel == Vessel::Tablespoon ? 1.3 : 0.95;
    const bool glyph = scene.look.glyph != 0;
    if (glyph)
        drawGlyph(cr, fonts, scene.look.glyph, 0.27, plateCentreY - 0.02, 0.3);
    for (int i = 0; i < count; ++i) {
        const double fill = i == count - 1 ? std::min(lastShare(scene.count), scene.count) : 1;
        drawSpoon(cr, (glyph ? 0.44 : 0.32) + i * 0.04, plateCentreY + 0.02 + i * 0.05 - (count - 1) * 0.025,
                  scale, scene.look, fill);
    }
}

double textWidth(cairo_t *cr, cairo_font_face_t *face, double size, const std::string &text)
{
    cairo_set_font_face(cr, face);
    cairo_set_font_size(cr, size);
    cairo_text_extents_t extents;
    cairo_text_extents(cr, text.c_str(), &extents);
    return extents.x_advance;
}

// Drops the last UTF-8 character of the text.
void dropLastCharacter(std::string &text)
{
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0U) == 0x80U)
        text.pop_back();
    if (!text.empty())
        text.pop_back();
}

// "1 medium · 118 g": the measure shortened until the line fits, the weight in bold.
void drawLabel(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts)
{
    const std::string separator = " \u00B7 ";
    std::string measure = scene.measure;
    double size = 0.082;
    const auto width = [&] {
        return textWidth(cr, fonts.regular(), size, measure + separator) +
               textWidth(cr, fonts.bold(), size, scene.weight);
    };
    // Parenthesised details go first ("1 medium (7\" to 7-7/8\" long)"), then the size shrinks.
    if (width() > labelWidth) {
        if (const auto open = measure.find(" ("); open != std::string::npos)
            measure.erase(open);
    }
    while (width() > labelWidth && size > 0.058)
        size -= 0.002;
    if (width() > labelWidth) {
        std::string kept = measure;
        while (!kept.empty() && width() > labelWidth) {
            dropLastCharacter(kept);
            measure = kept.substr(0, kept.find_last_not_of(" ,") + 1) + "\u2026";
        }
    }
    const double measureWidth = textWidth(cr, fonts.regular(), size, measure + separator);
    cairo_move_to(cr, (1 - width()) / 2, labelBaseline);
    cairo_set_source_rgb(cr, 0.27, 0.27, 0.27);
    cairo_set_font_face(cr, fonts.regular());
    cairo_set_font_size(cr, size);
    cairo_show_text(cr, (measure + separator).c_str());
    cairo_move_to(cr, (1 - width()) / 2 + measureWidth, labelBaseline);
    cairo_set_source_rgb(cr, 0.1, 0.1, 0.1);
    cairo_set_font_face(cr, fonts.bold());
    cairo_show_text(cr, scene.weight.c_str());
}

} // namespace

Surface drawPortionPicture(const PortionScene &scene, const PictureFonts &fonts, int size)
{
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size, size), cairo_surface_destroy);
    cairo_t *cr = cairo_create(surface.get());
    cairo_scale(cr, size, size);
    cairo_set_source_rgb(cr, 0.97, 0.96, 0.93);
    cairo_paint(cr);

    drawPlate(cr);
    switch (scene.vessel) {
    case Vessel::Plate:
        drawItems(cr, scene, fonts);
        break;
    case Vessel::Bowl:
    case Vessel::Glass:
    case Vessel::Cup:
        drawVessels(cr, scene, fonts);
        break;
    case Vessel::Tablespoon:
    case Vessel::Teaspoon:
        drawSpoons(cr, scene, fonts);
        break;
    }
    drawLabel(cr, scene, fonts);
    const cairo_status_t status = cairo_status(cr);
    cairo_destroy(cr);
    if (status != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error(std::string("drawing a portion picture failed: ") +
                                 cairo_status_to_string(status));
    return surface;
}

} // namespace foodservice
