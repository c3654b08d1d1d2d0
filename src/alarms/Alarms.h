#pragma once

#include <QString>

#include <cstdint>
#include <mutex>

namespace vidora {

/// Whether the calendar agrees with favourites and listings: an empty file in the caches folder, so that a
/// synchronisation that was asked for or was cut off is made up for after a restart. Any thread.
class Alarms
{
public:
    /// `readOnly`: another process owns the file; the flag is then kept in memory.
    explicit Alarms(const QString& cachesFolder, bool readOnly = false);

    bool synchronized() const;
    /// False: the calendar may differ from now on.
    void setSynchronized(bool isSynchronized);

    /// How often the flag was cleared. With `setSynchronizedUnlessChanged`, whoever brings the calendar up to date does
    /// not cover up a change that came while it worked.
    std::uint64_t changes() const;
    void setSynchronizedUnlessChanged(std::uint64_t sinceChanges);

private:
    void write(bool isSynchronized);

    const QString m_path;
    const bool m_readOnly;
    mutable std::mutex m_mutex;
    bool m_synchronized;
    std::uint64_t m_changes = 0;
};

} // namespace vidora
