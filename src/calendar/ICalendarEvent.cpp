#include "calendar/ICalendarEvent.h"

#include "calendar/ICalendarLines.h"
#include "calendar/ICalendarProperty.h"
#include "platform/DeviceSettings.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>

namespace vidora {

namespace {

constexpr std::size_t maximalAlarms = 64;
/// Which device made an event (RFC 5545, 3.8.8.2): of several that write to one calendar each looks after its own.
const QByteArray deviceProperty("X-VIDORA-DEVICE");

/// A day isn't 24 hours long when the clocks change.
Instant startOfNextDay(Instant start)
{
    const QTimeZone zone = DeviceSettings::timeZone();
    const QDate date = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(start), zone).date();
    return instantFromUnixMilliseconds(date.addDays(1).startOfDay(zone).toMSecsSinceEpoch());
}

QByteArray deviceLine(const QString& device)
{
    return device.isEmpty() ? QByteArray() : deviceProperty + QByteArray(":") + device.toLatin1() + "\r\n";
}

QString deviceOf(const QByteArray& line)
{
    static const QRegularExpression mark(QRegularExpression::anchoredPattern(QStringLiteral("[0-9a-f]{1,64}")));
    const QString text = QString::fromLatin1(line.mid(line.indexOf(':') + 1).trimmed());
    return mark.match(text).hasMatch() ? text : QString();
}

/// Reads the properties of one document that has been taken apart.
class EventReader
{
public:
    EventReader(const QByteArray& document, const ICalendarLines& parts)
        : m_document(document)
        , m_parts(parts)
    {
    }

    std::optional<ICalendarEvent> read()
    {
        m_result.single = m_parts.eventCount == 1;
        for (const std::size_t index : m_parts.properties)
            take(m_parts.lines[index]);
        if (m_result.uid.isEmpty() || !m_start)
            return std::nullopt;
        m_result.event.startDate = m_start->instant;
        m_result.event.allDay = m_start->dateOnly;
        m_result.event.endDate = std::max(end(), m_start->instant);
        for (const ICalendarLines::Range& range : m_parts.alarms) {
            const auto alarm = readAlarm(range);
            if (alarm && m_result.event.alarms.size() < maximalAlarms)
                m_result.event.alarms.push_back(*alarm);
        }
        return std::move(m_result);
    }
    std::optional<EventAlarm> readAlarm(const ICalendarLines::Range& range) const
    {
        const auto index = triggerOf(range);
        const auto offset = index ? ICalendarProperty(m_parts.lines[*index].unfolded(m_document))
                                        .triggerOffset(m_result.event.startDate, m_result.event.endDate)
                                  : std::nullopt;
        return offset ? std::optional(EventAlarm{*offset}) : std::nullopt;
    }
    /// The line of an alarm that says when it rings.
    std::optional<std::size_t> triggerOf(const ICalendarLines::Range& range) const
    {
        for (std::size_t index = range.begin; index < range.end; ++index) {
            if (m_parts.lines[index].name == "TRIGGER")
                return index;
        }
        return std::nullopt;
    }
    /// The event's moments, for `readAlarm` on its own.
    void setMoments(Instant start, Instant end)
    {
        m_result.event.startDate = start;
        m_result.event.endDate = end;
    }

private:
    void take(const ICalendarLine& line)
    {
        static const std::vector<QByteArray> ofSeries{"RRULE", "RDATE", "RECURRENCE-ID", "EXRULE"};
        if (std::find(ofSeries.begin(), ofSeries.end(), line.name) != ofSeries.end())
            m_result.single = false;
        if (line.name == deviceProperty)
            m_result.event.device = deviceOf(line.unfolded(m_document));
        static const std::vector<QByteArray> wanted{"UID",     "SUMMARY", "LOCATION", "URL",
                                                    "DTSTART", "DTEND",   "DURATION"};
        if (std::find(wanted.begin(), wanted.end(), line.name) == wanted.end())
            return;
        const ICalendarProperty property(line.unfolded(m_document));
        if (line.name == "UID")
            m_result.uid = property.text();
        else if (line.name == "SUMMARY")
            m_result.event.title = property.text();
        else if (line.name == "LOCATION")
            m_result.event.location = property.text();
        else if (line.name == "URL")
            m_result.event.url = URL::fromText(property.text());
        else if (line.name == "DTSTART")
            m_start = property.moment(zoneLocations());
        else if (line.name == "DTEND")
            m_end = property.moment(zoneLocations());
        else
            m_duration = property.duration();
    }
    Instant end() const
    {
        if (m_end)
            return m_end->instant;
        if (m_duration)
            return m_start->instant + *m_duration;
        return m_start->dateOnly ? startOfNextDay(m_start->instant) : m_start->instant;
    }
    /// Names that programs give their zones, to the names that everybody knows.
    const std::map<QByteArray, QByteArray>& zoneLocations()
    {
        if (m_zoneLocations)
            return *m_zoneLocations;
        m_zoneLocations.emplace();
        QByteArray zone;
        for (const ICalendarLine& line : m_parts.lines) {
            if (line.name != "TZID" && line.name != "X-LIC-LOCATION")
                continue;
            const QByteArray text = line.unfolded(m_document);
            const QByteArray value = text.mid(text.indexOf(':') + 1).trimmed();
            if (line.name == "TZID")
                zone = value;
            else
                m_zoneLocations->insert_or_assign(zone, value);
        }
        return *m_zoneLocations;
    }

