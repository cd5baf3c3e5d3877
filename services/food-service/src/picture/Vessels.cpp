#include "picture/Vessels.h"

#include "picture/Drawing.h"
#include "picture/FoodShapes.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>

namespace foodservice {
namespace {

// The share of a vessel's height the food reaches when it fills `fill` of its volume,
// for a vessel narrower at the foot: the top part holds more.
double levelOf(double fill)
{
    return std::clamp(std::sqrt(std::clamp(fill, 0.0, 1.0)), 0.0, 1.0);
}

const Colour ceramic{0.98, 0.98, 0.97};
const Colour ceramicEdge{0.62, 0.66, 0.70};
const Colour glassEdge{0.52, 0.62, 0.70};
const Colour steel{0.80, 0.82, 0.85};
const Colour steelEdge{0.50, 0.54, 0.58};

} // namespace

void drawShadow(cairo_t *cr, double centreX, double base, double width)
{
    ellipse(cr, centreX, base, width * 0.45, width * 0.08);
    cairo_set_source_rgba(cr, 0, 0, 0, 0.10);
    cairo_fill(cr);
}

void drawPlate(cairo_t *cr)
{
    ellipse(cr, 0.5, plateCentreY + 0.018, plateWidth / 2, 0.13);
    cairo_set_source_rgba(cr, 0, 0, 0, 0.10);
    cairo_fill(cr);
    ellipse(cr, 0.5, plateCentreY, plateWidth / 2, 0.13);
    setColour(cr, ceramic);
    cairo_fill_preserve(cr);
    outline(cr, ceramicEdge, 0.8);
    ellipse(cr, 0.5, plateCentreY + 0.006, 0.30, 0.085);
    setColour(cr, {0.95, 0.95, 0.94});
    cairo_fill_preserve(cr);
    outline(cr, ceramicEdge, 0.35);
}

void drawBowl(cairo_t *cr, double centreX, double base, double width, const FoodLook &food, double fill,
              const std::function<void(double surfaceY, double surfaceWidth)> &contents)
{
    const double half = width / 2;
    const double height = width * 0.46;
    const double top = base - height;
    const double rimDepth = width * 0.15;
    drawShadow(cr, centreX, base, width);

    // The inside, seen over the rim.
    ellipse(cr, centreX, top, half, rimDepth);
    setColour(cr, shade(ceramic, 0.86));
    cairo_fill(cr);

    const double level = levelOf(fill);
    const double surfaceY = top + (1 - level) * height * 0.55;
    const double surfaceWidth = width * (0.62 + 0.34 * level);
    if (fill > 0) {
        drawSurface(cr, food, centreX, surfaceY, surfaceWidth / 2, rimDepth * surfaceWidth / width);
    }
    contents(surfaceY, surfaceWidth);

    // The outside: the front half of the rim, then down to the foot.
    cairo_new_path(cr);
    cairo_move_to(cr, centreX - half, top);
    cairo_curve_to(cr, centreX - half, top + height * 0.75, centreX - half * 0.55, base, centreX, base);
    cairo_curve_to(cr, centreX + half * 0.55, base, centreX + half, top + height * 0.75, centreX + half, top);
    cairo_save(cr);
    cairo_translate(cr, centreX, top);
    cairo_scale(cr, half, rimDepth);
    cairo_arc(cr, 0, 0, 1, 0, M_PI);
    cairo_restore(cr);
    cairo_close_path(cr);
    cairo_pattern_t *body = cairo_pattern_create_linear(centreX - half, 0, centreX + half, 0);
    cairo_pattern_add_color_stop_rgb(body, 0, 0.86, 0.90, 0.94);
    cairo_pattern_add_color_stop_rgb(body, 0.35, 0.97, 0.98, 0.99);
    cairo_pattern_add_color_stop_rgb(body, 1, 0.78, 0.84, 0.90);
    cairo_set_source(cr, body);
    cairo_fill_preserve(cr);
    cairo_pattern_destroy(body);
    outline(cr, ceramicEdge);
    ellipse(cr, centreX, top, half, rimDepth);
    outline(cr, ceramicEdge);
}

void drawGlass(cairo_t *cr, double centreX, double base, double width, const FoodLook &food, double fill)
{
    const double height = width * 1.55;
    const double top = base - height;
    const double foot = width * 0.40;
    const double half = width / 2;
    const double rimDepth = width * 0.12;
    drawShadow(cr, centreX, base, width);

    const auto body = [&](double upTo) {
        const double at = base - upTo;
        const double halfAt = foot + (half - foot) * upTo / height;
        cairo_new_path(cr);
        cairo_move_to(cr, centreX - foot, base);
        cairo_line_to(cr, centreX - halfAt, at);
        cairo_line_to(cr, centreX + halfAt, at);
        cairo_line_to(cr, centreX + foot, base);
        cairo_close_path(cr);
        return halfAt;
    };
    body(height);
    cairo_set_source_rgba(cr, 0.86, 0.93, 0.97, 0.55);
    cairo_fill(cr);

    if (fill > 0) {
        const double liquid = height * 0.9 * levelOf(fill);
        const double halfAt = body(liquid);
        setColour(cr, food.colour);
        cairo_fill(cr);
        ellipse(cr, centreX, base - liquid, halfAt, rimDepth * halfAt / half);
        setColour(cr, shade(food.colour, 1.15));
        cairo_fill_preserve(cr);
        outline(cr, shade(food.colour, 0.8), 0.5);
    }
    // A highlight down the left side, then the outline and the rim.
    cairo_new_path(cr);
    cairo_move_to(cr, centreX - half * 0.62, top + rimDepth * 2);
    cairo_line_to(cr, centreX - foot * 0.62, base - height * 0.08);
    cairo_set_source_rgba(cr, 1, 1, 1, 0.7);
    cairo_set_line_width(cr, width * 0.07);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    cairo_stroke(cr);
    body(height);
    outline(cr, glassEdge);
    ellipse(cr, centreX, top, half, rimDepth);
    outline(cr, glassEdge);
}

void drawCup(cairo_t *cr, double centreX, double base, double width, const FoodLook &food, double fill)
{
    const double half = width / 2;
    const double height = width * 0.82;
    const double top = base - height;
    const double rimDepth = width * 0.16;
    drawShadow(cr, centreX, base, width * 1.2);

    // The handle, a ring on the right.
    ellipse(cr, centreX + half, top + height * 0.45, width * 0.2, height * 0.24);
    setColour(cr, ceramicEdge);
    cairo_set_line_width(cr, width * 0.1);
    cairo_stroke_preserve(cr);
    setColour(cr, ceramic);
    cairo_set_line_width(cr, width * 0.065);
    cairo_stroke(cr);

    cairo_new_path(cr);
    cairo_move_to(cr, centreX - half, top);
    cairo_line_to(cr, centreX - half * 0.9, base - height * 0.12);
    cairo_curve_to(cr, centreX - half * 0.88, base, centreX - half * 0.5, base, centreX, base);
    cairo_curve_to(cr, centreX + half * 0.5, base, centreX + half * 0.88, base, centreX + half * 0.9,
                   base - height * 0.12);
    cairo_line_to(cr, centreX + half, top);
    cairo_close_path(cr);
    cairo_pattern_t *body = cairo_pattern_create_linear(centreX - half, 0, centreX + half, 0);
    cairo_pattern_add_color_stop_rgb(body, 0, 0.88, 0.88, 0.87);
    cairo_pattern_add_color_stop_rgb(body, 0.35, 1, 1, 1);
    cairo_pattern_add_color_stop_rgb(body, 1, 0.82, 0.82, 0.81);
    cairo_set_source(cr, body);
    cairo_fill_preserve(cr);
    cairo_pattern_destroy(body);
    outline(cr, ceramicEdge);

    ellipse(cr, centreX, top, half, rimDepth);
    setColour(cr, shade(ceramic, 0.85));
    cairo_fill_preserve(cr);
    outline(cr, ceramicEdge);
    if (fill > 0) {
        const double inset = 1 - 0.12 - 0.25 * (1 - levelOf(fill));
        drawSurface(cr, food, centreX, top + rimDepth * (1 - inset) * 0.8, half * inset, rimDepth * inset);
    }
}

void drawSpoon(cairo_t *cr, double x, double y, double scale, const FoodLook &food, double fill)
{
    const double bowlX = 0.075 * scale;
    const double bowlY = 0.05 * scale;
    cairo_save(cr);
    cairo_translate(cr, x, y);
    cairo_rotate(cr, -0.22);

    // The handle, widening toward its end.
    cairo_new_path(cr);
    cairo_move_to(cr, bowlX * 0.8, -0.008 * scale);
    cairo_curve_to(cr, 0.15 * scale, -0.01 * scale, 0.25 * scale, -0.02 * scale, 0.31 * scale,
                   -0.018 * scale);
    cairo_curve_to(cr, 0.33 * scale, -0.017 * scale, 0.33 * scale, 0.017 * scale, 0.31 * scale,
                   0.018 * scale);
    cairo_curve_to(cr, 0.25 * scale, 0.02 * scale, 0.15 * scale, 0.01 * scale, bowlX * 0.8, 0.008 * scale);
    cairo_close_path(cr);
    setColour(cr, steel);
    cairo_fill_preserve(cr);
    outline(cr, steelEdge);

    ellipse(cr, 0, 0, bowlX, bowlY);
    setColour(cr, steel);
    cairo_fill_preserve(cr);
    outline(cr, steelEdge);
    if (fill > 0) {
        const double share = 0.45 + 0.45 * levelOf(fill);
        drawSurface(cr, food, 0, 0, bowlX * share, bowlY * share);
    }
    ellipse(cr, -bowlX * 0.45, -bowlY * 0.35, bowlX * 0.18, bowlY * 0.12);
    cairo_set_source_rgba(cr, 1, 1, 1, 0.75);
    cairo_fill(cr);
    cairo_restore(cr);
}

} // namespace foodservice
