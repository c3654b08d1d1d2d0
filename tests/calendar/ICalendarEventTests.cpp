#include "CalendarSupport.h"
#include "calendar/EventMerge.h"
#include "calendar/ICalendarEvent.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

using test::foreignEvent;
using test::moment;

const Instant now = moment("2026-11-22T12:00:00Z");

QByteArray document(const QByteArray& properties)
{
    return "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:u\r\n" + properties + "END:VEVENT\r\nEND:VCALENDAR\r\n";
}

TEST(ICalendarEvent, ReadsMomentsInEveryForm)
{
    struct Case
    {
        QByteArray properties;
        const char* start;
        const char* end;
        bool allDay;
    };
    const std::vector<Case> cases{
        {"DTSTART:20261122T190000Z\r\nDTEND:20261122T200000Z\r\n", "2026-11-22T19:00:00Z", "2026-11-22T20:00:00Z",
         false},
        {"DTSTART;TZID=Europe/Berlin:20260701T190000\r\nDURATION:PT30M\r\n", "2026-07-01T17:00:00Z",
         "2026-07-01T17:30:00Z", false},
        {"DTSTART;TZID=/example.org/2007/Europe/Berlin:20261201T190000\r\n", "2026-12-01T18:00:00Z",
         "2026-12-01T18:00:00Z", false},
        {"DTSTART;TZID=\"W. Europe Standard Time\":20261201T190000\r\n", "2026-12-01T18:00:00Z", "2026-12-01T18:00:00Z",
         false},
        // A time that the clocks skip counts from before the skip, one that they show twice is the first (RFC
        // 5545, 3.3.5).
        {"DTSTART;TZID=Europe/Berlin:20260329T023000\r\n", "2026-03-29T01:30:00Z", "2026-03-29T01:30:00Z", false},
        {"DTSTART;TZID=Europe/Berlin:20261025T023000\r\nDURATION:PT1H\r\n", "2026-10-25T00:30:00Z",
         "2026-10-25T01:30:00Z", false},
        {"DTSTART;TZID=Europe/Berlin:20261025T013000\r\nDTEND;TZID=Europe/Berlin:20261025T033000\r\n",
         "2026-10-24T23:30:00Z", "2026-10-25T02:30:00Z", false},
        {"DTSTART;VALUE=DATE:20261101\r\n", "2026-11-01T02:30:00Z", "2026-11-02T03:30:00Z", true}, // a day of 25 hours
        {"DTSTART:20261201T190000\r\n", "2026-12-01T22:30:00Z", "2026-12-01T22:30:00Z", false},    // the device's zone
        {"DTSTART;VALUE=DATE:20261201\r\n", "2026-12-01T03:30:00Z", "2026-12-02T03:30:00Z", true},
        {"DTSTART:2026112\r\n 2T190000Z\r\nDTEND:20261122T180000Z\r\n", "2026-11-22T19:00:00Z", "2026-11-22T19:00:00Z",
         false}, // folded; an end ahead of the start
    };
    for (const Case& each : cases) {
        const auto read = ICalendarEvent::read(document(each.properties));
        ASSERT_TRUE(read) << each.properties.toStdString();
        EXPECT_EQ(isoText(read->event.startDate).toStdString(), each.start) << each.properties.toStdString();
        EXPECT_EQ(isoText(read->event.endDate).toStdString(), each.end) << each.properties.toStdString();
        EXPECT_EQ(read->event.allDay, each.allDay);
    }
}

