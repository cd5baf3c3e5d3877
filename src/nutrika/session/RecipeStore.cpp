#include "RecipeStore.h"

#include "Diagnostics.h"
#include "Preferences.h"
#include "RecipeDocument.h"

#include <QFile>
#include <QJsonDocument>
#include <sys/file.h>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

const QString recipesKey = u"recipes"_s;

struct StoredRecipes
{
    QByteArray document;
    QList<RecipeItem> recipes;
};

StoredRecipes readStore()
{
    const QVariant stored = Preferences().value(recipesKey);
    if (stored.typeId() != QMetaType::QByteArray)
        return {};
    QByteArray document = stored.toByteArray();
    std::optional<QList<RecipeItem>> recipes = decodeRecipeDocument(document);
    if (!recipes)
        return {};
    return {std::move(document), std::move(*recipes)};
}

// The settings lock file is created empty and the owner is written into it a moment later. A process
// killed in between leaves an empty file that would stall the next save for half a minute; the owner's
// flock died with it, so an empty file we can flock is abandoned.
void removeAbandonedLock(const QString &settingsFile)
{
    QFile lock(settingsFile + u".lock"_s);
    if (!lock.open(QIODevice::ReadOnly) || lock.size() != 0)
        return;
    if (::flock(lock.handle(), LOCK_EX | LOCK_NB) == 0)
        lock.remove();
}

} // namespace

QList<RecipeItem> getRecipes()
{
    return readStore().recipes;
}

void saveRecipe(const RecipeItem &recipe)
{
    StoredRecipes stored = readStore();
    QList<RecipeItem> &list = stored.recipes;
    const QByteArray meal = QJsonDocument(recipe.toJson()).toJson(QJsonDocument::Compact);
    printDiagnostic("NOW SAVING: ", meal);

    qsizetype index = list.size();
    if (recipe.id != list.size()) {
        const auto found = std::find_if(list.cbegin(), list.cend(),
                                        [&recipe](const RecipeItem &saved) { return saved.id == recipe.id; });
        index = found == list.cend() ? -1 : found - list.cbegin();
        printDiagnostic(u"Should update: "_s + (index < 0 ? u"none"_s : QString::number(index)));
    }

    // An empty list is written afresh: it may stand for an unreadable document.
    QByteArray document;
    if (list.isEmpty())
        document = encodeRecipeDocument(index == 0 ? QList<RecipeItem>{recipe} : QList<RecipeItem>());
    else
        document = index < 0 ? stored.document : spliceRecipeDocument(stored.document, index, meal);

    // The settings file is replaced through a temporary file and a rename, so a crash leaves the old or
    // the new document, never half of one; sync() puts it on disk before we return.
    Preferences settings;
    removeAbandonedLock(settings.fileName());
    settings.setValue(recipesKey, document);
    settings.sync();
    printDiagnostic({}, document);
}

} // namespace nutrika
