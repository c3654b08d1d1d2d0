#include "alarms/CalendarEvents.h"

namespace vidora {

void CalendarEvents::add(const Event& event, const QString& delegateScheme)
{
    enter(event, delegateScheme, false);
}

void CalendarEvents::addOfOther(const Event& event, const QString& delegateScheme)
{
    if (event.url && !m_events.contains(*event.url) && !event.eventIdentifier.isEmpty())
        enter(event, delegateScheme, true);
}

void CalendarEvents::enter(const Event& event, const QString& delegateScheme, bool isOthers)
{
    if (!event.url || event.url->host().isEmpty() || delegateScheme.isEmpty() || event.url->scheme() != delegateScheme)
        return;
    remove(*event.url);
    if (event.eventIdentifier.isEmpty())
        return;
    m_events.emplace(*event.url, Entry{event.eventIdentifier, isOthers});
    m_others += isOthers ? 1 : 0;
    m_urls.insert(event.eventIdentifier, *event.url);
}

std::optional<QString> CalendarEvents::identifier(const TVEntry& entry, const QString& scheme) const
{
    const auto url = entry.urlDigestWithScheme(scheme);
    const auto found = url ? m_events.find(*url) : m_events.end();
    return found == m_events.end() ? std::nullopt : std::optional(found->second.identifier);
}

void CalendarEvents::removeWithIdentifier(const QString& identifier)
{
    const auto found = m_urls.constFind(identifier);
    if (found == m_urls.cend())
        return;
    erase(*found);
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
    m_urls.remove(found->second.identifier, url);
    erase(url);
}

void CalendarEvents::erase(const URL& url)
{
    const auto found = m_events.find(url);
    if (found == m_events.end())
        return;
    m_others -= found->second.isOthers ? 1 : 0;
    m_events.erase(found);
}

} // namespace vidora
