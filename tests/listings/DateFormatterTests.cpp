#include "listings/DateFormatter.h"

#include <gtest/gtest.h>

using namespace vidora;

namespace {

std::string parsed(const DateFormatter& formatter, QStringView text)
{
    const auto date = formatter.date(text);
    return date ? isoText(*date).toStdString() : "nothing";
}

DateFormatter make(const char* format, const char* zone)
{
    return DateFormatter(QString::fromLatin1(format), QTimeZone(zone));
}

struct Row
{
    const char* format;
    const char* zone;
    QStringView text;
    const char* date;
};

TEST(DateFormatter, ReadsWhatFitsAndNothingElse)
{
    const Row rows[] = {
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"05.01.2026 20:15", "2026-01-05T19:15:00Z"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"5.1.2026 9:05", "2026-01-05T08:05:00Z"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"05.01.2026  9:05", "2026-01-05T08:05:00Z"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"29.02.2028 00:00", "2028-02-28T23:00:00Z"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"29.02.2026 00:00", "nothing"},
        {"yyyyMMddHHmmss Z", "UTC", u"20260105201500 -235959", "2026-01-06T20:14:59Z"},
        {"yyyyMMddHHmmss Z", "UTC", u"20260105201500 -2360", "nothing"},
        {"yyyyMMddHHmmss Z", "UTC", u"20260105201500 -2400", "nothing"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"31.02.2026 20:15", "nothing"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"05.13.2026 20:15", "nothing"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"05.01.2026 24:00", "nothing"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"05.01.2026 20:60", "nothing"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"05.01.2026 20:15 ", "nothing"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"x05.01.2026 20:15", "nothing"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"05-01-2026 20:15", "nothing"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"05.01.99999999999999999999 20:15", "nothing"},
        {"dd.MM.yyyy HH:mm", "Europe/Prague", u"", "nothing"},
        {"yyyyMMddHH:mm", "Europe/Bucharest", u"2026123123:59", "2026-12-31T21:59:00Z"},
        {"yyyyMMddHH:mm", "Europe/Bucharest", u"202612319:59", "2026-12-31T07:59:00Z"},
        {"yyyyMMddHH:mm", "Europe/Bucharest", u"20261231009:59", "nothing"},
        {"yyyyMMddHH:mm", "Europe/Bucharest", u"20261231 9:59", "nothing"},
        {"yyyyMMddHH:mm", "Europe/Bucharest", u"20261231:59", "nothing"},
        {"yyyy-MM-dd'T'HH:mm", "Europe/Prague", u"2026-07-01T12:00", "2026-07-01T10:00:00Z"},
        {"yyyy-MM-dd'T'HH:mm", "Europe/Prague", u"2026-07-01 12:00", "nothing"},
        {"yyyy-MM-dd'T'HH:mm:ssZZZZZ", "UTC", u"2026-07-01T12:00:07+01:00", "2026-07-01T11:00:07Z"},
        {"yyyy-MM-dd'T'HH:mm:ssZZZZZ", "UTC", u"2026-07-01T12:00:07-0330", "2026-07-01T15:30:07Z"},
        {"yyyy-MM-dd'T'HH:mm:ssZZZZZ", "UTC", u"2026-07-01T12:00:07+02", "2026-07-01T10:00:07Z"},
        {"yyyy-MM-dd'T'HH:mm:ssZZZZZ", "UTC", u"2026-07-01T12:00:07Z", "2026-07-01T12:00:07Z"},
        {"yyyy-MM-dd'T'HH:mm:ssZZZZZ", "UTC", u"2026-07-01T12:00:07", "nothing"},
        {"yyyy-MM-dd'T'HH:mm:ssZZZZZ", "UTC", u"2026-07-01T12:00:07+1", "nothing"},
        {"yyyy-MM-dd'T'HH:mm:ssZZZZZ", "UTC", u"2026-07-01T12:00:07+01:", "nothing"},
        {"yyyy-MM-dd'T'HH:mm:ssZZZZZ", "UTC", u"2026-07-01T12:00:07+25:00", "nothing"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(parsed(make(row.format, row.zone), row.text), row.date) << row.text.toString().toStdString();
}

TEST(DateFormatter, ClockChanges)
{
    const DateFormatter prague = make("yyyy-MM-dd HH:mm:ss", "Europe/Prague");
    const struct
    {
        QStringView text;
        const char* date;
    } rows[] = {
        {u"2026-03-29 01:59:59", "2026-03-29T00:59:59Z"}, {u"2026-03-29 02:30:00", "2026-03-29T01:30:00Z"}, // skipped
        {u"2026-03-29 03:00:00", "2026-03-29T01:00:00Z"}, {u"2026-10-25 01:59:59", "2026-10-24T23:59:59Z"},
        {u"2026-10-25 02:30:00", "2026-10-25T01:30:00Z"}, // twice
        {u"2026-10-25 03:00:00", "2026-10-25T02:00:00Z"}, {u"2026-10-26 00:00:00", "2026-10-25T23:00:00Z"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(parsed(prague, row.text), row.date) << row.text.toString().toStdString();

    // Whatever order dates come in, what was remembered of one day is not used for another.
    const QTimeZone zone("Europe/Prague");
    for (std::int64_t hour = 0; hour < 24 * 365; hour += 5) {
        const Instant instant{Seconds((hour * 7919) % (24 * 365) * 3600 + 1'767'225'600)};
        const QString text = prague.text(instant);
        EXPECT_EQ(
            text,
            QDateTime::fromSecsSinceEpoch(unixSeconds(instant), zone).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
        const auto back = prague.date(text);
        ASSERT_TRUE(back);
        EXPECT_TRUE(*back == instant || *back == instant + Seconds(3600)) << text.toStdString();
    }
}

TEST(DateFormatter, Writes)
{
    const Instant instant = *instantFromIsoText(u"2026-03-01T23:05:09Z");
    const struct
    {
        const char* format;
        const char* zone;
        const char* text;
    } rows[] = {
        {"yyyyMMdd'T'HH:mmZZZZZ", "Europe/Bratislava", "20260302T00:05+01:00"},
        {"yyyyMMdd'T'HH:mmZZZZZ", "America/St_Johns", "20260301T19:35-03:30"},
        {"yyyyMMdd'T'HH:mmZZZZZ", "UTC", "20260301T23:05Z"},
        {"d-M-yyyy", "Europe/Bratislava", "2-3-2026"},
        {"MM/dd", "Europe/Budapest", "03/02"},
        {"dd.MM.", "UTC", "01.03."},
    };
    for (const auto& row : rows)
        EXPECT_EQ(make(row.format, row.zone).text(instant).toStdString(), row.text);
    EXPECT_EQ(make("yyyy-MM-dd HH:mm:ss", "UTC").text(Instant(Milliseconds(-1))).toStdString(), "1969-12-31 23:59:59");
}

} // namespace
