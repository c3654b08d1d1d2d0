#include "platform/WorkerPool.h"

#include "platform/ThreadStarter.h"

#include <algorithm>
#include <pthread.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace vidora {

namespace {

using namespace std::chrono_literals;

constexpr auto idleTime = 10s;

thread_local WorkerPool* poolOfThread = nullptr;

std::size_t workingThreads()
{
    static const std::size_t count = std::max(4U, std::thread::hardware_concurrency());
    return count;
}

// Linux keeps the niceness of each thread by itself. Failure costs nothing but the order of precedence.
void addNiceness(int niceness)
{
    if (niceness == 0)
        return;
    const auto thread = static_cast<id_t>(gettid());
    setpriority(PRIO_PROCESS, thread, getpriority(PRIO_PROCESS, thread) + niceness);
}

} // namespace

WorkerPool& WorkerPool::ofQuality(QualityOfService quality)
{
    static WorkerPool& background = *new WorkerPool("background", 10);
    static WorkerPool& utility = *new WorkerPool("utility", 5);
    static WorkerPool& standard = *new WorkerPool("default", 0);
    static WorkerPool& initiated = *new WorkerPool("user-initiated", 0);
    static WorkerPool& interactive = *new WorkerPool("interactive", 0);
    switch (quality) {
    case QualityOfService::Background:
        return background;
    case QualityOfService::Utility:
        return utility;
    case QualityOfService::Default:
        break;
    case QualityOfService::UserInitiated:
        return initiated;
    case QualityOfService::UserInteractive:
        return interactive;
    }
    return standard;
}

WorkerPool::WorkerPool(const char* name, int niceness)
    : m_name(name)
    , m_niceness(niceness)
{
}

void WorkerPool::submit(Job job)
{
    const std::lock_guard lock(m_mutex);
    m_jobs.push_back(std::move(job));
    provideThread();
}

// A thread that was woken counts as idle until it has taken its job; hence the comparison with all waiting jobs.
void WorkerPool::provideThread()
{
    if (m_idle >= m_jobs.size())
        m_submitted.notify_one();
    else if (m_threads - m_blocked < workingThreads())
        addThread();
}

void WorkerPool::addThread()
{
    ++m_threads;
    startThread([this] { work(); });
}

void WorkerPool::work()
{
    poolOfThread = this;
    pthread_setname_np(pthread_self(), m_name);
    addNiceness(m_niceness);

    std::unique_lock lock(m_mutex);
    while (m_threads - m_blocked <= workingThreads()) {
        ++m_idle;
        const bool found = m_submitted.wait_for(lock, idleTime, [this] { return !m_jobs.empty(); });
        --m_idle;
        if (!found)
            break;
        Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job();
        job = nullptr;
        lock.lock();
    }
    --m_threads;
}

void WorkerPool::beginBlocking()
{
    const std::lock_guard lock(m_mutex);
    ++m_blocked;
    if (!m_jobs.empty())
        provideThread();
}

void WorkerPool::endBlocking()
{
    const std::lock_guard lock(m_mutex);
    --m_blocked;
}

BlockingScope::BlockingScope()
    : m_pool(std::exchange(poolOfThread, nullptr))
{
    if (m_pool)
        m_pool->beginBlocking();
}

BlockingScope::~BlockingScope()
{
    if (m_pool)
        m_pool->endBlocking();
    poolOfThread = m_pool;
}

} // namespace vidora
