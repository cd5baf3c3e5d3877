#include "picture/Drawing.h"

#include <cairo.h>
#include <cmath>

namespace foodservice {

void setColour(cairo_t *cr, const Colour &colour, double alpha)
{
    cairo_set_source_rgba(cr, colour.red, colour.green, colour.blue, alpha);
}

Colour shade(const Colour &colour, double factor)
{
    const auto channel = [&](double value) {
        return factor < 1 ? value * factor : std::min(1.0, value + (1 - value) * (factor - 1));
    };
    return {channel(colour.red), channel(colour.green), channel(colour.blue)};
}

void ellipse(cairo_t *cr, double centreX, double centreY, double radiusX, double radiusY)
{
    cairo_save(cr);
    cairo_translate(cr, centreX, centreY);
    cairo_scale(cr, radiusX, radiusY);
    cairo_new_sub_path(cr);
    cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
    cairo_restore(cr);
}

void outline(cairo_t *cr, const Colour &colour, double alpha)
{
    setColour(cr, colour, alpha);
    cairo_set_line_width(cr, outlineWidth);
    cairo_stroke(cr);
}

} // namespace foodservice