    const QByteArray& m_document;
    const ICalendarLines& m_parts;
    ICalendarEvent m_result;
    std::optional<ICalendarMoment> m_start;
    std::optional<ICalendarMoment> m_end;
    std::optional<Seconds> m_duration;
    std::optional<std::map<QByteArray, QByteArray>> m_zoneLocations;
};

QByteArray alarmText(const EventAlarm& alarm, const QString& title)
{
    return "BEGIN:VALARM\r\nACTION:DISPLAY\r\n" + ICalendarProperty::textLine("DESCRIPTION", title) +
           ICalendarProperty::triggerLine(alarm.relativeOffset) + "END:VALARM\r\n";
}

/// The lines of the properties that are ours, by name. An empty line stands for a property to be left out.
using PropertyLines = std::vector<std::pair<QByteArray, QByteArray>>;

QByteArray textLineOrNothing(const char* name, const QString& text)
{
    return text.isEmpty() ? QByteArray() : ICalendarProperty::textLine(name, text);
}

PropertyLines momentLines(const Event& event)
{
    return {{"DTSTART", ICalendarProperty::momentLine("DTSTART", event.startDate, event.allDay)},
            {"DTEND", ICalendarProperty::momentLine("DTEND", event.endDate, event.allDay)},
            {"DURATION", {}}};
}

PropertyLines changedLines(const Event& before, const Event& after, Instant now)
{
    PropertyLines lines;
    const auto second = [](Instant instant) { return std::chrono::floor<Seconds>(instant); };
    if (second(before.startDate) != second(after.startDate) || second(before.endDate) != second(after.endDate) ||
        before.allDay != after.allDay)
        lines = momentLines(after);
    if (before.title != ICalendarProperty::cleaned(after.title))
        lines.emplace_back("SUMMARY", textLineOrNothing("SUMMARY", after.title));
    if (before.location != ICalendarProperty::cleaned(after.location))
        lines.emplace_back("LOCATION", textLineOrNothing("LOCATION", after.location));
    if (before.url != after.url)
        lines.emplace_back("URL", after.url ? ICalendarProperty::urlLine(*after.url) : QByteArray());
    if (before.device != after.device)
        lines.emplace_back(deviceProperty, deviceLine(after.device));
    if (!lines.empty() || before.alarms != after.alarms)
        lines.emplace_back("DTSTAMP", ICalendarProperty::momentLine("DTSTAMP", now, false));
    return lines;
}

/// Puts a document together out of the pieces of the old one and the new lines.
class Rewriter
{
public:
    Rewriter(const QByteArray& document, const ICalendarLines& parts)
        : m_document(document)
        , m_parts(parts)
        , m_replacements(parts.lines.size())
        , m_windowsEnds(!document.contains('\n') || document.contains("\r\n"))
    {
    }

