#include "alarms/SilentHours.h"

#include "platform/DeviceSettings.h"

#include <QDateTime>

namespace vidora {

namespace {

const QString enabledKey = QStringLiteral("noAlarmsSchedule");
const QString fromKey = QStringLiteral("noAlarmsSchedule.0");
const QString toKey = QStringLiteral("noAlarmsSchedule.1");

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
    return m_keyValueStore.boolForKey(enabledKey);
}

void SilentHours::setEnabled(bool enabled)
{
    m_keyValueStore.setObject(enabled, enabledKey);
}

Instant SilentHours::fromTimestamp() const
{
    return timestamp(fromKey, QTime(0, 0));
}

void SilentHours::setFromTimestamp(Instant date)
{
    m_keyValueStore.setObject(dateValue(date), fromKey);
}

Instant SilentHours::toTimestamp() const
{
    return timestamp(toKey, QTime(7, 0));
}

void SilentHours::setToTimestamp(Instant date)
{
    m_keyValueStore.setObject(dateValue(date), toKey);
}

Instant SilentHours::timestamp(const QString& key, QTime unset) const
{
    const auto value = m_keyValueStore.objectForKey(key);
    const QDateTime date = value ? value->toDateTime() : QDateTime();
    return date.isValid() ? instantFromUnixMilliseconds(date.toMSecsSinceEpoch())
                          : timestampOf(unset, DeviceSettings::timeZone());
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
