#include "RecipeStore.h"

#include "Diagnostics.h"
#include "RecipeDocument.h"

#include <QJsonDocument>
#include <QFile>
#include <QSettings>
#include <sys/file.h>

namespace nutrika {

namespace {

const QString recipesKey = QStringLiteral("recipes");

// The module keeps its own preferences file, whatever the host application calls itself.
struct Preferences : QSettings
{
    Preferences()
        : QSettings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Nutrika"),
                    QStringLiteral("nutrika"))
    {
    }
};

// QSettings creates its lock file empty and writes the owner into it a moment later. A process killed
// in between leaves an empty file that would stall the next save for half a minute; the owner's flock
// died with it, so an empty file we can flock is abandoned.
void removeAbandonedLock(const QString &settingsFile)
{
    QFile lock(settingsFile + QStringLiteral(".lock"));
    if (!lock.open(QIODevice::ReadOnly) || lock.size() != 0)
        return;
    if (::flock(lock.handle(), LOCK_EX | LOCK_NB) == 0)
        lock.remove();
}

} // namespace

QList<RecipeItem> getRecipes()
{
    const QVariant stored = Preferences().value(recipesKey);
    if (stored.typeId() != QMetaType::QByteArray)
        return {};
    return decodeRecipeDocument(stored.toByteArray()).value_or(QList<RecipeItem>());
}

void saveRecipe(const RecipeItem &recipe)
{
    QList<RecipeItem> list = getRecipes();
    printDiagnostic("NOW SAVING: ", QJsonDocument(recipe.toJson()).toJson(QJsonDocument::Compact));

    if (recipe.id == list.size()) {
        list.append(recipe);
    } else {
        const auto found = std::find_if(list.begin(), list.end(),
                                        [&recipe](const RecipeItem &stored) { return stored.id == recipe.id; });
        const bool exists = found != list.end();
        printDiagnostic(QStringLiteral("Should update: ") +
                        (exists ? QString::number(found - list.begin()) : QStringLiteral("none")));
        if (exists)
            *found = recipe;
    }

    const QByteArray document = encodeRecipeDocument(list);
    // QSettings writes through a temporary file and a rename, so a crash leaves the old or the new
    // document, never half of one; sync() puts it on disk before we return.
    Preferences settings;
    removeAbandonedLock(settings.fileName());
    settings.setValue(recipesKey, document);
    settings.sync();
    printDiagnostic({}, document);
}

} // namespace nutrika
