#pragma once

#include "calendar/EventStore.h"
#include "platform/KeyValueStore.h"
#include "platform/UserDefaults.h"

namespace vidora {

/// The calendar in which alarms live. It is remembered by its looks and not by an identifier, so that the same calendar
/// is found again on another device. To be used on the queue of the alarms; the constructor and the static operations
/// on any thread.
class SelectedCalendar
{
public:
    SelectedCalendar(EventStore& eventStore, UserDefaults& defaults)
        : m_eventStore(eventStore)
        , m_defaults(defaults)
    {
    }

    /// Nothing until it was looked for, and where no calendar can be written.
    const std::optional<Calendar>& calendar() const { return m_calendar; }
    void setCalendar(Calendar calendar) { m_calendar = std::move(calendar); }

    /// Looks for the remembered calendar: by title, source and colour, then by title and source, then by title; else
    /// takes the default one. Its looks, to be remembered; nothing where it was set already or there is none.
    std::optional<QString> ensureSelectedCalendarIsSet();

    /// Title, source and the four components of the colour, each 0.5 where the calendar names none.
    static QString colorStringForCalendar(const Calendar& calendar);

    static constexpr QLatin1String key{"selectedCalendar"};

private:
    std::optional<Calendar> remembered(const QString& looks) const;

    EventStore& m_eventStore;
    UserDefaults& m_defaults;
    std::optional<Calendar> m_calendar;
};

} // namespace vidora
