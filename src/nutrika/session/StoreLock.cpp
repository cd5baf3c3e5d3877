#include "StoreLock.h"

#include <cerrno>
#include <fcntl.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

SaveLock::SaveLock(const QString &settingsFile)
{
    QDir().mkpath(QFileInfo(settingsFile).absolutePath());
    m_fd = ::open(QFile::encodeName(settingsFile + u".save-lock"_s).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                  0600);
    while (m_fd >= 0 && ::flock(m_fd, LOCK_EX) != 0 && errno == EINTR) {
    }
}

SaveLock::~SaveLock()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

void removeAbandonedLock(const QString &settingsFile)
{
    QFile lock(settingsFile + u".lock"_s);
    if (!lock.open(QIODevice::ReadOnly) || lock.size() != 0)
        return;
    if (::flock(lock.handle(), LOCK_EX | LOCK_NB) == 0)
        lock.remove();
}

} // namespace nutrika
