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
    /// Without those of other devices.
    int eventCount() const { return static_cast<int>(m_events.size()) - m_others; }
    /// Overlooks an event that isn't ours: without an address, with one that has no host or another scheme. One that
    /// was never saved takes the entry of its address away.
    void add(const Event& event, const QString& delegateScheme);
    /// The same for an event that another device has made: it is found where there is none of this device's, and not
    /// counted.
    void addOfOther(const Event& event, const QString& delegateScheme);
    /// Identifier of the event of a broadcast.
    std::optional<QString> identifier(const TVEntry& entry, const QString& scheme) const;
    /// Takes one entry of this identifier away.
    void removeWithIdentifier(const QString& identifier);
    void removeWithIdentifiers(const QStringList& identifiers);

private:
    struct Entry
    {
        QString identifier;
        bool isOthers = false;
    };
    void enter(const Event& event, const QString& delegateScheme, bool isOthers);
    void erase(const URL& url);
    void remove(const URL& url);

    std::unordered_map<URL, Entry> m_events;
    int m_others = 0;                ///< how many of them
    QMultiHash<QString, URL> m_urls; ///< the reverse: an event that moved may have been entered under two addresses
};

} // namespace vidora
