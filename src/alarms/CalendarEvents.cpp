#include "alarms/CalendarEvents.h"

namespace vidora {

void CalendarEvents::add(const Event& event, const QString& delegateScheme)
{
    if (!event.url || event.url->host().isEmpty() || delegateScheme.isEmpty() || event.url->scheme() != delegateScheme)
        return;
    remove(*event.url);
    if (event.eventIdentifier.isEmpty())
        return;
    m_events.emplace(*event.url, event.eventIdentifier);
    m_urls.insert(event.eventIdentifier, *event.url);
}

std::optional<QString> CalendarEvents::identifier(const TVEntry& entry, const QString& scheme) const
{
    const auto url = entry.urlDigestWithScheme(scheme);
    const auto found = url ? m_events.find(*url) : m_events.end();
    return found == m_events.end() ? std::nullopt : std::optional(found->second);
}

void CalendarEvents::removeWithIdentifier(const QString& identifier)
{
    const auto found = m_urls.constFind(identifier);
    if (found == m_urls.cend())
        return;
    m_events.erase(*found);
    m_urls.erase(found);
}

void CalendarEvents::removeWithIdentifiers(const QStringList& identifiers)
{
    for (const QString& identifier : identifiers)
        removeWithIdentifier(identifier);
}

void CalendarEvents::remove(const URL& url)
{
    const auto found = m_events.find(url);
    if (found == m_events.end())
        return;
    m_urls.remove(found->second, url);
    m_events.erase(found);
}

} // namespace vidora
