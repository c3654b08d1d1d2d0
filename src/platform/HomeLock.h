#pragma once

#include "platform/Descriptor.h"

#include <QString>

#include <optional>

namespace vidora {

/// Keeps two processes from writing to one home: whoever holds the lock may write. The system lets go of it when the
/// process ends, however it ends. Two locks exclude each other also within one process.
class HomeLock
{
public:
    enum class Outcome
    {
        First,       ///< This one holds the lock.
        Second,      ///< Another process does.
        Unavailable, ///< The folder can't be made, isn't writable, or its file system has no locks.
    };

    /// Tries once, without waiting. Makes the folder where it doesn't exist.
    explicit HomeLock(const QString& folder);

    Outcome outcome() const { return m_outcome; }
    /// Waits until the other process lets go. Does nothing unless the outcome is Second; never on the main thread.
    void waitForTurn();
    /// The process that holds the lock of the folder, as it wrote itself down; nothing when that can't be read.
    std::optional<qint64> holder() const;

private:
    void take(int operation);

    Descriptor m_file;
    Outcome m_outcome = Outcome::Unavailable;
};

} // namespace vidora
