#pragma once

#include "DiaryEntry.h"

#include <QList>

/// Sample records for design-time previews and as ready-made fixtures. Each is built once, on first
/// use; the lines are shared objects, so a preview that edits one edits the sample.
namespace nutrika::example {

[[nodiscard]] const PortionItem &examplePortionItem();
/// Three pictured and two described portions of a breakfast cereal.
[[nodiscard]] const QList<PortionItem> &examplePortions();
[[nodiscard]] const FoodItem &exampleSelectedFood();
[[nodiscard]] const FoodItem &exampleSelectedFood2();

[[nodiscard]] const NutrientValue &exampleNutrientCarb();
[[nodiscard]] const NutrientValue &exampleNutrientCalories();
[[nodiscard]] const NutrientValue &exampleNutrientProtein();
[[nodiscard]] const NutrientValue &exampleNutrientFat();
[[nodiscard]] const NutrientValue &exampleNutrientSatFat();
[[nodiscard]] const NutrientValue &exampleNutrientTotalSugars();
[[nodiscard]] const NutrientValue &exampleNutrientSalt();
[[nodiscard]] const NutrientValue &exampleNutrientFibre();
[[nodiscard]] const QList<NutrientValue> &exampleNutrientsWithoutCarb();

[[nodiscard]] DiaryEntryPtr exampleTrackedNutrient1();
[[nodiscard]] DiaryEntryPtr exampleTrackedNutrient2();
/// A food with a long name, in a described portion, twelve times.
[[nodiscard]] DiaryEntryPtr exampleLongLine();
[[nodiscard]] const QList<DiaryEntryPtr> &exampleCarbList();
[[nodiscard]] const RecipeItem &exampleRecipe();
[[nodiscard]] const RecipeItem &exampleRecipe2();
[[nodiscard]] DiaryEntryPtr exampleDiaryRecipeItem1();
[[nodiscard]] DiaryEntryPtr exampleDiaryRecipeItem2();

} // namespace nutrika::example
