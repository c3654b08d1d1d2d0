#pragma once

#include "platform/Clock.h"
#include "platform/URLSession.h"

#include <functional>
#include <list>
#include <mutex>
#include <unordered_map>

namespace vidora {

/// Responses kept in memory, by address. A body is kept as the session delivered it: a feed that is a compressed file
/// stays compressed; a transfer encoding (Content-Encoding) has been undone by then. Entries older than the update
/// interval are forgotten, so that a process which runs for days sees new listings. Any thread.
class URLCache
{
public:
    struct Entry
    {
        QByteArray data;
        URLResponse response;
    };

    /// The clock outlives the cache. `maximumAge` is asked at each use, on any thread.
    URLCache(const Clock& clock, std::function<Milliseconds()> maximumAge);

    std::optional<Entry> cachedResponseForRequest(const URLRequest& request);
    /// Keeps a whole, successful response (status 200 to 299, a body that is not empty), unless its Cache-Control says
    /// "no-store" (RFC 9111, 5.2.2.5). When the capacity is exceeded the oldest entries go.
    void storeCachedResponse(Entry entry, const URLRequest& forRequest);
    void removeCachedResponseForRequest(const URLRequest& request);

    /// In bytes of bodies; 0 empties the cache. At first a number that is no limit in practice.
    void setMemoryCapacity(qint64 bytes);
    qint64 memoryCapacity() const;
    qint64 currentMemoryUsage() const;

private:
    struct Stored
    {
        URL url;
        Entry entry;
        Instant since;
    };
    using Entries = std::list<Stored>;

    bool isStale(const Stored& stored) const;
    void remove(Entries::iterator at);
    void removeOld();
    void makeRoom();

    const Clock& m_clock;
    const std::function<Milliseconds()> m_maximumAge;
    mutable std::mutex m_mutex;
    Entries m_entries; ///< in the order in which they were stored
    std::unordered_map<URL, Entries::iterator> m_places;
    qint64 m_capacity;
    qint64 m_usage = 0;
};

} // namespace vidora
