#pragma once

#include "calendar/EventStore.h"
#include "support/ChildProcess.h"
#include "support/RawFiles.h"
#include "support/Seams.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vidora::test {

inline Instant moment(const char* text)
{
    return *instantFromIsoText(QString::fromLatin1(text));
}

inline Event broadcast(const Calendar& calendar, const QString& title, Instant start, int minutes = 10)
{
    Event event;
    event.title = title;
    event.location = QStringLiteral("Lipa 1");
    const QString address = QStringLiteral("vidora://lipa/%1-%2").arg(title).arg(unixSeconds(start));
    event.url = URL::fromText(address);
    event.startDate = start;
    event.endDate = start + std::chrono::minutes(45);
    event.calendar = calendar;
    event.alarms = {EventAlarm::alarmWithRelativeOffset(Seconds(-60 * minutes))};
    return event;
}

/// All .ics files of a folder by name.
inline std::map<QString, QByteArray> filesOf(const QString& folder)
{
    std::map<QString, QByteArray> files;
    for (const QString& name : QDir(folder).entryList({QStringLiteral("*.ics")}, QDir::Files))
        files[name] = readRaw(folder + QLatin1Char('/') + name);
    return files;
}

/// An event as some other program writes it: with what this program doesn't know.
inline QByteArray foreignEvent(const QByteArray& uid, const QByteArray& start, const QByteArray& more = {})
{
    return "BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Other//EN\nX-WR-CALNAME:theirs\nBEGIN:VEVENT\nuid:" + uid +
           "\nDTSTAMP:20260101T000000Z\nDTSTART:" + start +
           "\nDURATION:PT1H\nSUMMARY:Dentist\\, \xC3\xA9tage 2\nDESCRIPTION:a long\n  folded line\n" + more +
           "X-UNKNOWN;X-P=\"a;b\":  kept \nATTENDEE;CN=A:mailto:a@example.org\nEND:VEVENT\nEND:VCALENDAR\n";
}

/// What an independent calendar program shows of a folder: a line of "start title|place" for each event in the
/// twelve days from 2026-11-22.
inline QStringList linesOfKhal(const QString& folder)
{
    QTemporaryDir home;
    const QString conf = home.filePath(QStringLiteral("khal.conf"));
    writeRaw(conf,
             "[calendars]\n[[tv]]\npath = " + folder.toUtf8() +
                 "\n[locale]\nlocal_timezone = UTC\ndefault_timezone = UTC\ntimeformat = %H:%M\n"
                 "dateformat = %Y-%m-%d\nlongdateformat = %Y-%m-%d\ndatetimeformat = %Y-%m-%d %H:%M\n"
                 "longdatetimeformat = %Y-%m-%d %H:%M\n[default]\nhighlight_event_days = False\n[sqlite]\npath = " +
                 home.filePath(QStringLiteral("khal.db")).toUtf8() + "\n");
    const QString output = home.filePath(QStringLiteral("output"));
    ChildProcess khal({"khal", "-c", conf.toUtf8(), "list", "--once", "--day-format", "", "--format",
                       "{start-long} {title}|{location}|{alarm-symbol}", "2026-11-22", "12d"},
                      output);
    EXPECT_EQ(khal.wait(), 0) << readRaw(output).toStdString();
    return QString::fromUtf8(readRaw(output)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace vidora::test
