#include "platform/ThreadStarter.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace vidora {

namespace {

class ThreadStarter
{
public:
    // The first to want a thread can't be one that was started here, so its niceness is that of the process.
    ThreadStarter()
    {
        std::thread([this] { run(); }).detach();
    }

    void add(std::function<void()> work)
    {
        const std::lock_guard lock(m_mutex);
        m_wanted.push_back(std::move(work));
        m_changed.notify_one();
    }

private:
    [[noreturn]] void run()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return !m_wanted.empty(); });
            std::vector<std::function<void()>> wanted = std::exchange(m_wanted, {});
            lock.unlock();
            for (auto& work : wanted)
                std::thread(std::move(work)).detach();
            lock.lock();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::function<void()>> m_wanted;
};

} // namespace

void startThread(std::function<void()> work)
{
    static ThreadStarter& only = *new ThreadStarter; // Never destroyed: its thread ends with the process.
    only.add(std::move(work));
}

} // namespace vidora
