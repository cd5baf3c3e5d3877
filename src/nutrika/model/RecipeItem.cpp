#include "RecipeItem.h"

#include "DiaryEntry.h"
#include "JsonFields.h"
#include "Totals.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

double RecipeItem::getTotalTracked() const
{
    // A meal stored with no servings is read as a single serving rather than dividing by zero.
    const double perMeal = servings == 0 ? 1.0 : double(servings);
    double sum = 0;
    for (const DiaryEntryPtr &line : items)
        sum += line->totalTrackedNutrient() / perMeal;
    return round1(sum);
}

QJsonObject RecipeItem::toJson() const
{
    QJsonArray lines;
    for (const DiaryEntryPtr &line : items)
        lines.append(line->toJson());
    return {{u"name"_s, name}, {u"id"_s, id}, {u"items"_s, lines}, {u"servings"_s, servings}};
}

RecipeItem RecipeItem::fromJson(const QJsonValue &value)
{
    const QJsonObject o = json::asObject(value, u"RecipeItem");
    RecipeItem recipe;
    recipe.name = json::string(o, u"name");
    recipe.id = json::integer(o, u"id");
    const QJsonArray lines = json::array(o, u"items");
    recipe.items.reserve(lines.size());
    for (const QJsonValue &line : lines)
        recipe.items.append(DiaryEntry::fromJson(line));
    recipe.servings = json::integer(o, u"servings");
    return recipe;
}

} // namespace nutrika
