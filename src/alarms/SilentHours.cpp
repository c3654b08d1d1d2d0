#include "alarms/SilentHours.h"

#include "platform/DeviceSettings.h"

#include <QDateTime>

namespace vidora {

namespace {

int minutesOf(QTime time)
{
    return time.hour() * 60 + time.minute();
}

QCborValue dateValue(Instant date)
{
    return QCborValue(QDateTime::fromMSecsSinceEpoch(unixMilliseconds(date), Qt::UTC));
}

} // namespace

bool SilentPeriod::mayBeAlarmedAt(Instant date) const
{
    if (!enabled)
        return true;
    const int minute = minutesOf(SilentHours::timeOf(date, zone));
    const bool isInside = from < minute && minute < to;
    return from < to ? !isInside : isInside;
}

bool SilentHours::enabled() const
{
    return m_keyValueStore.boolForKey(setting::silentHours.name());
}

void SilentHours::setEnabled(bool enabled)
{
    m_keyValueStore.setObject(enabled, setting::silentHours.name());
}

Instant SilentHours::fromTimestamp() const
{
    return timestamp(setting::silentHoursFrom);
}

void SilentHours::setFromTimestamp(Instant date)
{
    m_keyValueStore.setObject(dateValue(date), setting::silentHoursFrom.name());
}

Instant SilentHours::toTimestamp() const
{
    return timestamp(setting::silentHoursTo);
}

void SilentHours::setToTimestamp(Instant date)
{
    m_keyValueStore.setObject(dateValue(date), setting::silentHoursTo.name());
}

Instant SilentHours::timestamp(const Setting& setting) const
{
    const auto value = m_keyValueStore.objectForKey(setting.name());
    const QDateTime date = value ? value->toDateTime() : QDateTime();
    return date.isValid() ? instantFromUnixMilliseconds(date.toMSecsSinceEpoch())
                          : timestampOf(QTime::fromString(setting.usualText()), DeviceSettings::timeZone());
}

SilentPeriod SilentHours::period() const
{
    if (!enabled())
        return {};
    const QTimeZone zone = DeviceSettings::timeZone();
    return {true, minutesOf(timeOf(fromTimestamp(), zone)), minutesOf(timeOf(toTimestamp(), zone)), zone};
}

Instant SilentHours::timestampOf(QTime time, const QTimeZone& zone)
{
    static const QDate day(2001, 1, 1);
    return instantFromUnixMilliseconds(QDateTime(day, time, zone).toMSecsSinceEpoch());
}

QTime SilentHours::timeOf(Instant date, const QTimeZone& zone)
{
    return QDateTime::fromMSecsSinceEpoch(unixMilliseconds(date), zone).time();
}

} // namespace vidora
