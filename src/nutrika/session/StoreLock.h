#pragma once

#include <QString>

namespace nutrika {

/// Lets one save at a time, across processes, read, change and write the preferences; otherwise two
/// processes saving at once would each write back a document without the other's change. The file is
/// never removed, so every saver locks the same one, and the kernel releases the lock of a killed holder.
class SaveLock
{
public:
    explicit SaveLock(const QString &settingsFile);
    ~SaveLock();
    Q_DISABLE_COPY_MOVE(SaveLock)

private:
    int m_fd = -1;
};

/// QSettings creates its lock file empty and writes the owner into it a moment later. A process killed in
/// between leaves an empty file that would stall the next save for half a minute. Every writer of the
/// file holds the save lock, so while we hold it no one is in that moment, and an empty lock file whose
/// flock we can take is abandoned.
void removeAbandonedLock(const QString &settingsFile);

} // namespace nutrika
