#pragma once

#include "RecipeItem.h"

#include <QByteArray>
#include <QList>
#include <optional>

namespace nutrika {

/// Decodes the stored meal document: a JSON array of meals, or null for none. Any other bytes,
/// however malformed, give nullopt; nothing is thrown.
[[nodiscard]] std::optional<QList<RecipeItem>> decodeRecipeDocument(const QByteArray &bytes);

/// Encodes meals as one compact JSON array, in list order.
[[nodiscard]] QByteArray encodeRecipeDocument(const QList<RecipeItem> &recipes);

} // namespace nutrika
