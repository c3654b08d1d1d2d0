#include "calendar/ICalendarProperty.h"

#include "platform/DeviceSettings.h"

#include <QDateTime>

#include <algorithm>
#include <cstdlib>
#include <libical/ical.h>
#include <limits>
#include <mutex>

namespace vidora {

namespace {

/// Nothing rings, and no event lasts, longer than a century.
constexpr std::int64_t maximalDuration = 100LL * 366 * 86'400;

void prepareLibrary()
{
    // What is broken in a document of others must not end the process.
    static std::once_flag once;
    std::call_once(once, [] { icalerror_set_errors_are_fatal(false); });
}

std::optional<Seconds> seconds(const icaldurationtype& duration)
{
    const std::int64_t days = std::int64_t(duration.days) + 7 * std::int64_t(duration.weeks);
    const std::int64_t total = days * 86'400 + std::int64_t(duration.hours) * 3'600 +
                               std::int64_t(duration.minutes) * 60 + std::int64_t(duration.seconds);
    if (total > maximalDuration)
        return std::nullopt;
    return Seconds(duration.is_neg != 0 ? -total : total);
}

QTimeZone zoneNamed(const QByteArray& name, const std::map<QByteArray, QByteArray>& locations)
{
    constexpr qsizetype longestName = 256;
    const auto location = locations.find(name);
    const QByteArray id = location == locations.end() ? name : location->second;
    if (id.size() > longestName || name.size() > longestName)
        return {};
    // Some programs put the origin of their zone data ahead of the name: "/example.org/20070227_1/Europe/Berlin".
    for (qsizetype from = 0; from < id.size();) {
        const QByteArray part = id.mid(from);
        if (QTimeZone::isTimeZoneIdAvailable(part))
            return QTimeZone(part);
        const qsizetype slash = id.indexOf('/', from);
        from = slash < 0 ? id.size() : slash + 1;
    }
    const QByteArray known = QTimeZone::windowsIdToDefaultIanaId(name);
    return known.isEmpty() ? QTimeZone() : QTimeZone(known);
}

/// When the clocks of a zone first show a time, given as if it were one in UTC. One that they skip is counted from
/// before the skip (RFC 5545, 3.3.5).
Instant firstShowing(qint64 shown, const QTimeZone& zone)
{
    constexpr qint64 day = 86'400'000;
    const auto offsetAt = [&](qint64 moment) {
        return qint64(1000) * zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC));
    };
    const qint64 before = shown - offsetAt(shown - day);
    const qint64 after = shown - offsetAt(shown + day);
    const bool isBefore = before == after || shown - offsetAt(before) == before || shown - offsetAt(after) != after;
    return instantFromUnixMilliseconds(isBefore ? before : after);
}

std::optional<Instant> instantOf(const icaltimetype& time, const QTimeZone& zone)
{
    const QDate date(time.year, time.month, time.day);
    if (!date.isValid() || date.year() < 1600 || date.year() > 9999 || !zone.isValid())
        return std::nullopt;
    if (time.is_date)
        return instantFromUnixMilliseconds(date.startOfDay(zone).toMSecsSinceEpoch());
    const QTime clock(time.hour, time.minute, time.second);
    if (!clock.isValid())
        return std::nullopt;
    return firstShowing(QDateTime(date, clock, Qt::UTC).toMSecsSinceEpoch(), zone);
}

icaldurationtype boundedDuration(Seconds offset)
{
    const auto bounded = std::min<std::int64_t>(std::abs(offset.count()), std::numeric_limits<int>::max());
    return icaldurationtype_from_int(static_cast<int>(offset.count() < 0 ? -bounded : bounded));
}

QByteArray lineOf(icalproperty* property)
{
    char* const text = icalproperty_as_ical_string_r(property);
    const QByteArray line(text);
    icalmemory_free_buffer(text);
    icalproperty_free(property);
    return line;
}

icaltimetype icalTime(Instant instant, bool dateOnly)
{
    const auto zone = dateOnly ? DeviceSettings::timeZone() : QTimeZone::utc();
    const auto moment = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(std::chrono::floor<Seconds>(instant)), zone);
    icaltimetype time = icaltime_null_time();
    time.year = moment.date().year();
    time.month = moment.date().month();
    time.day = moment.date().day();
    time.is_date = dateOnly ? 1 : 0;
    if (!dateOnly) {
        time.hour = moment.time().hour();
        time.minute = moment.time().minute();
        time.second = moment.time().second();
        time.zone = icaltimezone_get_utc_timezone();
    }
    return time;
}

} // namespace

void ICalendarProperty::Release::operator()(icalproperty_impl* property) const
{
    icalproperty_free(property);
}

ICalendarProperty::ICalendarProperty(const QByteArray& line)
{
    prepareLibrary();
    if (!line.contains('\0'))
        m_property.reset(icalproperty_new_from_string(line.constData()));
}

