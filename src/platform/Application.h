#pragma once

#include "platform/DispatchQueue.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>

namespace vidora {

/// What the operating system knows of the running program: whether it is in front of the user, and which work must not
/// be cut off by its end. One for each device; whoever needs it is handed it.
class Application
{
public:
    enum class State
    {
        Active = 0,
        Inactive = 1,
        Background = 2
    };
    using BackgroundTaskIdentifier = std::uint64_t;
    static constexpr BackgroundTaskIdentifier backgroundTaskInvalid = 0;

    /// The grace period is how long `finishBackgroundTasks` waits at most.
    explicit Application(Milliseconds gracePeriod = Seconds{30});

    /// On any thread.
    State applicationState() const { return m_state; }
    void setApplicationState(State state) { m_state = state; }

    /// Announces work that should be finished before the process ends. The handler is called on the main thread, once,
    /// when time runs out before the task is ended; it may be empty. On any thread.
    BackgroundTaskIdentifier beginBackgroundTask(const QString& name, DispatchQueue::Block expirationHandler);
    /// Ends a task; an identifier that is invalid or ended does nothing. On any thread.
    void endBackgroundTask(BackgroundTaskIdentifier identifier);

    /// Keeps the process until all tasks have ended or the grace period is over, running the event loop meanwhile. In
    /// the second case the expiration handlers run, the oldest task's first, and what they put on the main queue; the
    /// result is then false. On the main thread, when the program is about to quit.
    bool finishBackgroundTasks();

private:
    struct Task
    {
        QString name;
        DispatchQueue::Block expirationHandler;
    };

    bool hasTasks() const;
    void expireTasks();

    const Milliseconds m_gracePeriod;
    std::atomic<State> m_state = State::Inactive;
    mutable std::mutex m_mutex;
    std::map<BackgroundTaskIdentifier, Task> m_tasks;
    BackgroundTaskIdentifier m_lastIdentifier = backgroundTaskInvalid;
};

} // namespace vidora
