#include "platform/Descriptor.h"
#include "platform/DispatchQueue.h"
#include "platform/WaitingOrder.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSocketNotifier>

#include <cassert>
#include <deque>
#include <mutex>
#include <sys/eventfd.h>
#include <thread>

namespace vidora {

namespace {

/// The blocks stand in a line of our own; the event loop only learns, by a counter in the kernel, that there are some.
/// So they neither depend on an application object nor go with it, and several of them may follow one another.
class MainQueue final : public DispatchQueue
{
public:
    MainQueue()
        : m_waiting(eventfd(0, EFD_SEMAPHORE | EFD_NONBLOCK | EFD_CLOEXEC))
    {
    }

    void async(Block block) override
    {
        {
            const std::lock_guard lock(m_mutex);
            m_blocks.push_back(std::move(block));
        }
        eventfd_write(m_waiting.number(), 1);
    }

    void sync(const Block& block) override
    {
        assertMayWaitFor(this, 0, m_label);
        runElsewhere([this](Block handed) { async(std::move(handed)); }, this, 0, block);
    }

    void barrierAsync(Block block) override { async(std::move(block)); }
    void barrierSync(const Block& block) override { sync(block); }
    void suspend() override { assert(!"the main queue can't be suspended"); }
    void resume() override { assert(!"the main queue can't be suspended"); }
    bool isCurrent() const override { return std::this_thread::get_id() == m_thread; }
    const QString& label() const override { return m_label; }

    void attachToLoop()
    {
        m_notifier = std::make_unique<QSocketNotifier>(m_waiting.number(), QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { runNext(); });
    }

    void detachFromLoop() { m_notifier.reset(); }

private:
    std::function<void(Block)> inlet() override
    {
        return [this](Block block) { async(std::move(block)); };
    }

    // One block a turn, so that a block which runs a loop of its own doesn't hold back those behind it.
    void runNext() noexcept
    {
        eventfd_t counted = 0;
        if (eventfd_read(m_waiting.number(), &counted) != 0)
            return;
        std::unique_lock lock(m_mutex);
        const Block block = std::move(m_blocks.front());
        m_blocks.pop_front();
        lock.unlock();
        block();
    }

    const QString m_label = QStringLiteral("main");
    const std::thread::id m_thread = std::this_thread::get_id();
    // Whatever the main thread does, it does as the main queue.
    const QueueFrame m_frame{this, 0};
    const Descriptor m_waiting;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::mutex m_mutex;
    std::deque<Block> m_blocks;
};

// Never destroyed: other threads may still add blocks while the process ends.
MainQueue& mainQueue()
{
    static MainQueue& only = *new MainQueue;
    return only;
}

void followApplicationObject()
{
    mainQueue().attachToLoop();
    qAddPostRoutine([] { mainQueue().detachFromLoop(); });
}

// Made while the program is loaded, when there is but the main thread.
[[maybe_unused]] const bool follows = [] {
    mainQueue();
    qAddPreRoutine(followApplicationObject);
    return true;
}();

} // namespace

DispatchQueue& DispatchQueue::main()
{
    return mainQueue();
}

void DispatchQueue::runMain(const std::function<bool()>& until)
{
    assert(main().isCurrent() && QCoreApplication::instance());
    QEventLoop loop;
    while (!until())
        loop.processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace vidora
