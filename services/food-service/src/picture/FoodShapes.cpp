#include "picture/FoodShapes.h"

#include "picture/Drawing.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <cstdint>

namespace foodservice {
namespace {

// The same scatter every time, so a food's picture never changes between requests.
class Scatter
{
public:
    double next()
    {
        m_state = m_state * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<double>(m_state >> 11U) / static_cast<double>(1ULL << 53U);
    }

private:
    std::uint64_t m_state = 0x2545F4914F6CDD1DULL;
};

// Grains, flakes, strands or lumps over the current clip, at their own size whatever
// the area, so a cup of rice and a spoon of sugar both read as grains.
void drawTexture(cairo_t *cr, const FoodLook &food, double left, double top, double width, double height)
{
    // A smooth food shows a swirl where it was spooned or poured, so a white one in a
    // white bowl does not read as an empty bowl.
    if (food.texture == Texture::Smooth) {
        cairo_move_to(cr, left + width * 0.2, top + height * 0.55);
        cairo_curve_to(cr, left + width * 0.35, top + height * 0.2, left + width * 0.65, top + height * 0.25,
                       left + width * 0.6, top + height * 0.5);
        cairo_curve_to(cr, left + width * 0.55, top + height * 0.75, left + width * 0.4, top + height * 0.6,
                       left + width * 0.48, top + height * 0.45);
        setColour(cr, shade(food.colour, 0.8));
        cairo_set_line_width(cr, outlineWidth);
        cairo_stroke(cr);
        return;
    }
    constexpr double grain = 0.014;
    const double spacing = food.texture == Texture::Grains ? grain * 1.4 : grain * 2.4;
    const int count = std::min(100, static_cast<int>(width * height / (spacing * spacing)) + 3);
    const Colour dark = shade(food.colour, 0.72);
    const Colour light = shade(food.colour, 1.35);
    Scatter scatter;
    for (int i = 0; i < count; ++i) {
        const double x = left + scatter.next() * width;
        const double y = top + scatter.next() * height;
        const double turn = scatter.next() * M_PI;
        setColour(cr, i % 2 == 0 ? dark : light, 0.9);
        switch (food.texture) {
        case Texture::Grains:
            cairo_save(cr);
            cairo_translate(cr, x, y);
            cairo_rotate(cr, turn);
            ellipse(cr, 0, 0, grain * 0.5, grain * 0.22);
            cairo_restore(cr);
            cairo_fill(cr);
            break;
        case Texture::Flakes:
            cairo_move_to(cr, x, y);
            cairo_rel_line_to(cr, grain * 1.6 * std::cos(turn), grain * 0.6 * std::sin(turn));
            cairo_rel_line_to(cr, grain * 0.5, grain * 0.7);
            cairo_rel_line_to(cr, -grain * 1.4, grain * 0.2);
            cairo_close_path(cr);
            cairo_fill_preserve(cr);
            setColour(cr, dark);
            cairo_set_line_width(cr, outlineWidth * 0.5);
            cairo_stroke(cr);
            break;
        case Texture::Strands:
            cairo_move_to(cr, x, y);
            cairo_rel_curve_to(cr, grain * 1.5, -grain * std::sin(turn) * 2, grain * 2, grain * 2,
                               grain * 3.5 * std::cos(turn), grain);
            cairo_set_line_width(cr, grain * 0.35);
            cairo_stroke(cr);
            break;
        case Texture::Lumps:
            ellipse(cr, x, y, grain * (0.5 + scatter.next() * 0.5), grain * 0.45);
            cairo_fill(cr);
            break;
        case Texture::Smooth:
            break;
        }
    }
}

// Fills the current path with the food and its texture, and outlines it.
void fillFood(cairo_t *cr, const FoodLook &food, const Colour &colour)
{
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    cairo_path_extents(cr, &left, &top, &right, &bottom);
    setColour(cr, colour);
    cairo_fill_preserve(cr);
    cairo_save(cr);
    cairo_clip_preserve(cr);
    cairo_new_path(cr);
    drawTexture(cr, food, left, top, right - left, bottom - top);
    cairo_restore(cr);
    outline(cr, shade(food.colour, 0.6));
}

// A slice of bread on its crust: a square with rounded shoulders, crust around the crumb.
void slicePath(cairo_t *cr, double centreX, double base, double width, double height)
{
    const double shoulder = width * 0.26;
    const double top = base - height;
    cairo_new_path(cr);
    cairo_move_to(cr, centreX - width * 0.45, base);
    cairo_line_to(cr, centreX - width / 2, top + shoulder);
    cairo_arc(cr, centreX - width / 2 + shoulder, top + shoulder, shoulder, M_PI, 1.5 * M_PI);
    cairo_arc(cr, centreX + width / 2 - shoulder, top + shoulder, shoulder, 1.5 * M_PI, 2 * M_PI);
    cairo_line_to(cr, centreX + width * 0.45, base);
    cairo_close_path(cr);
}

void drawSlice(cairo_t *cr, const FoodLook &food, double centreX, double base, double width)
{
    slicePath(cr, centreX, base, width, width * 0.95);
    setColour(cr, shade(food.colour, 0.72));
    cairo_fill_preserve(cr);
    outline(cr, shade(food.colour, 0.5));
    slicePath(cr, centreX, base - width * 0.06, width * 0.84, width * 0.8);
    FoodLook crumb = food;
    crumb.texture = Texture::Lumps;
    fillFood(cr, crumb, shade(food.colour, 1.55));
}

// A flat square lying on the plate: its top seen from the front, and its front edge.
void drawSlab(cairo_t *cr, const FoodLook &food, double centreX, double base, double width)
{
    const double thick = width * 0.05;
    const double depth = width * 0.28;
    const double left = centreX - width / 2;
    const double skew = width * 0.15;
    cairo_new_path(cr);
    cairo_rectangle(cr, left, base - thick, width - skew, thick);
    setColour(cr, shade(food.colour, 0.8));
    cairo_fill_preserve(cr);
    outline(cr, shade(food.colour, 0.55));
    cairo_move_to(cr, left, base - thick);
    cairo_line_to(cr, left + width - skew, base - thick);
    cairo_line_to(cr, left + width, base - thick - depth);
    cairo_line_to(cr, left + skew, base - thick - depth);
    cairo_close_path(cr);
    fillFood(cr, food, food.colour);
}

// A piece cut from a round cake or pie, its tip to the left: the cut side, the top and
// the outer edge, with a layer of filling across the side.
void drawWedge(cairo_t *cr, const FoodLook &food, double centreX, double base, double width)
{
    const double height = width * 0.4;
    const double back = width * 0.2;
    const double left = centreX - width / 2;
    const double sideRight = centreX + width * 0.4;
    cairo_new_path(cr);
    cairo_rectangle(cr, left, base - height, sideRight - left, height);
    setColour(cr, food.colour);
    cairo_fill_preserve(cr);
    outline(cr, shade(food.colour, 0.55));
    cairo_rectangle(cr, left, base - height * 0.56, sideRight - left, height * 0.12);
    setColour(cr, shade(food.colour, 1.5));
    cairo_fill(cr);
    cairo_move_to(cr, sideRight, base - height);
    cairo_line_to(cr, centreX + width / 2, base - height - back);
    cairo_line_to(cr, centreX + width / 2, base - back);
    cairo_line_to(cr, sideRight, base);
    cairo_close_path(cr);
    setColour(cr, shade(food.colour, 0.7));
    cairo_fill_preserve(cr);
    outline(cr, shade(food.colour, 0.55));
    cairo_move_to(cr, left, base - height);
    cairo_line_to(cr, sideRight, base - height);
    cairo_line_to(cr, centreX + width / 2, base - height - back);
    cairo_close_path(cr);
    setColour(cr, shade(food.colour, 0.85));
    cairo_fill_preserve(cr);
    outline(cr, shade(food.colour, 0.55));
}

void drawCube(cairo_t *cr, const FoodLook &food, double centreX, double base, double width)
{
    const double side = width * 0.78;
    const double back = width - side;
    const double left = centreX - width / 2;
    cairo_new_path(cr);
    cairo_rectangle(cr, left, base - side, side, side);
    fillFood(cr, food, food.colour);
    cairo_move_to(cr, left, base - side);
    cairo_line_to(cr, left + back, base - side - back);
    cairo_line_to(cr, left + width, base - side - back);
    cairo_line_to(cr, left + side, base - side);
    cairo_close_path(cr);
    fillFood(cr, food, shade(food.colour, 1.25));
    cairo_move_to(cr, left + side, base - side);
    cairo_line_to(cr, left + width, base - side - back);
    cairo_line_to(cr, left + width, base - back);
    cairo_line_to(cr, left + side, base);
    cairo_close_path(cr);
    fillFood(cr, food, shade(food.colour, 0.8));
}

// A rounded piece with a bumpy edge; the bumps only ever dent inward, so it stays `width` across.
void drawNugget(cairo_t *cr, const FoodLook &food, double centreX, double base, double width)
{
    constexpr int bumps = 10;
    const double radiusX = width / 2;
    const double radiusY = width * 0.3;
    const double centreY = base - radiusY;
    cairo_new_path(cr);
    for (int i = 0; i <= bumps; ++i) {
        const double angle = 2 * M_PI * i / bumps;
        const double dent = i % 5 == 0 ? 1 : (i % 2 == 0 ? 0.9 : 0.96);
        const double x = centreX + radiusX * dent * std::cos(angle);
        const double y = centreY + radiusY * dent * std::sin(angle);
        if (i == 0)
            cairo_move_to(cr, x, y);
        else
            cairo_line_to(cr, x, y);
    }
    cairo_close_path(cr);
    FoodLook crumbed = food;
    crumbed.texture = Texture::Lumps;
    fillFood(cr, crumbed, food.colour);
}

void drawDisc(cairo_t *cr, const FoodLook &food, double centreX, double base, double width)
{
    const double thick = width * 0.06;
    const double depth = width * 0.17;
    cairo_new_path(cr);
    ellipse(cr, centreX, base - depth, width / 2, depth);
    setColour(cr, shade(food.colour, 0.75));
    cairo_fill_preserve(cr);
    outline(cr, shade(food.colour, 0.55));
    ellipse(cr, centreX, base - depth - thick, width / 2, depth);
    fillFood(cr, food, food.colour);
}

// A mound that takes the form of a food with none of its own: rice, a stew, a dip.
void drawHeap(cairo_t *cr, const FoodLook &food, double centreX, double base, double width)
{
    const double half = width / 2;
    const double height = width * 0.38;
    cairo_new_path(cr);
    cairo_move_to(cr, centreX - half, base);
    cairo_curve_to(cr, centreX - half * 0.8, base - height * 0.9, centreX - half * 0.3, base - height,
                   centreX, base - height);
    cairo_curve_to(cr, centreX + half * 0.3, base - height, centreX + half * 0.8, base - height * 0.9,
                   centreX + half, base);
    cairo_curve_to(cr, centreX + half * 0.5, base + height * 0.12, centreX - half * 0.5, base + height * 0.12,
                   centreX - half, base);
    cairo_close_path(cr);
    fillFood(cr, food, food.colour);
}

} // namespace

void drawFoodShape(cairo_t *cr, Shape shape, const FoodLook &food, double centreX, double base, double width)
{
    switch (shape) {
    case Shape::Slice:
        drawSlice(cr, food, centreX, base, width);
        break;
    case Shape::Slab:
        drawSlab(cr, food, centreX, base, width);
        break;
    case Shape::Wedge:
        drawWedge(cr, food, centreX, base, width);
        break;
    case Shape::Cube:
        drawCube(cr, food, centreX, base, width);
        break;
    case Shape::Nugget:
        drawNugget(cr, food, centreX, base, width);
        break;
    case Shape::Disc:
        drawDisc(cr, food, centreX, base, width);
        break;
    case Shape::Heap:
    case Shape::Glyph:
        drawHeap(cr, food, centreX, base, width);
        break;
    }
}

void drawSurface(cairo_t *cr, const FoodLook &food, double centreX, double centreY, double radiusX,
                 double radiusY)
{
    cairo_new_path(cr);
    ellipse(cr, centreX, centreY, radiusX, radiusY);
    fillFood(cr, food, food.colour);
}

} // namespace foodservice