QString ICalendarProperty::text() const
{
    const icalvalue* value = m_property ? icalproperty_get_value(m_property.get()) : nullptr;
    if (!value)
        return {};
    const icalvalue_kind kind = icalvalue_isa(value);
    if (kind == ICAL_TEXT_VALUE)
        return QString::fromUtf8(icalvalue_get_text(value));
    return kind == ICAL_URI_VALUE ? QString::fromUtf8(icalvalue_get_uri(value)) : QString();
}

std::optional<ICalendarMoment> ICalendarProperty::moment(const std::map<QByteArray, QByteArray>& zoneLocations) const
{
    icalvalue* value = m_property ? icalproperty_get_value(m_property.get()) : nullptr;
    if (!value || (icalvalue_isa(value) != ICAL_DATETIME_VALUE && icalvalue_isa(value) != ICAL_DATE_VALUE))
        return std::nullopt;
    const icaltimetype time = icalvalue_get_datetime(value);
    QTimeZone zone = DeviceSettings::timeZone();
    if (icaltime_is_utc(time))
        zone = QTimeZone::utc();
    else if (icalparameter* named = icalproperty_get_first_parameter(m_property.get(), ICAL_TZID_PARAMETER);
             named && !time.is_date)
        zone = zoneNamed(icalparameter_get_tzid(named), zoneLocations);
    const auto instant = instantOf(time, zone);
    return instant ? std::optional(ICalendarMoment{*instant, time.is_date != 0}) : std::nullopt;
}

std::optional<Seconds> ICalendarProperty::duration() const
{
    const icalvalue* value = m_property ? icalproperty_get_value(m_property.get()) : nullptr;
    if (!value || icalvalue_isa(value) != ICAL_DURATION_VALUE)
        return std::nullopt;
    return seconds(icalvalue_get_duration(value));
}

std::optional<Seconds> ICalendarProperty::triggerOffset(Instant eventStart, Instant eventEnd) const
{
    if (!m_property || icalproperty_isa(m_property.get()) != ICAL_TRIGGER_PROPERTY)
        return std::nullopt;
    const icaltriggertype trigger = icalproperty_get_trigger(m_property.get());
    if (!icaltime_is_null_time(trigger.time)) { // fixed moments are in UTC always
        const auto instant = instantOf(trigger.time, QTimeZone::utc());
        return instant ? std::optional(std::chrono::floor<Seconds>(*instant - eventStart)) : std::nullopt;
    }
    const auto offset = icaldurationtype_is_bad_duration(trigger.duration) ? std::nullopt : seconds(trigger.duration);
    if (offset && isRelatedToEnd())
        return *offset + std::chrono::floor<Seconds>(eventEnd - eventStart);
    return offset;
}

bool ICalendarProperty::isRelatedToEnd() const
{
    icalparameter* related = icalproperty_get_first_parameter(m_property.get(), ICAL_RELATED_PARAMETER);
    return related && icalparameter_get_related(related) == ICAL_RELATED_END;
}

QByteArray ICalendarProperty::movedTriggerLine(Seconds offset, Instant eventStart, Instant eventEnd) const
{
    icaltriggertype trigger = icalproperty_get_trigger(m_property.get());
    if (!icaltime_is_null_time(trigger.time))
        trigger.time = icalTime(eventStart + offset, false);
    else if (isRelatedToEnd())
        trigger.duration = boundedDuration(offset - std::chrono::floor<Seconds>(eventEnd - eventStart));
    else
        trigger.duration = boundedDuration(offset);
    icalproperty* moved = icalproperty_new_clone(m_property.get());
    icalproperty_set_trigger(moved, trigger);
    return lineOf(moved);
}

QString ICalendarProperty::cleaned(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c.unicode() >= 0x20 ? c.unicode() != 0x7F : c == u'\n' || c == u'\t')
            result.append(c);
    }
    return result;
}

QByteArray ICalendarProperty::textLine(const char* name, const QString& text)
{
    prepareLibrary();
    icalproperty* property = icalproperty_new(icalproperty_string_to_kind(name));
    icalproperty_set_value(property, icalvalue_new_text(cleaned(text).toUtf8().constData()));
    return lineOf(property);
}

QByteArray ICalendarProperty::urlLine(const URL& url)
{
    prepareLibrary();
    return lineOf(icalproperty_new_url(url.text().toUtf8().constData()));
}

QByteArray ICalendarProperty::momentLine(const char* name, Instant instant, bool dateOnly)
{
    prepareLibrary();
    icalproperty* property = icalproperty_new(icalproperty_string_to_kind(name));
    const icaltimetype time = icalTime(instant, dateOnly);
    icalproperty_set_value(property, dateOnly ? icalvalue_new_date(time) : icalvalue_new_datetime(time));
    return lineOf(property);
}

QByteArray ICalendarProperty::triggerLine(Seconds offset)
{
    prepareLibrary();
    icaltriggertype trigger = {};
    trigger.time = icaltime_null_time();
    trigger.duration = boundedDuration(offset);
    return lineOf(icalproperty_new_trigger(trigger));
}

} // namespace vidora
