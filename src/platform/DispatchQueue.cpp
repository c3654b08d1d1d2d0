#include "platform/DispatchQueue.h"

#include "platform/Timer.h"
#include "platform/WaitingOrder.h"
#include "platform/WorkerPool.h"

#include <cassert>
#include <condition_variable>
#include <deque>
#include <mutex>

namespace vidora {

namespace {

enum class Kind
{
    Serial,
    Concurrent,
    Global
};

/// A thread that waits in `sync` for the turn of its block.
struct Turn
{
    std::condition_variable changed;
    bool hasCome = false;
};

struct Entry
{
    DispatchQueue::Block block;
    Turn* turn; // Instead of a block, when the caller runs it.
    bool barrier;
};

/// The blocks of one queue in their order, and how many of them run. The blocks that have been handed to the pool keep
/// it alive, so that it outlives a queue that is destroyed by one of its own blocks.
class Line : public std::enable_shared_from_this<Line>
{
public:
    Line(QString label, QualityOfService quality, Kind kind, int waitingRank)
        : m_label(std::move(label))
        , m_rank(waitingRank)
        , m_kind(kind)
        , m_staysBelow(quality < QualityOfService::Default)
        , m_pool(WorkerPool::ofQuality(quality))
    {
    }

    const QString& label() const { return m_label; }
    bool isCurrent() const { return QueueFrame::contains(this); }

    void add(DispatchQueue::Block block, bool barrier)
    {
        const std::lock_guard lock(m_mutex);
        m_entries.push_back({std::move(block), nullptr, isBarrier(barrier)});
        startNext();
    }

    void addAndWait(const DispatchQueue::Block& block, bool barrier)
    {
        // A global queue holds nothing back, so that its blocks may wait for one another.
        if (m_kind != Kind::Global)
            assertMayWaitFor(this, m_rank, m_label);
        if (m_staysBelow)
            runElsewhere([&](DispatchQueue::Block handed) { add(std::move(handed), barrier); }, this, m_rank, block);
        else
            runHere(block, isBarrier(barrier));
    }

    void suspend()
    {
        assert(m_kind != Kind::Global);
        const std::lock_guard lock(m_mutex);
        ++m_suspensions;
    }

    void resume()
    {
        const std::lock_guard lock(m_mutex);
        assert(m_suspensions > 0);
        --m_suspensions;
        startNext();
    }

    void finish()
    {
        std::unique_lock lock(m_mutex);
        m_suspensions = 0;
        startNext();
        if (isCurrent())
            return;
        const BlockingScope blocking;
        m_finished.wait(lock, [this] { return m_entries.empty() && m_running == 0; });
    }

private:
    /// Takes the end of a block, however it ends, for the start of the next.
    class Running
    {
    public:
        explicit Running(Line& line)
            : m_line(line)
            , m_frame(&line, line.m_rank)
        {
        }
        ~Running() { m_line.end(); }

    private:
        Line& m_line;
        QueueFrame m_frame;
    };

    bool isBarrier(bool wanted) const { return m_kind == Kind::Serial || (m_kind == Kind::Concurrent && wanted); }

    void runHere(const DispatchQueue::Block& block, bool barrier)
    {
        const auto self = shared_from_this();
        {
            std::unique_lock lock(m_mutex);
            Turn turn;
            m_entries.push_back({{}, &turn, barrier});
            startNext();
            if (!turn.hasCome) {
                const BlockingScope blocking;
                turn.changed.wait(lock, [&] { return turn.hasCome; });
            }
        }
        const Running running(*this);
        block();
    }

    // With m_mutex held.
    void startNext()
    {
        while (!m_entries.empty() && m_suspensions == 0 && !m_barrierRuns) {
            Entry& first = m_entries.front();
            if (first.barrier && m_running > 0)
                return;
            m_barrierRuns = first.barrier;
            ++m_running;
            start(std::move(first));
            m_entries.pop_front();
        }
    }

    void start(Entry entry)
    {
        if (entry.turn) {
            entry.turn->hasCome = true;
            entry.turn->changed.notify_one();
            return;
        }
        m_pool.submit([self = shared_from_this(), block = std::move(entry.block)]() mutable {
            const Running running(*self);
            block();
            // What the block holds goes while the queue still is the current one: it may be the queue itself.
            block = nullptr;
        });
    }

    void end()
    {
        const std::lock_guard lock(m_mutex);
        --m_running;
        m_barrierRuns = false;
        startNext();
        if (m_running == 0 && m_entries.empty())
            m_finished.notify_all();
    }

    const QString m_label;
    const int m_rank;
    const Kind m_kind;
    const bool m_staysBelow;
    WorkerPool& m_pool;

    std::mutex m_mutex;
    std::condition_variable m_finished;
    std::deque<Entry> m_entries;
    std::size_t m_running = 0;
    std::size_t m_suspensions = 0;
    bool m_barrierRuns = false;
};

/// A queue whose blocks run on the threads of a pool. A serial one is a concurrent one all of whose blocks are
/// barriers.
class PooledQueue final : public DispatchQueue
{
public:
    PooledQueue(QString label, QualityOfService quality, Kind kind, int waitingRank)
        : m_line(std::make_shared<Line>(std::move(label), quality, kind, waitingRank))
    {
    }
    ~PooledQueue() override { m_line->finish(); }

    void async(Block block) override { m_line->add(std::move(block), false); }
    void sync(const Block& block) override { m_line->addAndWait(block, false); }
    void barrierAsync(Block block) override { m_line->add(std::move(block), true); }
    void barrierSync(const Block& block) override { m_line->addAndWait(block, true); }
    void suspend() override { m_line->suspend(); }
    void resume() override { m_line->resume(); }
    bool isCurrent() const override { return m_line->isCurrent(); }
    const QString& label() const override { return m_line->label(); }

private:
    std::function<void(Block)> inlet() override
    {
        return [weak = std::weak_ptr(m_line)](Block block) {
            if (const auto line = weak.lock())
                line->add(std::move(block), false);
        };
    }

    const std::shared_ptr<Line> m_line;
};

PooledQueue& makeGlobal(const char* label, QualityOfService quality)
{
    // Never destroyed, as its threads end with the process.
    return *new PooledQueue(QLatin1String(label), quality, Kind::Global, 0);
}

} // namespace

std::shared_ptr<DispatchQueue> DispatchQueue::serial(QString label, QualityOfService quality, int waitingRank)
{
    return std::make_shared<PooledQueue>(std::move(label), quality, Kind::Serial, waitingRank);
}

std::shared_ptr<DispatchQueue> DispatchQueue::concurrent(QString label, QualityOfService quality, int waitingRank)
{
    return std::make_shared<PooledQueue>(std::move(label), quality, Kind::Concurrent, waitingRank);
}

DispatchQueue& DispatchQueue::global(QualityOfService quality)
{
    static DispatchQueue& background = makeGlobal("global.background", QualityOfService::Background);
    static DispatchQueue& utility = makeGlobal("global.utility", QualityOfService::Utility);
    static DispatchQueue& standard = makeGlobal("global.default", QualityOfService::Default);
    static DispatchQueue& initiated = makeGlobal("global.user-initiated", QualityOfService::UserInitiated);
    static DispatchQueue& interactive = makeGlobal("global.user-interactive", QualityOfService::UserInteractive);
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

void DispatchQueue::after(Milliseconds delay, Block block)
{
    Timer::current()->schedule(delay, [put = inlet(), block = std::move(block)]() mutable { put(std::move(block)); });
}

} // namespace vidora
