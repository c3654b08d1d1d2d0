#pragma once

#include "platform/DispatchQueue.h"

#include <exception>

namespace vidora {

/// Marks that the present thread runs a block of a queue, for as long as it lives. The frames of a thread form a chain
/// from the innermost outwards; where another thread waits for this one, its chain continues this one's.
class QueueFrame
{
public:
    QueueFrame(const void* queue, int rank, const QueueFrame* outer = innermost());
    ~QueueFrame();
    QueueFrame(const QueueFrame&) = delete;
    QueueFrame& operator=(const QueueFrame&) = delete;

    static const QueueFrame* innermost();
    static bool contains(const void* queue);
    /// Why the present thread must not wait for that queue; nullptr when it may.
    static const char* faultOfWaitingFor(const void* queue, int rank);

private:
    const void* m_queue;
    int m_rank;
    const QueueFrame* m_outer;
    const QueueFrame* m_before;
};

/// Ends a debug build when the present thread must not wait for that queue.
void assertMayWaitFor(const void* queue, int rank, const QString& label);

/// Hands a block to another thread by `enqueue`, waits until it has run there, and throws what it threw. The queue's
/// own frame there is made anew with the waiting thread's chain behind it.
void runElsewhere(const std::function<void(DispatchQueue::Block)>& enqueue, const void* queue, int rank,
                  const DispatchQueue::Block& block);

} // namespace vidora
