#include "alarms/Alarms.h"

#include "platform/AtomicFile.h"

#include <QFile>

#include <tuple>

namespace vidora {

Alarms::Alarms(const QString& cachesFolder, bool readOnly)
    : m_path(cachesFolder + QLatin1String("/.alarms.synchronized"))
    , m_readOnly(readOnly)
    , m_synchronized(QFile::exists(m_path))
{
}

bool Alarms::synchronized() const
{
    const std::lock_guard lock(m_mutex);
    return m_synchronized;
}

void Alarms::setSynchronized(bool isSynchronized)
{
    const std::lock_guard lock(m_mutex);
    if (!isSynchronized)
        ++m_changes;
    write(isSynchronized);
}

std::uint64_t Alarms::changes() const
{
    const std::lock_guard lock(m_mutex);
    return m_changes;
}

void Alarms::setSynchronizedUnlessChanged(std::uint64_t sinceChanges)
{
    const std::lock_guard lock(m_mutex);
    if (m_changes == sinceChanges)
        write(true);
}

void Alarms::write(bool isSynchronized)
{
    m_synchronized = isSynchronized;
    if (m_readOnly)
        return;
    // A flag that is missing only costs a synchronisation; one that stays would hide a change.
    if (!isSynchronized)
        QFile::remove(m_path);
    else if (!QFile::exists(m_path))
        std::ignore = AtomicFile::write(m_path, {}, AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Unsynced);
}

} // namespace vidora
