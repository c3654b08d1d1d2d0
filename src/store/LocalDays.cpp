#include "store/LocalDays.h"

#include "platform/DeviceSettings.h"

#include <QDateTime>

namespace vidora {

namespace {

// Zones stand off UTC by multiples of a quarter of an hour and change at them, so an hour of the day is whole quarters.
constexpr Milliseconds quarter = std::chrono::minutes(15);

Instant startOf(const QDate& day, const QTimeZone& zone)
{
    return instantFromUnixMilliseconds(day.startOfDay(zone).toMSecsSinceEpoch());
}

} // namespace

LocalDays::LocalDays()
    : m_zone(DeviceSettings::timeZone())
    , m_locale(DeviceSettings::locale())
{
}

const QString& LocalDays::dayKey(Instant instant)
{
    if (!m_day.holds(instant)) {
        const QDate day = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(instant), m_zone).date();
        m_day = {startOf(day, m_zone), startOf(day.addDays(1), m_zone)};
        m_dayKey = m_locale.toString(day, QLocale::LongFormat);
    }
    return m_dayKey;
}

int LocalDays::hour(Instant instant)
{
    if (!m_quarter.holds(instant)) {
        const Instant begin = std::chrono::floor<std::chrono::duration<std::int64_t, std::ratio<900>>>(instant);
        m_quarter = {begin, begin + quarter};
        m_hour = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(begin), m_zone).time().hour();
    }
    return m_hour;
}

} // namespace vidora
