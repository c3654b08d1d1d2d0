#include "calendar/EventStore.h"

namespace vidora {

std::optional<CalendarColor> CalendarColor::fromText(QStringView text)
{
    text = text.trimmed();
    if (!text.startsWith(u'#') || (text.size() != 7 && text.size() != 9))
        return std::nullopt;
    double parts[4] = {0, 0, 0, 1};
    for (qsizetype i = 0; 2 * i + 1 < text.size(); ++i) {
        const QStringView digits = text.mid(1 + 2 * i, 2);
        bool whole = false;
        const int value = digits.toInt(&whole, 16);
        if (!whole || !digits.front().isLetterOrNumber())
            return std::nullopt;
        parts[i] = value / 255.0;
    }
    return CalendarColor{parts[0], parts[1], parts[2], parts[3]};
}

void EventStore::setChangeObserver(std::function<void()> observer)
{
    const std::lock_guard lock(m_observerMutex);
    m_observer = std::move(observer);
}

void EventStore::notifyChanged()
{
    const std::lock_guard lock(m_observerMutex);
    if (m_observer)
        m_observer();
}

EventPredicate EventStore::predicateForEventsWithStartDate(Instant startDate, Instant endDate,
                                                           std::vector<Calendar> calendars) const
{
    if (endDate < startDate)
        throw EventStoreException(QStringLiteral("InvalidArgument"), QStringLiteral("the end lies ahead of the start"));
    return {startDate, endDate, std::move(calendars)};
}

void EventStore::enumerateEventsMatchingPredicate(const EventPredicate& predicate,
                                                  const std::function<void(const Event&, bool&)>& usingBlock)
{
    bool stop = false;
    for (const Event& event : eventsMatchingPredicate(predicate)) {
        usingBlock(event, stop);
        if (stop)
            return;
    }
}

} // namespace vidora
