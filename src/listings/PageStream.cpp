#include "listings/PageStream.h"

#include "platform/DispatchQueue.h"

#include <array>
#include <condition_variable>
#include <exception>
#include <string>

namespace vidora {
namespace {

/// Below this, a page is read sooner than a thread wakes up.
constexpr qsizetype wireSizeWorthAThread = 256 * 1024;
constexpr std::size_t bufferCapacity = 256 * 1024;
constexpr std::size_t bufferCount = 8;

/// A ring of buffers between one writer and one reader.
class BufferRing
{
public:
    /// Blocks while all buffers are full. False when the reader wants no more.
    bool write(std::string_view bytes)
    {
        while (!bytes.empty()) {
            if (!m_writing && !(m_writing = bufferToWrite()))
                return false;
            const std::size_t length = std::min(bytes.size(), bufferCapacity - m_writing->size());
            m_writing->append(bytes.substr(0, length));
            bytes.remove_prefix(length);
            if (m_writing->size() == bufferCapacity)
                handOver();
        }
        return true;
    }

    /// What the writer's work came to; it writes no more.
    void close(Page::Outcome outcome, std::exception_ptr exception)
    {
        if (m_writing)
            handOver();
        // The reader may destroy the ring as soon as it sees the end, so the notice is given under the lock.
        const std::lock_guard lock{m_mutex};
        m_outcome = outcome;
        m_exception = std::move(exception);
        m_closed = true;
        m_changed.notify_all();
    }

    /// The oldest full buffer, or nothing at the end.
    const std::string* bufferToRead()
    {
        std::unique_lock lock{m_mutex};
        m_changed.wait(lock, [this] { return m_closed || m_read < m_written; });
        return m_read < m_written ? &m_buffers[m_read % bufferCount] : nullptr;
    }

    void release()
    {
        const std::lock_guard lock{m_mutex};
        ++m_read;
        m_changed.notify_all();
    }

    /// Lets the writer go and waits until it is done.
    Page::Outcome finish()
    {
        std::unique_lock lock{m_mutex};
        m_abandoned = true;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_closed; });
        if (m_exception)
            std::rethrow_exception(m_exception);
        return m_outcome;
    }

private:
    std::string* bufferToWrite()
    {
        std::unique_lock lock{m_mutex};
        m_changed.wait(lock, [this] { return m_abandoned || m_written - m_read < bufferCount; });
        if (m_abandoned)
            return nullptr;
        std::string& buffer = m_buffers[m_written % bufferCount];
        buffer.clear();
        buffer.reserve(bufferCapacity);
        return &buffer;
    }

    void handOver()
    {
        m_writing = nullptr;
        const std::lock_guard lock{m_mutex};
        ++m_written;
        m_changed.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::array<std::string, bufferCount> m_buffers;
    std::string* m_writing = nullptr; ///< the writer's own
    std::uint64_t m_written = 0, m_read = 0;
    bool m_closed = false, m_abandoned = false;
    Page::Outcome m_outcome = Page::Outcome::Faulty;
    std::exception_ptr m_exception;
};

void decode(const Page& page, BufferRing& ring) noexcept
{
    try {
        const auto outcome = page.readUtf8([&](std::string_view bytes) { return ring.write(bytes); });
        ring.close(outcome, nullptr);
    } catch (...) {
        ring.close(Page::Outcome::Faulty, std::current_exception());
    }
}

} // namespace

Page::Outcome readUtf8Ahead(const Page& page, const Page::Sink& sink, QualityOfService quality)
{
    if (page.wireSize() < wireSizeWorthAThread)
        return page.readUtf8(sink);
    BufferRing ring;
    DispatchQueue::global(quality).async([&page, &ring] { decode(page, ring); });
    std::exception_ptr exception;
    try {
        while (const std::string* buffer = ring.bufferToRead()) {
            if (!sink(*buffer))
                break;
            ring.release();
        }
    } catch (...) {
        exception = std::current_exception();
    }
    const Page::Outcome outcome = ring.finish();
    if (exception)
        std::rethrow_exception(exception);
    return outcome;
}

} // namespace vidora
