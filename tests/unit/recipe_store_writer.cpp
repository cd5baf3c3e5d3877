// Saves meals into the preferences store of the folder in $HOME, for the cross-process store tests.
//   recipe_store_writer save <n>           saves meals 0..n-1 and exits
//   recipe_store_writer loop               appends and rewrites meals until it is killed
//   recipe_store_writer edit               the same, saving each meal the way the meal editor does
//   recipe_store_writer own <id> <rounds>  after a line on stdin, saves revisions 1..rounds of meal <id>;
//                                          fails as soon as its previous revision is no longer stored
#include "DiaryEntry.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "RecipeStore.h"

#include <algorithm>
#include <cstdio>
#include <QCoreApplication>
#include <QStandardPaths>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {
QString revisionName(qint64 id, qint64 revision)
{
    return u"Meal %1 rev %2"_s.arg(id).arg(revision);
}

/// Meal `id` in revision `revision`: its name, servings and line count tell a reader which save it came from.
RecipeItem mealRevision(qint64 id, qint64 revision)
{
    RecipeItem recipe{revisionName(id, revision), id, {}, 1 + revision % 4};
    for (qint64 i = 0; i <= revision % 7; ++i)
        recipe.items.append(example::exampleTrackedNutrient1());
    return recipe;
}

/// The same revision, saved as the meal editor saves: the meal is opened from the list (or is a new one
/// with id -1), its lines go through the session's working list where ingredients are added, dropped
/// and changed, and "Save Meal" gives a new meal the next id.
void saveAsEditor(qint64 id, qint64 revision)
{
    EnvironmentVariables &session = *EnvironmentVariables::shared();
    const QList<RecipeItem> stored = getRecipes();
    RecipeItem recipe = id < stored.size() ? stored.at(id) : RecipeItem{u"New Meal"_s, -1, {}, 1};
    session.setCurrentRecipeItems(recipe.items);

    QList<DiaryEntryPtr> lines = session.CurrentRecipeItems();
    const qsizetype count = 1 + revision % 7;
    lines.resize(std::min(lines.size(), count));
    while (lines.size() < count) {
        if (lines.size() == 2)
            lines.append(DiaryEntryPtr::create(123, example::exampleRecipe(), 1));
        else
            lines.append(DiaryEntryPtr::create(
                123, example::examplePortionItem(), example::exampleSelectedFood(), 1,
                example::exampleNutrientsWithoutCarb(), example::exampleNutrientCarb()));
    }
    for (const DiaryEntryPtr &line : lines)
        line->setQuantity(1 + revision % 5);
    session.setCurrentRecipeItems(lines);

    recipe.items = session.CurrentRecipeItems();
    recipe.name = revisionName(id, revision);
    recipe.servings = 1 + revision % 4;
    if (recipe.id == -1)
        recipe.id = getRecipes().size();
    saveRecipe(recipe);
    session.setCurrentRecipeItems({});
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    std::freopen("/dev/null", "w", stdout); // the store's diagnostics are not wanted here
    const QStringList args = app.arguments();
    if (args.size() == 3 && args.at(1) == u"save") {
        for (qint64 id = 0; id < args.at(2).toLongLong(); ++id)
            saveRecipe(mealRevision(id, 0));
        return 0;
    }
    if (args.size() == 2 && (args.at(1) == u"loop" || args.at(1) == u"edit")) {
        const bool asEditor = args.at(1) == u"edit";
        for (qint64 round = 0;; ++round) {
            const QList<RecipeItem> stored = getRecipes();
            // Grow to 40 meals, then keep rewriting them so every save replaces a whole document.
            const qint64 id = stored.size() < 40 ? stored.size() : round % 40;
            if (asEditor)
                saveAsEditor(id, round);
            else
                saveRecipe(mealRevision(id, round));
            std::fprintf(stderr, "saved\n");
        }
    }
    if (args.size() == 4 && args.at(1) == u"own") {
        const qint64 id = args.at(2).toLongLong();
        (void)std::getchar(); // start together with the other writer
        for (qint64 revision = 1; revision <= args.at(3).toLongLong(); ++revision) {
            if (revision > 1 && getRecipes().value(id).name != revisionName(id, revision - 1)) {
                std::fprintf(stderr, "revision %lld of meal %lld was lost\n", revision - 1, id);
                return 1;
            }
            saveRecipe(mealRevision(id, revision));
        }
        return 0;
    }
    std::fprintf(stderr, "usage: recipe_store_writer save <n> | loop | edit | own <id> <rounds>\n");
    return 2;
}
