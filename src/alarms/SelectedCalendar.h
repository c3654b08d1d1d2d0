#pragma once

#include "calendar/EventStore.h"
#include "platform/KeyValueStore.h"
#include "platform/Settings.h"

namespace vidora {

/// The calendar in which alarms live. It is remembered by its looks, so that the same calendar is found again on
/// another device, and by its place, so that it stays the same however it is renamed or coloured. To be used on the
/// queue of the alarms; the constructor and the static operations on any thread.
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

    /// What is to be remembered about a calendar.
    struct Memory
    {
        QString looks;
        QString place;
        QString lost; ///< the title of the remembered calendar, when it is gone and the default one stands in
    };
    /// Looks for the remembered calendar: by its place, by title, source and colour, then by title and source, then by
    /// title; else takes the default one. Nothing where it was set already, and is still there, or there is none.
    std::optional<Memory> ensureSelectedCalendarIsSet();

    static Memory memoryOf(const Calendar& calendar);
    /// Remembers it in the settings.
    static void remember(const Memory& memory, UserDefaults& defaults);

    /// Title, source and the four components of the colour, each 0.5 where the calendar names none.
    static QString colorStringForCalendar(const Calendar& calendar);

    static constexpr QLatin1String key{setting::selectedCalendar.key};
    static constexpr QLatin1String placeKey{setting::selectedCalendarPlace.key};
    static constexpr QLatin1String lostKey{setting::lostCalendar.key};

private:
    std::optional<Calendar> remembered(const QString& looks, const QString& place) const;

    EventStore& m_eventStore;
    UserDefaults& m_defaults;
    std::optional<Calendar> m_calendar;
};

} // namespace vidora
