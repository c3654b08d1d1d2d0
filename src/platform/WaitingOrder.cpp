#include "platform/WaitingOrder.h"

#include "platform/WorkerPool.h"

#include <QtGlobal>

#include <condition_variable>
#include <mutex>

namespace vidora {

namespace {
thread_local const QueueFrame* innermostFrame = nullptr;
} // namespace

QueueFrame::QueueFrame(const void* queue, int rank, const QueueFrame* outer)
    : m_queue(queue)
    , m_rank(rank)
    , m_outer(outer)
    , m_before(std::exchange(innermostFrame, this))
{
}

QueueFrame::~QueueFrame()
{
    innermostFrame = m_before;
}

const QueueFrame* QueueFrame::innermost()
{
    return innermostFrame;
}

bool QueueFrame::contains(const void* queue)
{
    const QueueFrame* frame = innermostFrame;
    while (frame && frame->m_queue != queue)
        frame = frame->m_outer;
    return frame != nullptr;
}

const char* QueueFrame::faultOfWaitingFor(const void* queue, int rank)
{
    if (contains(queue))
        return "sync onto the queue that runs the caller";
    for (const QueueFrame* frame = innermostFrame; frame; frame = frame->m_outer) {
        if (rank != 0 && frame->m_rank > rank)
            return "sync against the order of waiting";
    }
    return nullptr;
}

void assertMayWaitFor([[maybe_unused]] const void* queue, [[maybe_unused]] int rank,
                      [[maybe_unused]] const QString& label)
{
#ifndef NDEBUG
    if (const char* fault = QueueFrame::faultOfWaitingFor(queue, rank))
        qFatal("%s: %s", qPrintable(label), fault);
#endif
}

void runElsewhere(const std::function<void(DispatchQueue::Block)>& enqueue, const void* queue, int rank,
                  const DispatchQueue::Block& block)
{
    std::mutex mutex;
    std::condition_variable over;
    bool isOver = false;
    std::exception_ptr thrown;
    const QueueFrame* const waiting = QueueFrame::innermost();

    enqueue([&] {
        try {
            const QueueFrame frame(queue, rank, waiting);
            block();
        } catch (...) {
            thrown = std::current_exception();
        }
        const std::lock_guard lock(mutex);
        isOver = true;
        over.notify_one();
    });

    {
        const BlockingScope blocking;
        std::unique_lock lock(mutex);
        over.wait(lock, [&] { return isOver; });
    }
    if (thrown)
        std::rethrow_exception(thrown);
}

} // namespace vidora
