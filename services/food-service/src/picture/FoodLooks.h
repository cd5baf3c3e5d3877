#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace foodservice {

struct Colour
{
    double red = 0;
    double green = 0;
    double blue = 0;
};

// What a portion picture shows of a food.
struct FoodLook
{
    // One emoji code point, 0 when no glyph fits and the vessel is drawn alone.
    char32_t glyph = 0;
    // The food as it fills a bowl, glass, cup or spoon.
    Colour colour;
    // The vessel a cup measure of the food is drawn in: "bowl", "glass" or "cup".
    std::string cupVessel = "bowl";
};

// The table of food looks (data/food-pictures.json): the first rule whose phrase the
// folded description contains ("^" anchors at the start) or whose group is the food's.
class FoodLooks
{
public:
    // Reads {"looks": [{"phrases", "groups", "glyph", "colour", "cup"}], "fallback": {"colour"}};
    // throws std::runtime_error on a malformed table.
    explicit FoodLooks(std::string_view json);

    [[nodiscard]] FoodLook lookOf(std::string_view foldedDescription, std::string_view group) const;
    // Every glyph the table names, so the font can be checked for them.
    [[nodiscard]] std::vector<char32_t> glyphs() const;

private:
    struct Rule
    {
        std::vector<std::string> phrases;
        std::vector<std::string> groups;
        FoodLook look;
    };
    std::vector<Rule> m_rules;
    FoodLook m_fallback;
};

} // namespace foodservice
