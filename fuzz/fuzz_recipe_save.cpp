// Saving a meal into any stored document: the new document reads back as the old list with the meal
// appended or put in place of the stored meal with its id, and every other meal keeps its bytes.
// Input: the meal's numbers from the end, its name from the front, the stored document in between.
#include "DiaryEntry.h"
#include "ExampleData.h"
#include "FuzzerSetup.h"
#include "RecipeDocument.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <limits>
#include <QJsonArray>
#include <QJsonDocument>

using namespace nutrika;

namespace {

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "save property broken: %s\n", what);
    std::abort();
}

bool sameMeals(const QList<RecipeItem> &a, const QList<RecipeItem> &b)
{
    if (a.size() != b.size())
        return false;
    for (qsizetype i = 0; i < a.size(); ++i) {
        if (a.at(i).toJson() != b.at(i).toJson())
            return false;
    }
    return true;
}

/// A meal from fuzz bytes; `unstorable` tells whether it holds a number JSON cannot hold.
struct FuzzedMeal
{
    RecipeItem recipe;
    bool unstorable = false;
};

FuzzedMeal fuzzedMeal(FuzzedDataProvider &input, QByteArray &stored)
{
    const int idKind = input.ConsumeIntegralInRange(0, 2);
    const auto pick = input.ConsumeIntegral<qint64>();
    FuzzedMeal meal;
    meal.recipe.servings = input.ConsumeIntegral<qint64>();
    struct Line
    {
        bool isMeal;
        qint64 pick, quantity, dp;
        double carbs;
    };
    QList<Line> lines(input.ConsumeIntegralInRange(0, 3));
    for (Line &line : lines) {
        line = {input.ConsumeBool(), input.ConsumeIntegral<qint64>(), input.ConsumeIntegral<qint64>(),
                input.ConsumeIntegral<qint64>(), input.ConsumeFloatingPoint<double>()};
        if (input.ConsumeIntegralInRange(0, 15) == 0)
            line.carbs = input.ConsumeBool() ? std::numeric_limits<double>::quiet_NaN()
                                             : std::numeric_limits<double>::infinity();
    }
    meal.recipe.name = QString::fromStdString(input.ConsumeRandomLengthString(64));
    const std::string rest = input.ConsumeRemainingBytesAsString();
    stored = QByteArray(rest.data(), qsizetype(rest.size()));

    const QList<RecipeItem> list = decodeRecipeDocument(stored).value_or(QList<RecipeItem>());
    const auto anyStored = [&list](qint64 n) {
        return list.at(qsizetype(quint64(n) % quint64(list.size())));
    };
    if (idKind == 0 || list.isEmpty())
        meal.recipe.id = idKind == 2 ? pick : list.size();
    else
        meal.recipe.id = idKind == 1 ? anyStored(pick).id : pick;
    for (const Line &line : lines) {
        if (line.isMeal && !list.isEmpty()) {
            meal.recipe.items.append(DiaryEntryPtr::create(123, anyStored(line.pick), line.quantity));
            continue;
        }
        const NutrientValue tracked{QStringLiteral("Carbohydrates"), QStringLiteral("grams"), line.carbs,
                                    line.dp};
        meal.recipe.items.append(DiaryEntryPtr::create(123, example::examplePortionItem(),
                                                       example::exampleSelectedFood(), line.quantity,
                                                       QList<NutrientValue>{tracked}, tracked));
        meal.unstorable = meal.unstorable || !std::isfinite(line.carbs);
    }
    return meal;
}

/// `after` is `before` with one whole stored meal, the `replaced` one, swapped for `meal`.
bool replacedInPlace(const QByteArray &before, const QByteArray &after, const QByteArray &meal,
                     const RecipeItem &replaced)
{
    for (qsizetype p = after.indexOf(meal); p >= 0; p = after.indexOf(meal, p + 1)) {
        const qsizetype q = before.size() - (after.size() - p - meal.size());
        if (q < p || after.left(p) != before.left(p) || after.mid(p + meal.size()) != before.mid(q))
            continue;
        const QJsonArray removed = QJsonDocument::fromJson('[' + before.mid(p, q - p) + ']').array();
        if (removed.size() != 1)
            continue;
        try {
            if (RecipeItem::fromJson(removed.at(0)).toJson() == replaced.toJson())
                return true;
        } catch (const std::exception &) {
        }
    }
    return false;
}

/// `after` is `before` with a separating comma and `meal` inserted, and nothing of `before` lost.
bool insertedWhole(const QByteArray &before, const QByteArray &after, const QByteArray &meal)
{
    for (qsizetype p = after.indexOf(meal); p >= 0; p = after.indexOf(meal, p + 1)) {
        const qsizetype q = before.size() - (after.size() - p - meal.size());
        if (q < 0 || q > p || after.mid(p + meal.size()) != before.mid(q) ||
            !after.startsWith(before.left(q)))
            continue;
        if (after.mid(q, p - q).simplified().replace(' ', "") == ",")
            return true;
    }
    return false;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    addSeedsAndDictionary(argc, argv, NUTRIKA_FUZZ_TARGET);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    QByteArray stored;
    const FuzzedMeal meal = fuzzedMeal(input, stored);
    const RecipeItem &recipe = meal.recipe;
    const QList<RecipeItem> before = decodeRecipeDocument(stored).value_or(QList<RecipeItem>());

    const RecipeSave save = saveIntoRecipeDocument(stored, recipe);
    require(save.document.has_value() == !meal.unstorable, "a storable meal is refused or the reverse");
    if (!save.document)
        return 0;

    QList<RecipeItem> expected = before;
    qsizetype index = -1;
    if (recipe.id == before.size()) {
        expected.append(recipe);
    } else {
        for (qsizetype i = 0; i < before.size() && index < 0; ++i) {
            if (before.at(i).id == recipe.id)
                index = i;
        }
        if (index >= 0)
            expected[index] = recipe;
    }
    const std::optional<QList<RecipeItem>> after = decodeRecipeDocument(*save.document);
    require(after.has_value(), "the saved document does not decode");
    require(sameMeals(*after, expected), "the saved list is not the old one with the meal saved");

    if (before.isEmpty())
        return 0; // written afresh: there are no other meals to keep
    if (recipe.id == before.size())
        require(insertedWhole(stored, *save.document, save.meal), "appending changed the stored bytes");
    else if (index < 0)
        require(*save.document == stored, "a meal with an unknown id changed the stored bytes");
    else
        require(replacedInPlace(stored, *save.document, save.meal, before.at(index)),
                "replacing changed bytes outside the replaced meal");
    return 0;
}