TEST(ICalendarEvent, ReadsAlarmsAsOffsetsFromTheStart)
{
    const auto alarm = [](const QByteArray& trigger) -> QByteArray {
        return "BEGIN:VALARM\r\nACTION:AUDIO\r\n" + trigger + "\r\nEND:VALARM\r\n";
    };
    const auto read = ICalendarEvent::read(
        document("DTSTART:20261122T190000Z\r\nDTEND:20261122T200000Z\r\n" + alarm("TRIGGER:-PT10M") +
                 alarm("TRIGGER;RELATED=END:-PT15M") + alarm("TRIGGER;VALUE=DATE-TIME:20261122T183000Z") +
                 alarm("TRIGGER:junk") + alarm("X-NONE:1") + alarm("TRIGGER:P1W") + alarm("TRIGGER:P99999999999W")));
    ASSERT_TRUE(read);
    std::vector<std::int64_t> offsets;
    for (const EventAlarm& each : read->event.alarms)
        offsets.push_back(each.relativeOffset.count());
    offsets.resize(4); // what becomes of the last one is the library's business
    EXPECT_EQ(offsets, (std::vector<std::int64_t>{-600, 2700, -1800, 604'800}));
}

TEST(ICalendarEvent, FindsNoEventInWhatIsBroken)
{
    const QByteArray whole = document("DTSTART:20261122T190000Z\r\n");
    ASSERT_TRUE(ICalendarEvent::read(whole));
    const std::vector<QByteArray> broken{"",
                                         "<html></html>",
                                         whole.left(whole.size() - 20),
                                         QByteArray(whole).replace("UID:u\r\n", ""),
                                         document(""),
                                         document("DTSTART:20261322T190000Z\r\n"),
                                         document("DTSTART:20261122T250000Z\r\n"),
                                         document("DTSTART;TZID=Nowhere/Atall:20261122T190000\r\n"),
                                         document("DTSTART:soon\r\n"),
                                         document("DTSTART:20261122T190000Z\r\nEND:VALARM\r\n"),
                                         QByteArray("BEGIN:VCALENDAR\n").repeated(50'000),
                                         QByteArray(whole).replace("VEVENT", "VTODO"),
                                         whole + QByteArray(1024 * 1024, ' ')};
    for (const QByteArray& each : broken)
        EXPECT_FALSE(ICalendarEvent::read(each)) << each.left(200).toStdString();
    for (const char* series :
         {"RRULE:FREQ=SECONDLY\r\n", "RDATE:20261123T190000Z\r\n", "RECURRENCE-ID:20261122T190000Z\r\n"}) {
        const auto read = ICalendarEvent::read(document(QByteArray("DTSTART:20261122T190000Z\r\n") + series));
        EXPECT_TRUE(read && !read->single) << series;
    }
}

TEST(ICalendarEvent, WritesWhatItReads)
{
    const QString title = QStringLiteral("Dnevnik; \"2\", čaj \\n \U0001F4FA ") + QString(200, QLatin1Char('x')) +
                          QStringLiteral("\nBEGIN:VALARM");
    for (const QString& each :
         {title, QString(), QStringLiteral("a\r\0b\x01\x7F"), QString::fromUtf8("\xC5\xA1").repeated(90)}) {
        Event event = test::broadcast({}, each, moment("2026-11-22T19:00:00Z"));
        const QByteArray bytes = ICalendarEvent::write(QStringLiteral("id"), event, now);
        const auto read = ICalendarEvent::read(bytes);
        ASSERT_TRUE(read) << bytes.toStdString();
        const QString held =
            QString(each).remove(QLatin1Char('\r')).remove(QChar(u'\0')).remove(QChar(u'\x01')).remove(QChar(u'\x7F'));
        EXPECT_EQ(read->event.title, held);
        EXPECT_EQ(read->event.url, event.url);
        EXPECT_EQ(read->event.alarms, event.alarms);
        EXPECT_EQ(read->event.endDate, event.endDate);
        EXPECT_EQ(ICalendarEvent::change(bytes, event, now), std::nullopt);
        for (const QByteArray& line : bytes.split('\n'))
            EXPECT_LE(line.size(), 76);
    }
}

TEST(ICalendarEvent, ChangesItsOwnPropertiesAndNothingElse)
{
    const QByteArray alarms = "BEGIN:VALARM\nACTION:AUDIO\nX-SOUND:bell\nTRIGGER:-PT5M\nEND:VALARM\n"
                              "BEGIN:VALARM\nACTION:DISPLAY\nTRIGGER:-PT10M\nEND:VALARM\n";
    const QByteArray before = foreignEvent("x", "20261122T190000Z", alarms);
    Event event = ICalendarEvent::read(before)->event;
    event.title = QStringLiteral("Moved");
    event.startDate += std::chrono::minutes(30);
    event.endDate += std::chrono::minutes(30);
    event.location = QStringLiteral("Lipa 2");
    event.alarms = {event.alarms[0], EventAlarm{Seconds(-1800)}};
    const auto after = ICalendarEvent::change(before, event, now);
    ASSERT_TRUE(after);
    const QByteArray expected =
        "BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Other//EN\nX-WR-CALNAME:theirs\nBEGIN:VEVENT\n"
        "DTEND:20261122T203000Z\nLOCATION:Lipa 2\nuid:x\nDTSTAMP:20261122T120000Z\nDTSTART:20261122T193000Z\n"
        "SUMMARY:Moved\nDESCRIPTION:a long\n  folded line\n"
        "BEGIN:VALARM\nACTION:AUDIO\nX-SOUND:bell\nTRIGGER:-PT5M\nEND:VALARM\n"
        "X-UNKNOWN;X-P=\"a;b\":  kept \nATTENDEE;CN=A:mailto:a@example.org\n"
        "BEGIN:VALARM\nACTION:DISPLAY\nDESCRIPTION:Moved\nTRIGGER:-PT30M\nEND:VALARM\nEND:VEVENT\nEND:VCALENDAR\n";
    EXPECT_EQ(after->toStdString(), expected.toStdString());
}

/// An alarm keeps its time ahead of the start, in whatever form it says so.
TEST(ICalendarEvent, AlarmsOfEveryFormFollowAMove)
{
    const QByteArray before =
        foreignEvent("x", "20261122T190000Z",
                     "BEGIN:VALARM\nACTION:AUDIO\nTRIGGER;VALUE=DATE-TIME;X-P=1:20261122T184500Z\nX-SOUND:bell\n"
                     "END:VALARM\nBEGIN:VALARM\nACTION:DISPLAY\nTRIGGER;RELATED=END:-PT1H20M\nEND:VALARM\n"
                     "BEGIN:VALARM\nACTION:DISPLAY\nTRIGGER:-PT5M\nEND:VALARM\n");
    Event event = ICalendarEvent::read(before)->event;
    const std::vector<EventAlarm> alarms{{Seconds(-900)}, {Seconds(-1200)}, {Seconds(-300)}};
    ASSERT_EQ(event.alarms, alarms);
    event.startDate += std::chrono::minutes(90);
    event.endDate += std::chrono::minutes(120);
    const auto after = ICalendarEvent::change(before, event, now);
    ASSERT_TRUE(after);
    EXPECT_EQ(ICalendarEvent::read(*after)->event.alarms, alarms);
    for (const char* line : {"TRIGGER;VALUE=DATE-TIME;X-P=1:20261122T201500Z\nX-SOUND:bell\n",
                             "TRIGGER;RELATED=END:-PT1H50M\n", "TRIGGER:-PT5M\n"})
        EXPECT_TRUE(after->contains(line)) << line << after->toStdString();
}

/// A name of many parts once took time with the square of its length.
TEST(ICalendarEvent, AZoneOfAnyNameCostsLittle)
{
    const auto inZone = [](const QByteArray& name) {
        return ICalendarEvent::read(
            foreignEvent("x", "X").replace("DTSTART:X", QByteArray("DTSTART;TZID=" + name + ":20261122T190000")));
    };
    EXPECT_FALSE(inZone(QByteArray("a/").repeated(250'000) + "Europe/Berlin"));
    EXPECT_TRUE(inZone("/example.org/20070227_1/America/Argentina/Buenos_Aires"));
}

TEST(EventMerge, KeepsWhatEitherSideChanged)
{
    const Event base = test::broadcast({}, QStringLiteral("Film"), moment("2026-11-22T19:00:00Z"));
    Event ours = base, theirs = base;
    ours.startDate += Seconds(600);
    ours.alarms = {{Seconds(-300)}};
    theirs.location = QStringLiteral("Sofa");
    theirs.endDate += Seconds(60);
    theirs.alarms = {{Seconds(-600)}, {Seconds(-7200)}};
    const Event both = merged(base, ours, theirs);
    EXPECT_EQ(both.startDate, ours.startDate);
    EXPECT_EQ(both.endDate, ours.endDate);
    EXPECT_EQ(both.location, QStringLiteral("Sofa"));
    EXPECT_EQ(both.alarms, (std::vector<EventAlarm>{{Seconds(-7200)}, {Seconds(-300)}}));
    EXPECT_TRUE(sameContent(merged(base, base, theirs), theirs));
    EXPECT_EQ(laidOver(ours, theirs).alarms, (std::vector<EventAlarm>{{Seconds(-300)}, {Seconds(-7200)}}));
    ours.alarms = {{Seconds(-7200)}};
    EXPECT_EQ(laidOver(ours, theirs).alarms, (std::vector<EventAlarm>{{Seconds(-7200)}})) << "once";
}

} // namespace
} // namespace vidora
