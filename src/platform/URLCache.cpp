#include "platform/URLCache.h"

#include <algorithm>

namespace vidora {

namespace {

constexpr qint64 noLimitInPractice = qint64{1} << 32;

bool forbidsStoring(const HeaderFields& fields)
{
    const QByteArray control = fields.value("Cache-Control").value_or(QByteArray()).toLower();
    const auto directives = control.split(',');
    return std::any_of(directives.begin(), directives.end(),
                       [](const QByteArray& directive) { return directive.trimmed() == "no-store"; });
}

} // namespace

URLCache::URLCache(const Clock& clock, std::function<Milliseconds()> maximumAge)
    : m_clock(clock)
    , m_maximumAge(std::move(maximumAge))
    , m_capacity(noLimitInPractice)
{
}

bool URLCache::isStale(const Stored& stored) const
{
    // An entry from the future was stored before the clock was set back, and its age is not known.
    const Milliseconds age = m_clock.now() - stored.since;
    return age > m_maximumAge() || age < Milliseconds::zero();
}

void URLCache::remove(Entries::iterator at)
{
    m_usage -= at->entry.data.size();
    m_places.erase(at->url);
    m_entries.erase(at);
}

void URLCache::removeOld()
{
    while (!m_entries.empty() && isStale(m_entries.front()))
        remove(m_entries.begin());
}

void URLCache::makeRoom()
{
    while (m_usage > m_capacity)
        remove(m_entries.begin());
}

std::optional<URLCache::Entry> URLCache::cachedResponseForRequest(const URLRequest& request)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_places.find(request.url);
    if (found == m_places.end())
        return std::nullopt;
    if (isStale(*found->second)) {
        remove(found->second);
        return std::nullopt;
    }
    return found->second->entry;
}

void URLCache::storeCachedResponse(Entry entry, const URLRequest& forRequest)
{
    const int status = entry.response.statusCode;
    if (status < 200 || status >= 300 || entry.data.isEmpty() || forbidsStoring(entry.response.headerFields))
        return;
    const std::lock_guard lock(m_mutex);
    // Addresses with a date in them are never asked for again: what is too old goes here, not only when it is met.
    removeOld();
    if (const auto known = m_places.find(forRequest.url); known != m_places.end())
        remove(known->second);
    m_usage += entry.data.size();
    m_entries.push_back({forRequest.url, std::move(entry), m_clock.now()});
    m_places.emplace(forRequest.url, std::prev(m_entries.end()));
    makeRoom();
}

void URLCache::removeCachedResponseForRequest(const URLRequest& request)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_places.find(request.url);
    if (found != m_places.end())
        remove(found->second);
}

void URLCache::setMemoryCapacity(qint64 bytes)
{
    const std::lock_guard lock(m_mutex);
    m_capacity = bytes;
    makeRoom();
}

qint64 URLCache::memoryCapacity() const
{
    const std::lock_guard lock(m_mutex);
    return m_capacity;
}

qint64 URLCache::currentMemoryUsage() const
{
    const std::lock_guard lock(m_mutex);
    return m_usage;
}

} // namespace vidora
