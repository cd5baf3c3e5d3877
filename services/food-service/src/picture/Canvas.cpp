#include "picture/Canvas.h"

#include <algorithm>
#include <cmath>

namespace foodservice {

Canvas::Canvas(int width, int height, Colour background)
    : m_width(width), m_height(height),
      m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3)
{
    fillRect(0, 0, 1, 1, background);
}

void Canvas::set(int x, int y, Colour colour)
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return;
    const auto at =
        (static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x)) * 3;
    m_pixels[at] = colour.red;
    m_pixels[at + 1] = colour.green;
    m_pixels[at + 2] = colour.blue;
}

void Canvas::fillRect(double left, double top, double right, double bottom, Colour colour)
{
    const int x0 = std::max(0, static_cast<int>(std::lround(left * m_width)));
    const int x1 = std::min(m_width, static_cast<int>(std::lround(right * m_width)));
    const int y0 = std::max(0, static_cast<int>(std::lround(top * m_height)));
    const int y1 = std::min(m_height, static_cast<int>(std::lround(bottom * m_height)));
    for (int y = y0; y < y1; ++y) {
        for (int x = x0; x < x1; ++x)
            set(x, y, colour);
    }
}

void Canvas::fillEllipse(double centreX, double centreY, double radiusX, double radiusY, Colour colour)
{
    if (radiusX <= 0 || radiusY <= 0)
        return;
    for (int y = 0; y < m_height; ++y) {
        const double dy = ((y + 0.5) / m_height - centreY) / radiusY;
        if (std::abs(dy) > 1)
            continue;
        const double half = radiusX * std::sqrt(1 - dy * dy);
        fillRect(centreX - half, static_cast<double>(y) / m_height, centreX + half,
                 static_cast<double>(y + 1) / m_height, colour);
    }
}

void Canvas::fillPolygon(const std::vector<std::pair<double, double>> &points, Colour colour)
{
    if (points.size() < 3)
        return;
    std::vector<double> crossings;
    for (int y = 0; y < m_height; ++y) {
        const double scanY = (y + 0.5) / m_height;
        crossings.clear();
        for (std::size_t i = 0; i < points.size(); ++i) {
            const auto [x0, y0] = points[i];
            const auto [x1, y1] = points[(i + 1) % points.size()];
            if ((y0 <= scanY && y1 > scanY) || (y1 <= scanY && y0 > scanY))
                crossings.push_back(x0 + (scanY - y0) / (y1 - y0) * (x1 - x0));
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
            fillRect(crossings[i], static_cast<double>(y) / m_height, crossings[i + 1],
                     static_cast<double>(y + 1) / m_height, colour);
    }
}

} // namespace foodservice
