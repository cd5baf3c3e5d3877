#include "picture/PortionScene.h"

#include "catalog/PortionText.h"
#include "picture/EverydayMeasure.h"
#include "picture/Vessels.h"
#include "text/FoldedText.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

namespace foodservice {
namespace {

constexpr double fluidOuncesPerCup = 8;
constexpr double gramsPerCupOfDrink = 240;

Vessel vesselOf(std::string_view pictureKind, const FoodLook &look)
{
    if (pictureKind == "tablespoon")
        return Vessel::Tablespoon;
    if (pictureKind == "teaspoon")
        return Vessel::Teaspoon;
    // A drink is poured whatever its measure: a can or a bottle is a glass of its size.
    if (look.cupVessel != "bowl")
        return look.cupVessel == "glass" ? Vessel::Glass : Vessel::Cup;
    if (pictureKind == "cup" || pictureKind == "bowl")
        return Vessel::Bowl;
    if (pictureKind == "glass")
        return Vessel::Glass;
    return Vessel::Plate;
}

// The "N fl oz" a drink measure names as its size ("1 cup child 12 fl oz size"), or 0.
double fluidOunces(std::string_view description)
{
    const auto unit = description.find(" fl oz");
    if (unit == std::string_view::npos)
        return 0;
    auto start = unit;
    while (start > 0 && (std::isdigit(static_cast<unsigned char>(description[start - 1])) != 0 ||
                         description[start - 1] == '.'))
        --start;
    double ounces = 0;
    const auto [end, ec] = std::from_chars(description.data() + start, description.data() + unit, ounces);
    return ec == std::errc() && end == description.data() + unit ? ounces : 0;
}

// The food's own name for a picture that names it: "Beets, raw" gives "beets".
std::string foodName(std::string_view description)
{
    const auto words = foldedWords(foldText(description.substr(0, description.find(','))));
    std::string name;
    for (const auto &word : words) {
        if (name.size() + word.size() > 18)
            break;
        name += (name.empty() ? "" : " ") + word;
    }
    return name;
}

} // namespace

PortionScene portionScene(const PortionPictureRow &row, const FoodLooks &looks)
{
    PortionScene scene;
    scene.look = looks.lookOf(foldText(row.foodDescription), row.category, foodName(row.foodDescription));
    scene.vessel = vesselOf(row.picture, scene.look);
    scene.count = std::max(leadingAmount(row.description), 0.01);
    const auto grams = static_cast<double>(std::max<std::int64_t>(row.grams, 1));
    const bool cutPiece = row.picture == "slice" || row.picture == "piece";
    scene.form = cutPiece && scene.look.cut ? *scene.look.cut : scene.look.whole;
    const double itemGrams = grams / scene.count;
    scene.itemWidth =
        std::min(scene.form.centimetres * std::cbrt(itemGrams / scene.form.grams) * pictureUnitsPerCm, 0.96);
    if (const double ounces = fluidOunces(row.description); ounces > 0) {
        scene.capacityCups = ounces / fluidOuncesPerCup / scene.count;
    } else if ((scene.vessel == Vessel::Glass || scene.vessel == Vessel::Cup) && row.picture != "cup") {
        // A can, a bottle or a fluid ounce: one vessel that holds the portion.
        scene.count = 1;
        scene.capacityCups = std::max(grams / gramsPerCupOfDrink, 0.125);
    }
    scene.measure = everydayMeasure(row.description);
    scene.weight = std::to_string(row.grams) + " g";
    return scene;
}

} // namespace foodservice
