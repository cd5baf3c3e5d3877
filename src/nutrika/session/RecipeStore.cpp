#include "RecipeStore.h"

#include "Diagnostics.h"
#include "Preferences.h"
#include "RecipeDocument.h"

#include <cerrno>
#include <fcntl.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

const QString recipesKey = u"recipes"_s;

QByteArray storedDocument(const Preferences &settings)
{
    const QVariant stored = settings.valueOnDisk(recipesKey);
    return stored.typeId() == QMetaType::QByteArray ? stored.toByteArray() : QByteArray();
}

/// Lets one save at a time, across processes, read, change and write the document; otherwise two
/// processes saving at once would each write back a list without the other's meal. The file is never
/// removed, so every saver locks the same one, and the kernel releases the lock of a killed holder.
class SaveLock
{
public:
    explicit SaveLock(const QString &settingsFile)
    {
        QDir().mkpath(QFileInfo(settingsFile).absolutePath());
        m_fd = ::open(QFile::encodeName(settingsFile + u".save-lock"_s).constData(),
                      O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        while (m_fd >= 0 && ::flock(m_fd, LOCK_EX) != 0 && errno == EINTR) {
        }
    }
    ~SaveLock()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Q_DISABLE_COPY_MOVE(SaveLock)

private:
    int m_fd = -1;
};

// QSettings creates its lock file empty and writes the owner into it a moment later. A process killed in
// between leaves an empty file that would stall the next save for half a minute. Every writer of the
// file holds the save lock, so while we hold it no one is in that moment, and an empty lock file whose
// flock we can take is abandoned.
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
    return decodeRecipeDocument(storedDocument(Preferences())).value_or(QList<RecipeItem>());
}

void saveRecipe(const RecipeItem &recipe)
{
    Preferences settings;
    const SaveLock lock(settings.fileName());
    const QByteArray stored = storedDocument(settings);
    const RecipeSave save = saveIntoRecipeDocument(stored, recipe);
    printDiagnostic("NOW SAVING: ", save.meal);
    if (!save.appended)
        printDiagnostic(u"Should update: "_s + (save.index < 0 ? u"none"_s : QString::number(save.index)));

    // The settings file is replaced through a temporary file and a rename, so a crash leaves the old or
    // the new document, never half of one; sync() puts it on disk before we return.
    if (save.document) {
        removeAbandonedLock(settings.fileName());
        settings.setValue(recipesKey, *save.document);
        settings.sync();
    }
    printDiagnostic({}, save.document.value_or(stored));
}

} // namespace nutrika
