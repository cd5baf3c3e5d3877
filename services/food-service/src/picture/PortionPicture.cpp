#include "picture/PortionPicture.h"

#include "picture/FoodShapes.h"
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
constexpr int mostRows = 6;
constexpr double plateRoom = 0.82;
constexpr double labelBaseline = 0.935;
constexpr double labelSize = 0.075;
constexpr double labelWidth = 0.94;
constexpr double nameBaseline = 0.1;
constexpr double nameSize = 0.07;
// Vessels that hold one cup, in centimetres across: a small bowl, a tumbler, a mug.
constexpr double bowlCm = 13;
constexpr double glassCm = 7;
constexpr double mugCm = 8;

// The glyph of the food with its visible part `width` wide, standing at (centreX, base);
// only the left `share` of it shows when the measure counts a part of one.
void drawGlyph(cairo_t *cr, const PictureFonts &fonts, char32_t glyph, double centreX, double base,
               double width, double share = 1)
{
    const auto image = fonts.emoji(glyph);
    const double scale = width / (image->inkRight - image->inkLeft);
    const double left = centreX - width / 2;
    const double top = base - (image->inkBottom - image->inkTop) * scale;
    cairo_surface_t *source =
        cairo_image_surface_create_for_data(const_cast<unsigned char *>(image->pixels.data()),
                                            CAIRO_FORMAT_ARGB32, image->width, image->height, image->stride);
    cairo_save(cr);
    cairo_rectangle(cr, left, top, width * share, base - top);
    cairo_clip(cr);
    cairo_translate(cr, left - image->inkLeft * scale, top - image->inkTop * scale);
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

// One item on the plate; a part of one shows its left share.
void drawItem(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts, double centreX, double base,
              double share)
{
    const double width = scene.itemWidth;
    drawShadow(cr, centreX, base, width * 0.8);
    if (scene.form.shape == Shape::Glyph) {
        drawGlyph(cr, fonts, scene.look.glyph, centreX, base, width, share);
        return;
    }
    cairo_save(cr);
    cairo_rectangle(cr, centreX - width, 0, width * (0.5 + share), 1);
    cairo_clip(cr);
    drawFoodShape(cr, scene.form.shape, scene.look, centreX, base, width);
    cairo_restore(cr);
}

// Items lie on the plate at their own size in rows, back rows first, the part-item last
// in the front row; many small ones crowd closer rather than shrink.
void drawItems(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts)
{
    const int count = wholeCount(scene.count, mostItems);
    const double width = scene.itemWidth;
    double spacing = width * 1.08;
    int perRow = std::max(1, 1 + static_cast<int>(std::max(0.0, plateRoom - width) / spacing));
    if ((count + perRow - 1) / perRow > mostRows) {
        perRow = (count + mostRows - 1) / mostRows;
        spacing = std::max(0.0, plateRoom - width) / (perRow - 1);
    }
    const int rows = (count + perRow - 1) / perRow;
    const double depth = std::min(0.06, width * 0.45);
    int drawn = 0;
    for (int row = rows - 1; row >= 0; --row) {
        const int inRow = row == 0 ? count - (rows - 1) * perRow : perRow;
        const double base = plateCentreY + 0.03 + (rows - 1) * depth / 2 - row * depth;
        for (int i = 0; i < inRow; ++i) {
            const double centreX = 0.5 + (i - (inRow - 1) / 2.0) * spacing;
            ++drawn;
            drawItem(cr, scene, fonts, centreX, base, drawn == count ? lastShare(scene.count) : 1);
        }
    }
}

// A bowl of a food with a glyph shows a few of it on top, each at its own size.
void drawGlyphsOnSurface(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts, double centreX,
                         double surfaceY, double surfaceWidth)
{
    const double width = std::min(scene.look.whole.centimetres * pictureUnitsPerCm, surfaceWidth * 0.8);
    const int shown = std::clamp(static_cast<int>(surfaceWidth * 0.8 / (width * 0.9)), 1, 5);
    for (int i = 0; i < shown; ++i) {
        const double x = centreX + (i - (shown - 1) / 2.0) * width * 0.9;
        drawGlyph(cr, fonts, scene.look.glyph, x, surfaceY + width * 0.25, width);
    }
}

// Bowls, glasses or cups side by side, each sized for what it holds.
void drawVessels(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts)
{
    const int count = wholeCount(scene.count, mostVessels);
    const bool bowl = scene.vessel == Vessel::Bowl;
    const double oneCup = bowl ? bowlCm : scene.vessel == Vessel::Glass ? glassCm : mugCm;
    const double width = std::min(oneCup * pictureUnitsPerCm * std::cbrt(std::max(scene.capacityCups, 0.125)),
                                  bowl ? 0.8 : 0.4);
    const double spacing = std::min(width * 1.08, count > 1 ? (0.86 - width) / (count - 1) : width);
    const double left = 0.5 - (count - 1) * spacing / 2;
    const double base = plateCentreY + 0.04;
    for (int i = 0; i < count; ++i) {
        const double centreX = left + i * spacing;
        const double fill = i == count - 1 ? std::min(lastShare(scene.count), scene.count) : 1;
        if (bowl) {
            drawBowl(cr, centreX, base, width, scene.look, fill, [&](double surfaceY, double surfaceWidth) {
                if (scene.look.whole.shape == Shape::Glyph && fill > 0)
                    drawGlyphsOnSurface(cr, scene, fonts, centreX, surfaceY, surfaceWidth);
            });
        } else if (scene.vessel == Vessel::Glass) {
            drawGlass(cr, centreX, base, width, scene.look, fill);
        } else {
            drawCup(cr, centreX, base, width, scene.look, fill);
        }
    }
}

// Spoons lying across the plate one above the other.
void drawSpoons(cairo_t *cr, const PortionScene &scene)
{
    const int count = wholeCount(scene.count, mostVessels);
    const double scale = scene.vessel == Vessel::Tablespoon ? 1 : 0.8;
    for (int i = 0; i < count; ++i) {
        const double fill = i == count - 1 ? std::min(lastShare(scene.count), scene.count) : 1;
        drawSpoon(cr, 0.36 + i * 0.04, plateCentreY + 0.02 + i * 0.05 - (count - 1) * 0.025, scale,
                  scene.look, fill);
    }
}

// Whether the food's own glyph is in the picture; if not, its name is.
bool showsGlyph(const PortionScene &scene)
{
    switch (scene.vessel) {
    case Vessel::Plate:
        return scene.form.shape == Shape::Glyph;
    case Vessel::Bowl:
        return scene.look.whole.shape == Shape::Glyph;
    default:
        return false;
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

void drawName(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts)
{
    const double width = textWidth(cr, fonts.regular(), nameSize, scene.look.name);
    cairo_move_to(cr, std::max(0.03, (1 - width) / 2), nameBaseline);
    cairo_set_source_rgb(cr, 0.2, 0.2, 0.2);
    cairo_show_text(cr, scene.look.name.c_str());
}

// "1 medium · 118 g" at one size in every picture: the measure loses its last words
// rather than the label shrinking, and the weight is always whole, in bold.
void drawLabel(cairo_t *cr, const PortionScene &scene, const PictureFonts &fonts)
{
    const std::string separator = " \u00B7 ";
    std::string measure = scene.measure;
    const auto width = [&] {
        return textWidth(cr, fonts.regular(), labelSize, measure + separator) +
               textWidth(cr, fonts.bold(), labelSize, scene.weight);
    };
    while (width() > labelWidth && measure.find(' ') != std::string::npos)
        measure.erase(measure.rfind(' '));
    const double start = (1 - width()) / 2;
    const double measureWidth = textWidth(cr, fonts.regular(), labelSize, measure + separator);
    cairo_move_to(cr, start, labelBaseline);
    cairo_set_source_rgb(cr, 0.27, 0.27, 0.27);
    cairo_show_text(cr, (measure + separator).c_str());
    cairo_move_to(cr, start + measureWidth, labelBaseline);
    cairo_set_source_rgb(cr, 0.1, 0.1, 0.1);
    cairo_set_font_face(cr, fonts.bold());
    cairo_show_text(cr, scene.weight.c_str());
}

void check(cairo_t *cr)
{
    const cairo_status_t status = cairo_status(cr);
    cairo_destroy(cr);
    if (status != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error(std::string("drawing a portion picture failed: ") +
                                 cairo_status_to_string(status));
}

} // namespace

Surface drawBackdrop(int size)
{
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size, size), cairo_surface_destroy);
    cairo_t *cr = cairo_create(surface.get());
    cairo_scale(cr, size, size);
    cairo_set_source_rgb(cr, 0.97, 0.96, 0.93);
    cairo_paint(cr);
    drawPlate(cr);
    check(cr);
    return surface;
}

Surface drawPortionPicture(const PortionScene &scene, const PictureFonts &fonts, Surface backdrop)
{
    const int size = cairo_image_surface_get_width(backdrop.get());
    cairo_t *cr = cairo_create(backdrop.get());
    cairo_scale(cr, size, size);
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
        drawSpoons(cr, scene);
        break;
    }
    if (!showsGlyph(scene))
        drawName(cr, scene, fonts);
    drawLabel(cr, scene, fonts);
    check(cr);
    return backdrop;
}

} // namespace foodservice
