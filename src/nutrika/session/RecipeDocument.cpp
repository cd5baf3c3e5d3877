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

/// Replaces the meal at `index` of a document that decoded to a non-empty list, or appends after the
/// last meal when `index` is the number of meals. The other meals keep their bytes.
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

bool readsBack(const QByteArray &meal)
{
    try {
        (void)RecipeItem::fromJson(QJsonDocument::fromJson(meal).object());
        return true;
    } catch (const std::exception &) {
        return false;
    }
}

} // namespace

RecipeSave saveIntoRecipeDocument(const QByteArray &stored, RecipeItem recipe, RecipeId id)
{
    RecipeSave save;
    const std::optional<QList<RecipeItem>> decoded = decodeRecipeDocument(stored);
    save.storedReadable = decoded.has_value();
    const QList<RecipeItem> list = decoded.value_or(QList<RecipeItem>());
    if (id == RecipeId::Next)
        recipe.id = list.size();
    save.id = recipe.id;
    save.meal = QJsonDocument(recipe.toJson()).toJson(QJsonDocument::Compact);
    save.appended = recipe.id == list.size();
    if (save.appended) {
        save.index = list.size();
    } else {
        const auto found = std::find_if(list.cbegin(), list.cend(),
                                        [&recipe](const RecipeItem &saved) { return saved.id == recipe.id; });
        save.index = found == list.cend() ? -1 : found - list.cbegin();
    }

    // JSON has no NaN or infinity; such a value comes out as null, and the next read would find the
    // whole document unreadable and the next save would write over every meal in it.
    if (!readsBack(save.meal))
        return save;
    // An empty list is written afresh: it may stand for an unreadable document.
    if (list.isEmpty())
        save.document = save.index == 0 ? '[' + save.meal + ']' : QByteArray("[]");
    else
        save.document = save.index < 0 ? stored : spliceRecipeDocument(stored, save.index, save.meal);
    return save;
}

} // namespace nutrika
