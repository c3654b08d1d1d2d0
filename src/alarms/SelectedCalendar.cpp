#include "alarms/SelectedCalendar.h"

namespace vidora {

namespace {

QString titleAndSource(const Calendar& calendar)
{
    return calendar.title + QLatin1Char(':') + calendar.source + QLatin1Char(':');
}

} // namespace

QString SelectedCalendar::colorStringForCalendar(const Calendar& calendar)
{
    const CalendarColor color = calendar.color.value_or(CalendarColor{});
    QStringList components;
    for (const double component : {color.red, color.green, color.blue, color.alpha})
        components << QString::number(component, 'f', 6);
    return titleAndSource(calendar) + components.join(QLatin1Char(':'));
}

SelectedCalendar::Memory SelectedCalendar::memoryOf(const Calendar& calendar)
{
    return {colorStringForCalendar(calendar),
            calendar.address.isEmpty() ? calendar.calendarIdentifier : calendar.address,
            {}};
}

void SelectedCalendar::remember(const Memory& memory, UserDefaults& defaults)
{
    defaults.setObject(memory.looks, key);
    defaults.setObject(memory.place, placeKey);
    if (!memory.lost.isEmpty())
        defaults.setObject(memory.lost, lostKey);
}

std::optional<SelectedCalendar::Memory> SelectedCalendar::ensureSelectedCalendarIsSet()
{
    if (m_calendar && m_eventStore.calendarWithIdentifier(m_calendar->calendarIdentifier))
        return std::nullopt;
    const QString looks = m_defaults.stringForKey(key).value_or(QString());
    m_calendar =
        looks.isEmpty() ? std::nullopt : remembered(looks, m_defaults.stringForKey(placeKey).value_or(QString()));
    const bool isLost = !looks.isEmpty() && !m_calendar;
    if (!m_calendar)
        m_calendar = m_eventStore.defaultCalendarForNewEvents();
    if (!m_calendar)
        return std::nullopt;
    Memory memory = memoryOf(*m_calendar);
    if (isLost)
        memory.lost = looks.section(QLatin1Char(':'), 0, -6); // ahead of the source and the colour
    return memory;
}

std::optional<Calendar> SelectedCalendar::remembered(const QString& looks, const QString& place) const
{
    using Fits = bool (*)(const Calendar&, const QString&);
    constexpr Fits walks[] = {
        [](const Calendar& calendar, const QString& text) { return colorStringForCalendar(calendar) == text; },
        [](const Calendar& calendar, const QString& text) { return text.startsWith(titleAndSource(calendar)); },
        [](const Calendar& calendar, const QString& text) {
            return text.startsWith(calendar.title + QLatin1Char(':'));
        },
    };
    const std::vector<Calendar> calendars = m_eventStore.calendarsForEntityType(EntityType::Event);
    for (const Calendar& calendar : calendars) {
        if (!place.isEmpty() && memoryOf(calendar).place == place) // one that is read-only for now stays the chosen one
            return calendar;
    }
    for (const Fits fits : walks) {
        for (const Calendar& calendar : calendars) {
            if (calendar.allowsContentModifications && fits(calendar, looks))
                return calendar;
        }
    }
    return std::nullopt;
}

} // namespace vidora
