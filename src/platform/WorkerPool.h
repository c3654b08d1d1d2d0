#pragma once

#include "platform/DispatchQueue.h"

#include <condition_variable>
#include <deque>
#include <mutex>

namespace vidora {

/// The threads that run the blocks of all queues of one class of service. As many work at once as the machine has
/// cores, and never fewer than four; a thread that waits does not count, so that those it waits for always find one.
/// A thread that has had nothing to do for a while leaves.
///
/// A pool is never destroyed: its threads end with the process.
class WorkerPool
{
public:
    using Job = std::function<void()>;

    static WorkerPool& ofQuality(QualityOfService quality);

    /// Runs the job on one of the threads, jobs starting in the order given.
    void submit(Job job);

private:
    friend class BlockingScope;

    WorkerPool(const char* name, int niceness);
    void provideThread();
    void addThread();
    void work();
    void beginBlocking();
    void endBlocking();

    const char* const m_name;
    const int m_niceness;
    std::mutex m_mutex;
    std::condition_variable m_submitted;
    std::deque<Job> m_jobs;
    std::size_t m_threads = 0;
    std::size_t m_idle = 0;
    std::size_t m_blocked = 0;
};

/// Stands around anything that blocks a thread for long: waiting for a queue, a group, a network answer, a sleep.
/// While it lives, the pool of that thread may work with one thread more. On other threads it does nothing.
class BlockingScope
{
public:
    BlockingScope();
    ~BlockingScope();
    BlockingScope(const BlockingScope&) = delete;
    BlockingScope& operator=(const BlockingScope&) = delete;

private:
    WorkerPool* m_pool;
};

} // namespace vidora
