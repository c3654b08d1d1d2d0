#pragma once

#include "calendar/Event.h"
#include "content/TVEntry.h"

#include <QHash>
#include <QStringList>

#include <unordered_map>

namespace vidora {

/// The index of our coming events: from the address of a broadcast to the identifier of its event. A value.
class CalendarEvents
{
public:
    int eventCount() const { return static_cast<int>(m_events.size()); }
    /// Overlooks an event that isn't ours: without an address, with one that has no host or another scheme. One that
    /// was never saved takes the entry of its address away.
    void add(const Event& event, const QString& delegateScheme);
    /// Identifier of the event of a broadcast.
    std::optional<QString> identifier(const TVEntry& entry, const QString& scheme) const;
    /// Takes one entry of this identifier away.
    void removeWithIdentifier(const QString& identifier);
    void removeWithIdentifiers(const QStringList& identifiers);

private:
    void remove(const URL& url);

    std::unordered_map<URL, QString> m_events;
    QMultiHash<QString, URL> m_urls; ///< the reverse: an event that moved may have been entered under two addresses
};

} // namespace vidora
