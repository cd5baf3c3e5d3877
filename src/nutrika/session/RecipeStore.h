#pragma once

#include "RecipeItem.h"

#include <QList>

namespace nutrika {

/// The saved meals, in stored order, read afresh from the preferences store. Anything unreadable
/// reads as no meals.
[[nodiscard]] QList<RecipeItem> getRecipes();

/// Appends `recipe` when its id equals the number of stored meals, otherwise replaces the stored meal
/// with the same id (or changes nothing), and writes the whole list back. The write is atomic and is
/// on disk when this returns. Before it writes over a store that could not be read, the old file is copied
/// beside it under a dated name; when no copy can be made, nothing is written.
void saveRecipe(const RecipeItem &recipe);

/// Saves a meal that was never saved, as the next meal of the list. Its id is the number of stored meals,
/// taken inside the same locked read-modify-write as the save, so meals saved by two processes at once
/// never take one id. Returns the id the meal was saved under.
qint64 saveNewRecipe(const RecipeItem &recipe);

} // namespace nutrika
