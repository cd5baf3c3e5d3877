#pragma once

#include "RecipeItem.h"

#include <optional>
#include <QByteArray>
#include <QList>

namespace nutrika {

/// Decodes the stored meal document: a JSON array of meals, or null for none. Any other bytes,
/// however malformed, give nullopt; nothing is thrown.
[[nodiscard]] std::optional<QList<RecipeItem>> decodeRecipeDocument(const QByteArray &bytes);

/// Encodes meals as one compact JSON array, in list order.
[[nodiscard]] QByteArray encodeRecipeDocument(const QList<RecipeItem> &recipes);

/// What saving one meal makes of the stored document.
struct RecipeSave
{
    /// The id the meal is saved under.
    qint64 id = -1;
    /// Whether the stored document decoded; when it did not, the save writes over bytes nobody could read.
    bool storedReadable = false;
    /// The meal as it is written into the document.
    QByteArray meal;
    /// Whether the meal's id is the number of stored meals, so that it is appended without a search.
    bool appended = false;
    /// Where the meal goes in the list; -1 when no stored meal has its id.
    qsizetype index = -1;
    /// The bytes to store; nullopt when the meal would not read back (a number that JSON cannot hold),
    /// so that the stored meals are kept rather than written over by a document nobody can read.
    std::optional<QByteArray> document;
};

/// Which id a saved meal carries.
enum class RecipeId
{
    /// The meal's own: a new meal's id was given before the save.
    Kept,
    /// The number of stored meals, taken from the same read as the save, so a new meal is appended.
    Next,
};

/// Saves `recipe` into the `stored` document: appended when its id equals the number of stored meals,
/// otherwise in place of the stored meal with its id. A document that does not decode counts as no meals.
[[nodiscard]] RecipeSave saveIntoRecipeDocument(const QByteArray &stored, RecipeItem recipe,
                                                RecipeId id = RecipeId::Kept);

} // namespace nutrika
