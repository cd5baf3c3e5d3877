#include "catalog/Nutrients.h"

#include <array>
#include <optional>

namespace foodservice {
namespace {

struct Mapping
{
    const char *source;
    const char *name;
    const char *units;
    double factor;
};

constexpr std::array<Mapping, 7> macronutrients = {{
    {"Energy", "Calories", "calories", 1},
    {"Protein", "Protein", "grams", 1},
    {"Carbs", "Carbohydrates", "grams", 1},
    {"Fat", "Fat", "grams", 1},
    {"Saturated", "Saturated Fat", "grams", 1},
    {"Sugars", "Total Sugars", "grams", 1},
    {"Fiber", "Fibre (AOAC)", "grams", 1},
}};

// Salt is derived from sodium (mg x 2.5 / 1000) and comes first.
constexpr std::array<Mapping, 23> micronutrients = {{
    {"Sodium", "Salt", "grams", 2.5 / 1000},
    {"Sodium", "Sodium", "milligrams", 1},
    {"Potassium", "Potassium", "milligrams", 1},
    {"Calcium", "Calcium", "milligrams", 1},
    {"Iron", "Iron", "milligrams", 1},
    {"Magnesium", "Magnesium", "milligrams", 1},
    {"Phosphorus", "Phosphorus", "milligrams", 1},
    {"Zinc", "Zinc", "milligrams", 1},
    {"Copper", "Copper", "milligrams", 1},
    {"Manganese", "Manganese", "milligrams", 1},
    {"Selenium", "Selenium", "micrograms", 1},
    {"Vitamin A", "Vitamin A", "international units", 1},
    {"Vitamin C", "Vitamin C", "milligrams", 1},
    // The data gives vitamin D in international units: 40 IU are 1 microgram.
    {"Vitamin D", "Vitamin D", "micrograms", 1.0 / 40},
    {"Vitamin E", "Vitamin E", "milligrams", 1},
    {"Vitamin K", "Vitamin K", "micrograms", 1},
    {"B1 (Thiamine)", "Thiamin (B1)", "milligrams", 1},
    {"B2 (Riboflavin)", "Riboflavin (B2)", "milligrams", 1},
    {"B3 (Niacin)", "Niacin (B3)", "milligrams", 1},
    {"B5 (Pantothenic Acid)", "Pantothenic Acid (B5)", "milligrams", 1},
    {"B6 (Pyridoxine)", "Vitamin B6", "milligrams", 1},
    {"Folate", "Folate", "micrograms", 1},
    {"B12 (Cyanocobalamin)", "Vitamin B12", "micrograms", 1},
}};

std::optional<double> amountOf(const SourceFood &food, std::string_view name)
{
    for (const auto &nutrient : food.nutrients) {
        if (nutrient.name == name)
            return nutrient.per100g;
    }
    return std::nullopt;
}

template <std::size_t N>
void append(std::vector<NutrientRow> &rows, const SourceFood &food, const std::array<Mapping, N> &table,
            bool isMacro)
{
    for (const auto &mapping : table) {
        if (const auto amount = amountOf(food, mapping.source))
            rows.push_back({isMacro, mapping.name, mapping.units, *amount * mapping.factor});
    }
}

} // namespace

std::vector<NutrientRow> reportedNutrients(const SourceFood &food)
{
    std::vector<NutrientRow> rows;
    append(rows, food, macronutrients, true);
    append(rows, food, micronutrients, false);
    return rows;
}

} // namespace foodservice
