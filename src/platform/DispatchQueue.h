#pragma once

#include "platform/Instant.h"

#include <QString>

#include <functional>
#include <memory>

namespace vidora {

/// Class of service of a queue, mapped to the niceness of the threads that run it.
enum class QualityOfService
{
    Background = 9,
    Utility = 17,
    Default = 21,
    UserInitiated = 25,
    UserInteractive = 33
};

/// A labelled queue of blocks: the only way in which the program runs work beside the main thread.
///
/// A serial queue runs one block at a time in the order given. A concurrent queue runs many at once, except that a
/// barrier block waits for all blocks ahead of it, runs alone, and holds back all blocks behind it. The main queue runs
/// its blocks on the thread of Qt's event loop.
///
/// All operations may be called on any thread. A block that throws in `async` ends the process, as an uncaught
/// exception does; one that throws in `sync` or `barrierSync` throws out of that call on the caller's thread. `sync`
/// onto the queue that is running the caller would never return: a debug build asserts against it, and against waiting
/// in another order than pass queue, `loadQueue`, the store's queues.
///
/// A queue is destroyed when its last owner lets go of it and its last block has run; the destructor waits for that,
/// unless it runs on the queue itself.
class DispatchQueue
{
public:
    using Block = std::function<void()>;

    static std::shared_ptr<DispatchQueue> serial(QString label, QualityOfService quality = QualityOfService::Default);
    static std::shared_ptr<DispatchQueue> concurrent(QString label,
                                                     QualityOfService quality = QualityOfService::Default);
    /// The queue of Qt's event loop. Its blocks run while the loop of the main thread does.
    static DispatchQueue& main();
    /// The shared concurrent queue of a class of service.
    static DispatchQueue& global(QualityOfService quality);

    virtual ~DispatchQueue() = default;

    virtual void async(Block block) = 0;
    virtual void sync(const Block& block) = 0;
    /// On a serial queue, the main queue and a global queue the same as async and sync.
    virtual void barrierAsync(Block block) = 0;
    virtual void barrierSync(const Block& block) = 0;
    /// Queues the block once the delay is over.
    virtual void after(Milliseconds delay, Block block) = 0;
    /// No further block starts until as many `resume` have come. Not for the main and the global queues.
    virtual void suspend() = 0;
    virtual void resume() = 0;
    /// True on a thread that is running a block of this queue.
    virtual bool isCurrent() const = 0;
    virtual const QString& label() const = 0;
};

/// Counts blocks that belong together.
class DispatchGroup
{
public:
    DispatchGroup();
    ~DispatchGroup();
    void async(DispatchQueue& queue, DispatchQueue::Block block);
    void enter();
    void leave();
    /// Blocks until every block of the group has run. Not on a queue that one of them needs.
    void wait();
    /// Queues the block when the group is, or becomes, empty.
    void notify(DispatchQueue& queue, DispatchQueue::Block block);

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace vidora
