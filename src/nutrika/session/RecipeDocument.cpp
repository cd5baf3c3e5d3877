#include "RecipeDocument.h"

#include "DiaryEntry.h"
#include "JsonFields.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace nutrika {

std::optional<QList<RecipeItem>> decodeRecipeDocument(const QByteArray &bytes)
{
    // A bare `null` is a valid document that QJsonDocument refuses to parse on its own.
    if (QByteArrayView(bytes).trimmed() == "null")
        return QList<RecipeItem>();
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return std::nullopt;
    const QJsonArray array = document.array();
    QList<RecipeItem> recipes;
    recipes.reserve(array.size());
    try {
        for (const QJsonValue &value : array)
            recipes.append(RecipeItem::fromJson(value));
    } catch (const std::exception &) {
        return std::nullopt;
    }
    return recipes;
}

QByteArray encodeRecipeDocument(const QList<RecipeItem> &recipes)
{
    QJsonArray array;
    for (const RecipeItem &recipe : recipes)
        array.append(recipe.toJson());
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

} // namespace nutrika
