#include "picture/PortionScene.h"

#include "catalog/PortionText.h"
#include "text/FoldedText.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace foodservice {
namespace {

constexpr double fluidOuncesPerCup = 8;

Vessel vesselOf(std::string_view pictureKind, const FoodLook &look)
{
    if (pictureKind == "cup")
        return look.cupVessel == "glass" ? Vessel::Glass
               : look.cupVessel == "cup" ? Vessel::Cup
                                         : Vessel::Bowl;
    if (pictureKind == "glass")
        return Vessel::Glass;
    if (pictureKind == "bowl")
        return Vessel::Bowl;
    if (pictureKind == "tablespoon")
        return Vessel::Tablespoon;
    if (pictureKind == "teaspoon")
        return Vessel::Teaspoon;
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

} // namespace

PortionScene portionScene(const PortionPictureRow &row, const FoodLooks &looks)
{
    PortionScene scene;
    scene.look = looks.lookOf(foldText(row.foodDescription), row.category);
    scene.vessel = vesselOf(row.picture, scene.look);
    scene.count = std::max(leadingAmount(row.description), 0.01);
    const auto grams = static_cast<double>(std::max<std::int64_t>(row.grams, 1));
    scene.itemGrams = grams / scene.count;
    if (const double ounces = fluidOunces(row.description); ounces > 0)
        scene.capacityCups = ounces / fluidOuncesPerCup / scene.count;
    scene.measure = row.description;
    scene.weight = std::to_string(row.grams) + " g";
    return scene;
}

} // namespace foodservice
