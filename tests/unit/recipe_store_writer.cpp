// Saves meals into the preferences store of the folder in $HOME, for the cross-process store tests.
//   recipe_store_writer save <n>   saves meals 0..n-1 and exits
//   recipe_store_writer loop       appends and rewrites meals until it is killed
#include "DiaryEntry.h"
#include "ExampleData.h"
#include "RecipeStore.h"

#include <cstdio>
#include <QCoreApplication>
#include <QStandardPaths>

using namespace nutrika;

namespace {
/// Meal `id` in revision `revision`: its name and line count tell a reader which save it came from.
RecipeItem mealRevision(qint64 id, qint64 revision)
{
    RecipeItem recipe{QStringLiteral("Meal %1 rev %2").arg(id).arg(revision), id, {}, 1 + revision % 4};
    for (qint64 i = 0; i <= revision % 7; ++i)
        recipe.items.append(example::exampleTrackedNutrient1());
    return recipe;
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
    if (args.size() == 2 && args.at(1) == u"loop") {
        for (qint64 round = 0;; ++round) {
            const QList<RecipeItem> stored = getRecipes();
            // Grow to 40 meals, then keep rewriting them so every save replaces a whole document.
            const qint64 id = stored.size() < 40 ? stored.size() : round % 40;
            saveRecipe(mealRevision(id, round));
            std::fprintf(stderr, "saved\n");
        }
    }
    std::fprintf(stderr, "usage: recipe_store_writer save <n> | loop\n");
    return 2;
}
