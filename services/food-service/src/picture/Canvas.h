#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace foodservice {

struct Colour
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

// An RGB raster drawn in unit coordinates: (0, 0) is the top left corner and
// (1, 1) the bottom right, so one drawing serves every picture size.
class Canvas
{
public:
    Canvas(int width, int height, Colour background);

    void fillRect(double left, double top, double right, double bottom, Colour colour);
    void fillEllipse(double centreX, double centreY, double radiusX, double radiusY, Colour colour);
    // Even-odd fill of a closed polygon.
    void fillPolygon(const std::vector<std::pair<double, double>> &points, Colour colour);

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    // Rows top to bottom, three bytes per pixel.
    [[nodiscard]] const std::vector<std::uint8_t> &pixels() const { return m_pixels; }

private:
    void set(int x, int y, Colour colour);

    int m_width;
    int m_height;
    std::vector<std::uint8_t> m_pixels;
};

} // namespace foodservice
