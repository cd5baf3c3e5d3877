#include "catalog/PortionOrder.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

namespace foodservice {

namespace {

enum Kind
{
    NaturalUnit = 0,
    HouseholdMeasure = 10,
    Weight = 20,
    Other = 30,
};

// Measure names by their first words. Anything not listed is a natural unit: "medium", "slice",
// "steak", "patty", "bar".
constexpr std::array householdWords{"cup",   "cups",       "tbsp",      "tablespoon", "tablespoons",
                                    "tsp",   "teaspoon",   "teaspoons", "fl oz",      "scoop",
                                    "glass", "cubic inch", "dash",      "pinch",      "quart",
                                    "pint",  "gallon",     "liter",     "litre",      "ml"};
constexpr std::array weightWords{"oz",     "ounce", "ounces", "lb",    "lbs", "pound",
                                 "pounds", "g",     "gram",   "grams", "kg"};
constexpr std::array otherWords{"serving", "servings",  "nlea serving", "package", "packet",  "jar",
                                "can",     "container", "item",         "unit",    "portion", "bottle",
                                "box",     "pouch",     "recipe",       "batch",   "order"};

std::string lowered(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

// Whether the name starts with `words` as whole words: "cup, mashed" starts with "cup", "cupcake" does not.
bool startsWithWords(std::string_view name, std::string_view words)
{
    if (!name.starts_with(words))
        return false;
    return name.size() == words.size() || !std::isalpha(static_cast<unsigned char>(name[words.size()]));
}

template <std::size_t N> bool startsWithAny(std::string_view name, const std::array<const char *, N> &table)
{
    return std::any_of(table.begin(), table.end(),
                       [name](const char *words) { return startsWithWords(name, words); });
}

} // namespace

int portionRank(std::string_view measureName)
{
    const std::string name = lowered(measureName);
    // "fl oz" before "oz": a fluid ounce is poured, not weighed.
    if (startsWithAny(name, householdWords))
        return HouseholdMeasure + (startsWithWords(name, "cup") ? 0 : 1);
    if (startsWithAny(name, weightWords))
        return Weight;
    // "1 fruit yields": the juice pressed from a fruit is not a portion anyone pours.
    if (startsWithAny(name, otherWords) || name.find(" yields") != std::string::npos)
        return Other;
    // "medium (3\" dia)", "potato medium": the size most people mean when they count one.
    const bool medium = startsWithWords(name, "medium") || name.find(" medium") != std::string::npos;
    return NaturalUnit + (medium ? 0 : 1);
}

} // namespace foodservice
