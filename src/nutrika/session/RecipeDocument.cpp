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

namespace {

/// Byte ranges of the objects directly inside a JSON array that is known to be valid.
QList<std::pair<qsizetype, qsizetype>> topLevelObjects(const QByteArray &array)
{
    QList<std::pair<qsizetype, qsizetype>> spans;
    int depth = 0;
    bool inString = false;
    bool escaped = false;
    qsizetype start = 0;
    for (qsizetype i = 0; i < array.size(); ++i) {
        const char c = array[i];
        if (inString) {
            if (escaped)
                escaped = false;
            else if (c == '\\')
                escaped = true;
            else if (c == '"')
                inString = false;
        } else if (c == '"') {
            inString = true;
        } else if (c == '{' || c == '[') {
            if (depth++ == 1)
                start = i;
        } else if (c == '}' || c == ']') {
            if (--depth == 1)
                spans.append({start, i + 1});
        }
    }
    return spans;
}

} // namespace

QByteArray spliceRecipeDocument(const QByteArray &document, qsizetype index, const QByteArray &meal)
{
    const auto spans = topLevelObjects(document);
    if (index < spans.size()) {
        const auto [begin, end] = spans.at(index);
        return document.left(begin) + meal + document.mid(end);
    }
    const qsizetype close = spans.last().second;
    return document.left(close) + ',' + meal + document.mid(close);
}

} // namespace nutrika
