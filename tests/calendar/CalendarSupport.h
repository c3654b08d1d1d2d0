#pragma once

#include "calendar/EventStore.h"
#include "platform/AtomicFile.h"
#include "platform/Clock.h"
#include "support/ChildProcess.h"
#include "support/RawFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <gtest/gtest.h>
#include <random>

namespace vidora::testing {

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

/// Chance that is the same in each run.
class SeededRandom final : public Random
{
public:
    explicit SeededRandom(unsigned seed)
        : m_engine(seed)
    {
    }
    std::uint32_t uniform(std::uint32_t bound) override { return static_cast<std::uint32_t>(m_engine() % bound); }

private:
    std::mt19937_64 m_engine;
};

/// Fails at the given step, or loses everything from there on, as a kill does.
class FaultyLayer final : public FileLayer
{
public:
    int failingStep = -1;
    bool killed = false;
    bool kills = false;
    int steps = 0;

    int create(const QString& path, unsigned mode, int& d) override
    {
        return fails() ? ENOSPC : system().create(path, mode, d);
    }
    int write(int d, QByteArrayView bytes) override
    {
        if (!fails())
            return system().write(d, bytes);
        system().write(d, bytes.first(bytes.size() / 2));
        return ENOSPC;
    }
    int sync(int d) override { return fails() ? EIO : system().sync(d); }
    int close(int d) override
    {
        const bool failed = fails();
        system().close(d);
        return failed ? EIO : 0;
    }
    int rename(const QString& from, const QString& to) override { return fails() ? EIO : system().rename(from, to); }
    int syncFolder(const QString& folder) override { return fails() ? EIO : system().syncFolder(folder); }
    int remove(const QString& path) override { return fails() ? EIO : system().remove(path); }

private:
    bool fails()
    {
        if (steps++ == failingStep)
            killed = kills;
        return killed || steps - 1 == failingStep;
    }
};

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

} // namespace vidora::testing
