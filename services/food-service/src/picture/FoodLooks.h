#pragma once

#include <map>
#include <optional>
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

// How one item of a food is drawn where it lies on the plate.
enum class Shape
{
    Glyph, // the food's emoji
    Slice, // a slice of bread standing on its crust
    Slab,  // a flat square slice, as of cheese
    Wedge, // a piece cut from a round cake or pie
    Cube,
    Nugget, // a rounded breaded piece
    Disc,   // a flat round, as a pancake
    Heap,   // a mound of a food that takes the form of its dish
};

// The surface of a food that fills a bowl, a spoon or a heap.
enum class Texture
{
    Smooth,
    Grains,
    Flakes,
    Strands,
    Lumps,
};

// A food form and its typical size: `centimetres` across the plate at `grams`. An item of
// another weight is scaled by the cube root of the weights, as its volume grows.
struct FoodForm
{
    Shape shape = Shape::Heap;
    double centimetres = 9;
    double grams = 100;
};

// What a portion picture shows of a food.
struct FoodLook
{
    // Written on the picture when no glyph shows the food.
    std::string name;
    // One emoji code point, 0 when no glyph fits.
    char32_t glyph = 0;
    // The food's own colour, and its surface where it fills a vessel or lies heaped.
    Colour colour;
    Texture texture = Texture::Smooth;
    // The vessel a cup measure of the food is drawn in: "bowl", "glass" or "cup".
    std::string cupVessel = "bowl";
    // One whole item; a slice or piece of the food where that has a form of its own.
    FoodForm whole;
    std::optional<FoodForm> cut;
};

// The table of food looks (data/food-pictures.json): the first rule whose phrase the
// folded description contains ("^" anchors at the start) or whose group is the food's.
// The forms a rule names come from the table's "forms", with their typical sizes.
class FoodLooks
{
public:
    // Throws std::runtime_error on a malformed table or a form it does not define.
    explicit FoodLooks(std::string_view json);

    // `foodName` is written on a picture without a glyph when the rule matched by group.
    [[nodiscard]] FoodLook lookOf(std::string_view foldedDescription, std::string_view group,
                                  std::string_view foodName) const;
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
