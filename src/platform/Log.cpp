#include "platform/Log.h"

#include <atomic>
#include <mutex>

namespace vidora::Log {

namespace {
std::mutex sinkMutex;
Sink currentSink;
std::atomic<bool> sinkIsSet = false;
} // namespace

void setSink(Sink sink)
{
    const std::lock_guard lock(sinkMutex);
    currentSink = std::move(sink);
    sinkIsSet = static_cast<bool>(currentSink);
}

bool enabled()
{
    return sinkIsSet.load(std::memory_order_relaxed);
}

void line(const QString& text)
{
    if (!enabled())
        return;
    const std::lock_guard lock(sinkMutex);
    if (currentSink)
        currentSink(text);
}

} // namespace vidora::Log
