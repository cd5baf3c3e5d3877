#pragma once

#include "RecipeItem.h"

#include <QList>

namespace nutrika {

/// The saved meals, in stored order, read afresh from the preferences store. Anything unreadable
/// reads as no meals.
[[nodiscard]] QList<RecipeItem> getRecipes();

/// Appends `recipe` when its id equals the number of stored meals, otherwise replaces the stored meal
/// with the same id (or changes nothing), and writes the whole list back. The write is atomic and is
/// on disk when this returns.
void saveRecipe(const RecipeItem &recipe);

} // namespace nutrika
