#include "alarms/AlarmMinutes.h"
#include "alarms/SilentHours.h"
#include "platform/DeviceSettings.h"

#include <QTemporaryDir>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace vidora {

TEST(AlarmMinutes, NearestStepOrTheRoundedInput)
{
    const std::vector<std::pair<double, std::int64_t>> cases{{4, 5},
                                                             {7, 5},
                                                             {7.5, 10},
                                                             {45, 60},
                                                             {90, 120},
                                                             {300, 300},
                                                             {-3, -1},
                                                             {0.4, 0},
                                                             {-0.4, 0},
                                                             {-0.6, -1},
                                                             {-0.5, -1},
                                                             {0.5, 1},
                                                             {2.5, 3},
                                                             {3.5, 3},
                                                             {4.5, 5},
                                                             {12.4, 10},
                                                             {12.5, 15},
                                                             {44.9, 30},
                                                             {119.4, 120},
                                                             {89.9, 60},
                                                             {120.5, 121},
                                                             {121.4, 121},
                                                             {-1e300, -1},
                                                             {25, 30},
                                                             {1e300, std::numeric_limits<std::int64_t>::max()},
                                                             {std::nan(""), -1}};
    for (const auto& [input, expected] : cases)
        EXPECT_EQ(normalizedMinutes(input), expected) << input;
}

/// A moment of a local time of the device on an ordinary day.
Instant at(const char* time)
{
    const QDateTime date(QDate(2026, 11, 22), QTime::fromString(QLatin1String(time)), DeviceSettings::timeZone());
    return instantFromUnixMilliseconds(date.toMSecsSinceEpoch());
}

class SilentHoursTest : public ::testing::Test
{
protected:
    void set(const char* from, const char* to)
    {
        const QTimeZone zone = DeviceSettings::timeZone();
        hours.setEnabled(true);
        hours.setFromTimestamp(SilentHours::timestampOf(QTime::fromString(QLatin1String(from)), zone));
        hours.setToTimestamp(SilentHours::timestampOf(QTime::fromString(QLatin1String(to)), zone));
    }
    bool silent(const char* time) const { return !hours.mayBeAlarmedAt(at(time)); }

    QTemporaryDir folder;
    KeyValueStore store{folder.filePath(QStringLiteral("cloud.sqlite"))};
    SilentHours hours{store};
};

TEST_F(SilentHoursTest, OnlyTheMinutesStrictlyBetweenAreSilent)
{
    EXPECT_FALSE(silent("03:00:00")); // off
    hours.setEnabled(true);           // midnight to seven unless set
    EXPECT_FALSE(silent("00:00:59"));
    EXPECT_TRUE(silent("00:01:00"));
    EXPECT_TRUE(silent("06:59:59"));
    EXPECT_FALSE(silent("07:00:59"));

    // A period across midnight, or of no length, leaves no time of the day.
    for (const auto& [from, to] : {std::pair("22:00:00", "07:00:00"), std::pair("12:00:00", "12:00:00")}) {
        set(from, to);
        for (const char* time : {"03:00:00", "07:00:00", "12:00:00", "22:00:00", "23:59:00"})
            EXPECT_TRUE(silent(time)) << from << " " << time;
    }
    hours.setEnabled(false);
    EXPECT_FALSE(silent("12:00:00"));
}

TEST_F(SilentHoursTest, AnotherDeviceReadsThePeriodFromTheSharedStore)
{
    set("01:30:00", "05:45:00");
    KeyValueStore elsewhere(folder.filePath(QStringLiteral("cloud.sqlite")));
    const SilentPeriod period = SilentHours(elsewhere).period();
    EXPECT_TRUE(period.enabled);
    EXPECT_EQ(period.from, 90);
    EXPECT_EQ(period.to, 345);

    store.setObject(QStringLiteral("noon"), QStringLiteral("noAlarmsSchedule.0"));
    EXPECT_EQ(hours.period().from, 0); // a value of another kind counts as absent
}

TEST(SilentHours, TimesComeBackInEveryZone)
{
    for (const QByteArray& name : QTimeZone::availableTimeZoneIds()) {
        const QTimeZone zone(name);
        for (int hour = 0; hour < 24; ++hour) {
            const QTime time(hour, 59);
            ASSERT_EQ(SilentHours::timeOf(SilentHours::timestampOf(time, zone), zone), time) << name.constData();
        }
    }
}

} // namespace vidora
