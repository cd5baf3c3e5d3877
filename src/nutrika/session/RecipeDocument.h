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

/// Replaces the meal at `index` of a document that decoded to a non-empty list with the encoded `meal`,
/// or appends it when `index` is the number of meals. The other meals keep their bytes, so a save does
/// not re-encode the whole list.
[[nodiscard]] QByteArray spliceRecipeDocument(const QByteArray &document, qsizetype index,
                                              const QByteArray &meal);

} // namespace nutrika
