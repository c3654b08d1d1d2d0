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

std::optional<QString> SelectedCalendar::ensureSelectedCalendarIsSet()
{
    if (m_calendar)
        return std::nullopt;
    const QString looks = m_defaults.stringForKey(key).value_or(QString());
    m_calendar = looks.isEmpty() ? std::nullopt : remembered(looks);
    if (!m_calendar)
        m_calendar = m_eventStore.defaultCalendarForNewEvents();
    return m_calendar ? std::optional(colorStringForCalendar(*m_calendar)) : std::nullopt;
}

std::optional<Calendar> SelectedCalendar::remembered(const QString& looks) const
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
    for (const Fits fits : walks) {
        for (const Calendar& calendar : calendars) {
            if (calendar.allowsContentModifications && fits(calendar, looks))
                return calendar;
        }
    }
    return std::nullopt;
}

} // namespace vidora
