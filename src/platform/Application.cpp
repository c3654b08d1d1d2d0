#include "platform/Application.h"

#include "platform/Log.h"

#include <vector>

namespace vidora {

Application::Application(Milliseconds gracePeriod)
    : m_gracePeriod(gracePeriod)
{
}

Application::BackgroundTaskIdentifier Application::beginBackgroundTask(const QString& name,
                                                                       DispatchQueue::Block expirationHandler)
{
    const std::lock_guard lock(m_mutex);
    m_tasks.emplace(++m_lastIdentifier, Task{name, std::move(expirationHandler)});
    return m_lastIdentifier;
}

void Application::endBackgroundTask(BackgroundTaskIdentifier identifier)
{
    // Its handler may hold things whose end calls back here, so it goes after the lock.
    std::map<BackgroundTaskIdentifier, Task>::node_type ended;
    {
        const std::lock_guard lock(m_mutex);
        ended = m_tasks.extract(identifier);
    }
    // Turns the loop in which the end of the process may be waiting for this.
    if (!ended.empty())
        DispatchQueue::main().async([] {});
}

bool Application::finishBackgroundTasks()
{
    if (!hasTasks())
        return true;
    const auto graceIsOver = std::make_shared<bool>(false);
    DispatchQueue::main().after(m_gracePeriod, [graceIsOver] { *graceIsOver = true; });
    DispatchQueue::runMain([&] { return *graceIsOver || !hasTasks(); });
    if (!hasTasks())
        return true;
    expireTasks();
    return false;
}

bool Application::hasTasks() const
{
    const std::lock_guard lock(m_mutex);
    return !m_tasks.empty();
}

void Application::expireTasks()
{
    std::vector<DispatchQueue::Block> handlers;
    {
        const std::lock_guard lock(m_mutex);
        for (auto& [identifier, task] : m_tasks) {
            Log::line(QStringLiteral("background task ran out of time: ") + task.name);
            if (task.expirationHandler)
                handlers.push_back(std::exchange(task.expirationHandler, {}));
        }
    }
    for (const auto& handler : handlers)
        handler();
    bool isBehindThem = false;
    DispatchQueue::main().async([&] { isBehindThem = true; });
    DispatchQueue::runMain([&] { return isBehindThem; });
}

} // namespace vidora
