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
/// for a queue of a lower rank than one whose block waits already.
///
/// The block of a `sync` runs on the calling thread when its turn has come. Of a queue of class Background or Utility
/// it runs on a thread of that class while the caller waits, so that heavy work stays below the rest of the machine.
///
/// A queue is destroyed when its last owner lets go of it and its last block has run; the destructor waits for that,
/// unless it runs on the queue itself. It ends a suspension. A block whose delay is not over by then never runs.
class DispatchQueue
{
public:
    using Block = std::function<void()>;

    /// `waitingRank` is the queue's place in the order of waiting, from 1: its blocks may wait for queues of the same
    /// rank or a higher one. A queue of rank 0 has no place in it.
    static std::shared_ptr<DispatchQueue> serial(QString label, QualityOfService quality = QualityOfService::Default,
                                                 int waitingRank = 0);
    static std::shared_ptr<DispatchQueue>
    concurrent(QString label, QualityOfService quality = QualityOfService::Default, int waitingRank = 0);
    /// The queue of Qt's event loop. Its blocks run, one for each turn of the loop, while the loop of the main thread
    /// does; those given before there is an application object wait for it, those left at the end never run.
    /// `sync` onto it from the main thread is an error.
    static DispatchQueue& main();
    /// Runs the event loop of the main thread until the condition holds: how a command or a test waits for work on the
    /// queues. The condition is asked on the main thread, at the start and after each turn of the loop, so what fulfils
    /// it must be a block of the main queue or another event of the loop. On the main thread only.
    static void runMain(const std::function<bool()>& until);
    /// The shared concurrent queue of a class of service.
    static DispatchQueue& global(QualityOfService quality);

    virtual ~DispatchQueue() = default;

    virtual void async(Block block) = 0;
    virtual void sync(const Block& block) = 0;
    /// On a serial queue, the main queue and a global queue the same as async and sync.
    virtual void barrierAsync(Block block) = 0;
    virtual void barrierSync(const Block& block) = 0;
    /// Queues the block once the delay is over, by the present Timer.
    void after(Milliseconds delay, Block block);
    /// No further block starts until as many `resume` have come. Not for the main and the global queues.
    virtual void suspend() = 0;
    virtual void resume() = 0;
    /// True on a thread that is running a block of this queue, or one that such a block waits for in `sync`; for the
    /// main queue, on the main thread.
    virtual bool isCurrent() const = 0;
    virtual const QString& label() const = 0;

private:
    friend class DispatchGroup;
    /// `async` for those who do not own the queue: what is put in after its destruction is dropped.
    virtual std::function<void(Block)> inlet() = 0;
};

/// Counts blocks that belong together. May be used on any thread and destroyed while blocks of it wait.
class DispatchGroup
{
public:
    DispatchGroup();
    void async(DispatchQueue& queue, DispatchQueue::Block block);
    /// By hand: work that is not one block. As many `leave` as `enter`.
    void enter();
    void leave();
    /// Whether no block of the group waits or runs at this moment.
    bool isEmpty() const;
    /// Blocks until every block of the group has run. Not on a queue that one of them needs.
    void wait();
    /// Queues the block when the group is, or becomes, empty.
    void notify(DispatchQueue& queue, DispatchQueue::Block block);

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace vidora
