// Saves meals into the preferences store of the folder in $HOME, for the cross-process store tests.
//   recipe_store_writer loop               appends and rewrites meals until it is killed
//   recipe_store_writer own <id> <rounds>  after a line on stdin, saves revisions 1..rounds of meal <id>;
//                                          fails as soon as its previous revision is no longer stored
//   recipe_store_writer new <tag> <count>  after a line on stdin, saves <count> new meals named "<tag> <n>",
//                                          as the meal editor does
#include "CreateRecipeUIView.h"
#include "DiaryEntry.h"
#include "ExampleData.h"
#include "RecipeStore.h"

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
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    std::freopen("/dev/null", "w", stdout); // the store's diagnostics are not wanted here
    const QStringList args = app.arguments();
    if (args.size() == 2 && args.at(1) == u"loop") {
        for (qint64 round = 0;; ++round) {
            // Grow to 40 meals, then keep rewriting them so every save replaces a whole document.
            const qsizetype stored = getRecipes().size();
            if (stored < 40)
                (void)saveNewRecipe(mealRevision(stored, round));
            else
                saveRecipe(mealRevision(round % 40, round));
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
    if (args.size() == 4 && args.at(1) == u"new") {
        (void)std::getchar();
        for (qint64 n = 0; n < args.at(3).toLongLong(); ++n) {
            const QString name = u"%1 %2"_s.arg(args.at(2)).arg(n);
            CreateRecipeUIView editor;
            editor.openNewMeal(CreateRecipeUIView::New, CreateRecipeUIView::Select, u"1"_s);
            editor.setRecipeName(name);
            editor.saveMeal();
            // Only appends happen meanwhile, so the meal stays where the editor was told it went.
            const qint64 id = editor.diaryEntry()->recipeItem()->id;
            if (getRecipes().value(id).name != name) {
                std::fprintf(stderr, "%s was saved as meal %lld but is not stored there\n", qPrintable(name),
                             qlonglong(id));
                return 1;
            }
        }
        return 0;
    }
    std::fprintf(stderr, "usage: recipe_store_writer loop | own <id> <rounds> | new <tag> <count>\n");
    return 2;
}
