#include "RecipeStore.h"

#include "Diagnostics.h"
#include "Preferences.h"
#include "RecipeDocument.h"
#include "StoreLock.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

const QString recipesKey = u"recipes"_s;

/// The meal document as the file holds it now, and whether the file holds something at that place that
/// cannot be read: another value type, or a file that is not preferences at all.
struct StoredMeals
{
    QByteArray document;
    bool unreadable = false;
};

StoredMeals storedMeals(const Preferences &settings)
{
    const std::optional<QSettings::SettingsMap> values = settings.valuesOnDisk();
    if (!values)
        return {{}, true};
    const QVariant stored = values->value(recipesKey);
    if (stored.typeId() != QMetaType::QByteArray)
        return {{}, stored.isValid()};
    return {stored.toByteArray(), false};
}

/// Copies the whole settings file beside it under a dated name before a save writes over meals that could
/// not be read: they may be a person's only record of them, to restore by hand. False when no copy could
/// be made.
bool keepUnreadableCopy(const QString &settingsFile)
{
    QFile original(settingsFile);
    if (!original.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = original.readAll();
    const QFileInfo info(settingsFile);
    const QString stamp = QDateTime::currentDateTime().toString(u"yyyy-MM-ddTHH-mm-ss"_s);
    const auto copyPath = [&info](const QString &tag) {
        return info.dir().filePath(u"%1-unreadable-%2.%3"_s.arg(info.completeBaseName(), tag, info.suffix()));
    };
    QString copyName = copyPath(stamp);
    for (int n = 2; QFileInfo::exists(copyName); ++n)
        copyName = copyPath(stamp + u'-' + QString::number(n));
    // Written whole or not at all, so a crash never leaves a copy that looks complete but is not.
    QSaveFile copy(copyName);
    if (!copy.open(QIODevice::WriteOnly) || copy.write(bytes) != bytes.size() || !copy.commit()) {
        qWarning("Saved meals could not be read, and no copy could be kept in %s; nothing was saved",
                 qPrintable(copyName));
        return false;
    }
    qWarning("Saved meals could not be read; the file is kept as %s", qPrintable(copyName));
    return true;
}

/// One locked read-modify-write of the meal document.
qint64 writeMeal(const RecipeItem &recipe, RecipeId id)
{
    Preferences settings;
    const SaveLock lock(settings.fileName());
    const StoredMeals stored = storedMeals(settings);
    const RecipeSave save = saveIntoRecipeDocument(stored.document, recipe, id);
    printDiagnostic("NOW SAVING: ", save.meal);
    if (!save.appended)
        printDiagnostic(u"Should update: "_s + (save.index < 0 ? u"none"_s : QString::number(save.index)));

    const bool overUnreadable = stored.unreadable || (!save.storedReadable && !stored.document.isEmpty());
    // The settings file is replaced through a temporary file and a rename, so a crash leaves the old or
    // the new document, never half of one; sync() puts it on disk before we return.
    if (save.document && (!overUnreadable || keepUnreadableCopy(settings.fileName()))) {
        removeAbandonedLock(settings.fileName());
        settings.setValue(recipesKey, *save.document);
        settings.sync();
    }
    printDiagnostic({}, save.document.value_or(stored.document));
    return save.id;
}

} // namespace

QList<RecipeItem> getRecipes()
{
    return decodeRecipeDocument(storedMeals(Preferences()).document).value_or(QList<RecipeItem>());
}

void saveRecipe(const RecipeItem &recipe)
{
    (void)writeMeal(recipe, RecipeId::Kept);
}

qint64 saveNewRecipe(const RecipeItem &recipe)
{
    return writeMeal(recipe, RecipeId::Next);
}

} // namespace nutrika
