#include "picture/PortionPicture.h"

#include <array>
#include <numeric>

namespace foodservice {
namespace {

constexpr Colour white{255, 255, 255};

struct Palette
{
    Colour background;
    Colour ink;
};

Palette paletteOf(std::string_view category)
{
    static constexpr std::array<Palette, 8> palettes = {{
        {{255, 243, 224}, {230, 126, 34}},
        {{232, 245, 233}, {56, 142, 60}},
        {{227, 242, 253}, {30, 136, 229}},
        {{252, 228, 236}, {216, 27, 96}},
        {{255, 249, 196}, {175, 140, 0}},
        {{237, 231, 246}, {94, 53, 177}},
        {{224, 247, 250}, {0, 131, 143}},
        {{239, 235, 233}, {109, 76, 65}},
    }};
    const unsigned sum = std::accumulate(category.begin(), category.end(), 0U, [](unsigned total, char c) {
        return total * 31U + static_cast<unsigned char>(c);
    });
    return palettes[sum % palettes.size()];
}

// The group's pictogram, in the top left corner.
void drawGroupSign(Canvas &canvas, std::string_view category, Colour ink)
{
    const auto has = [&](std::string_view word) { return category.find(word) != std::string_view::npos; };
    if (has("Fruit")) {
        canvas.fillEllipse(0.14, 0.15, 0.07, 0.07, ink);
        canvas.fillEllipse(0.17, 0.06, 0.03, 0.015, ink);
    } else if (has("Vegetable") || has("Legume")) {
        canvas.fillPolygon({{0.08, 0.07}, {0.2, 0.07}, {0.14, 0.24}}, ink);
    } else if (has("Dairy") || has("Beverage")) {
        canvas.fillRect(0.09, 0.1, 0.19, 0.24, ink);
        canvas.fillRect(0.12, 0.05, 0.16, 0.1, ink);
    } else if (has("Cereal") || has("Baked") || has("Snack")) {
        canvas.fillEllipse(0.14, 0.15, 0.08, 0.05, ink);
        canvas.fillRect(0.06, 0.15, 0.22, 0.21, ink);
    } else if (has("Beef") || has("Pork") || has("Lamb") || has("Poultry") || has("Sausage") ||
               has("Finfish")) {
        canvas.fillEllipse(0.13, 0.15, 0.07, 0.05, ink);
        canvas.fillPolygon({{0.19, 0.15}, {0.25, 0.09}, {0.25, 0.21}}, ink);
    } else {
        canvas.fillPolygon({{0.14, 0.05}, {0.23, 0.15}, {0.14, 0.25}, {0.05, 0.15}}, ink);
    }
}

void drawMeasure(Canvas &canvas, std::string_view kind, Palette palette)
{
    const Colour ink = palette.ink;
    if (kind == "cup") {
        canvas.fillEllipse(0.7, 0.55, 0.11, 0.13, ink);
        canvas.fillEllipse(0.7, 0.55, 0.06, 0.08, palette.background);
        canvas.fillPolygon({{0.28, 0.34}, {0.72, 0.34}, {0.65, 0.8}, {0.35, 0.8}}, ink);
        canvas.fillRect(0.3, 0.36, 0.7, 0.42, white);
    } else if (kind == "slice") {
        canvas.fillPolygon({{0.25, 0.78}, {0.78, 0.78}, {0.5, 0.3}}, ink);
        canvas.fillRect(0.25, 0.74, 0.78, 0.8, white);
    } else if (kind == "tablespoon" || kind == "teaspoon") {
        const double scale = kind == "tablespoon" ? 1.0 : 0.7;
        canvas.fillEllipse(0.38, 0.55, 0.14 * scale, 0.09 * scale, ink);
        canvas.fillRect(0.38, 0.53, 0.38 + 0.45 * scale, 0.57, ink);
    } else {
        double radius = 0.22;
        if (kind == "small")
            radius = 0.13;
        else if (kind == "medium")
            radius = 0.19;
        else if (kind == "large")
            radius = 0.27;
        canvas.fillEllipse(0.5, 0.57, radius, radius, ink);
        canvas.fillEllipse(0.5 - radius * 0.35, 0.57 - radius * 0.35, radius * 0.2, radius * 0.2, white);
    }
}

} // namespace

Canvas drawPortionPicture(std::string_view pictureKind, std::string_view category, int size)
{
    const Palette palette = paletteOf(category);
    Canvas canvas(size, size, palette.background);
    drawGroupSign(canvas, category, palette.ink);
    drawMeasure(canvas, pictureKind, palette);
    return canvas;
}

} // namespace foodservice