    void replace(const QByteArray& name, const QByteArray& line)
    {
        bool placed = false;
        for (const std::size_t index : m_parts.properties) {
            if (m_parts.lines[index].name == name) {
                m_replacements[index] = placed ? QByteArray() : line;
                placed = true;
            }
        }
        if (!placed)
            m_added += line;
    }
    void replace(std::size_t line, const QByteArray& text) { m_replacements[line] = text; }
    void remove(const ICalendarLines::Range& range)
    {
        for (std::size_t index = range.begin; index < range.end; ++index)
            m_replacements[index] = QByteArray();
    }
    void add(const QByteArray& lines) { m_addedComponents += lines; }
    /// New properties stand behind the event's first line, where no component can be in their way.
    QByteArray result() const
    {
        QByteArray text = m_document.first(m_parts.lines.front().begin);
        for (std::size_t index = 0; index < m_parts.lines.size(); ++index) {
            const ICalendarLine& line = m_parts.lines[index];
            if (index == m_parts.event.end - 1)
                text += ends(m_addedComponents);
            if (m_replacements[index])
                text += ends(*m_replacements[index]);
            else
                text += m_document.mid(line.begin, line.end - line.begin);
            if (index == m_parts.event.begin)
                text += ends(m_added);
        }
        return text;
    }

private:
    QByteArray ends(QByteArray lines) const { return m_windowsEnds ? lines : lines.replace("\r\n", "\n"); }

    const QByteArray& m_document;
    const ICalendarLines& m_parts;
    std::vector<std::optional<QByteArray>> m_replacements;
    const bool m_windowsEnds;
    QByteArray m_added;
    QByteArray m_addedComponents;
};

/// Alarms that stay keep every line, but for a moment that would not follow the event by itself.
void changeAlarms(const QByteArray& document, const ICalendarLines& parts, const Event& before, const Event& after,
                  Rewriter& rewriter)
{
    EventReader reader(document, parts), moved(document, parts);
    reader.setMoments(before.startDate, before.endDate);
    moved.setMoments(after.startDate, after.endDate);
    std::vector<EventAlarm> missing = after.alarms;
    for (const ICalendarLines::Range& range : parts.alarms) {
        const auto alarm = reader.readAlarm(range);
        const auto kept = alarm ? std::find(missing.begin(), missing.end(), *alarm) : missing.end();
        if (kept == missing.end()) {
            if (alarm)
                rewriter.remove(range);
            continue;
        }
        missing.erase(kept);
        if (moved.readAlarm(range) == alarm)
            continue;
        const std::size_t line = *reader.triggerOf(range);
        rewriter.replace(line, ICalendarProperty(parts.lines[line].unfolded(document))
                                   .movedTriggerLine(alarm->relativeOffset, after.startDate, after.endDate));
    }
    for (const EventAlarm& alarm : missing)
        rewriter.add(alarmText(alarm, after.title));
}

} // namespace

std::optional<ICalendarEvent> ICalendarEvent::read(const QByteArray& document)
{
    if (document.size() > maximumSize)
        return std::nullopt;
    const auto parts = ICalendarLines::of(document);
    return parts ? EventReader(document, *parts).read() : std::nullopt;
}

QByteArray ICalendarEvent::write(const QString& uid, const Event& event, Instant now)
{
    QByteArray text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Vidora//Vidora//EN\r\nBEGIN:VEVENT\r\n";
    text += ICalendarProperty::textLine("UID", uid) + ICalendarProperty::momentLine("DTSTAMP", now, false);
    for (const auto& [name, line] : momentLines(event))
        text += line;
    text += textLineOrNothing("SUMMARY", event.title) + textLineOrNothing("LOCATION", event.location);
    if (event.url)
        text += ICalendarProperty::urlLine(*event.url);
    text += deviceLine(event.device);
    for (const EventAlarm& alarm : event.alarms)
        text += alarmText(alarm, event.title);
    return text + "END:VEVENT\r\nEND:VCALENDAR\r\n";
}

std::optional<QByteArray> ICalendarEvent::change(const QByteArray& document, const Event& event, Instant now)
{
    const auto present = read(document);
    const auto parts = present ? ICalendarLines::of(document) : std::nullopt;
    if (!parts)
        return std::nullopt;
    const PropertyLines lines = changedLines(present->event, event, now);
    if (lines.empty())
        return std::nullopt;
    Rewriter rewriter(document, *parts);
    for (const auto& [name, line] : lines)
        rewriter.replace(name, line);

    changeAlarms(document, *parts, present->event, event, rewriter);
    return rewriter.result();
}

} // namespace vidora
