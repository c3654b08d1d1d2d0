// From the provider's page to the calendar as another program sees it: a region that changes its mind, on both kinds of
// calendar.
#include "RegionDevice.h"
#include "calendar/CalDAVEventStore.h"
#include "calendar/CalDAVServer.h"
#include "calendar/FolderEventStore.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vidora {
namespace {

using namespace test;
using std::chrono::minutes;
using test::RegionDevice;
using test::SourcedChannel;

const QString news = QStringLiteral("Dnevnik dana");
const QString noon = QStringLiteral("Vesti u podne");
const QString renamed = QStringLiteral("Veliki dnevnik");
const SourcedChannel lipa{QStringLiteral("Lipa 1"), {QStringLiteral("n.lipa1.rs")}, QStringLiteral("sr")};

/// A kind of calendar, and the folder in which the rest of the world sees it.
class Calendars
{
public:
    virtual ~Calendars() = default;
    virtual std::unique_ptr<EventStore> open(const Clock& clock) = 0;
    virtual QString folder() const = 0;
    virtual int requests() const { return 0; }

protected:
    ScriptedRandom m_random = ScriptedRandom::seeded(3);
    QTemporaryDir m_home;
};

class FolderCalendars final : public Calendars
{
public:
    std::unique_ptr<EventStore> open(const Clock& clock) override
    {
        return std::make_unique<FolderEventStore>(m_home.path(), QStringLiteral("This device"), clock, m_random);
    }
    QString folder() const override { return m_home.filePath(QStringLiteral("vidora")); }
};

class ServerCalendars final : public Calendars
{
public:
    ServerCalendars() { qputenv("no_proxy", "127.0.0.1"); }
    std::unique_ptr<EventStore> open(const Clock& clock) override
    {
        return std::make_unique<CalDAVEventStore>(
            m_home.filePath(QString::number(++m_devices)), QStringLiteral("Work"),
            CalDAVAccount{m_server.address(), QStringLiteral("ana"), QStringLiteral("s3cret")}, m_session, clock,
            m_random, m_sleeper);
    }
    QString folder() const override { return m_server.calendar("home"); }
    int requests() const override { return m_session.requests; }

private:
    CalDAVServer m_server;
    NetworkURLSession m_network{32 * 1024 * 1024};
    FaultySession m_session{m_network};
    ScriptedSleeper m_sleeper;
    int m_devices = 0;
};

class CalendarOverRegion : public ::testing::TestWithParam<const char*>
{
protected:
    /// A file's bytes, and which file it is: one that is written anew is another one.
    using Files = std::map<QString, std::pair<QByteArray, ino_t>>;

    std::unique_ptr<RegionDevice> device()
    {
        auto made = std::make_unique<RegionDevice>(std::vector{lipa},
                                                   [this](const Clock& clock) { return calendars->open(clock); });
        EXPECT_EQ(made->update(), QStringList());
        made->settleCalendar();
        for (const QString& title : {news, noon})
            favourite(*made, title);
        return made;
    }
    static void favourite(RegionDevice& device, const QString& title)
    {
        device.delegate->alarmEngine().addFavorite(title);
        device.delegate->alarmEngine().setAlarmForTitle(title, 10, std::nullopt, true);
        device.settleCalendar();
    }
    /// Events of others, which stay as they are whatever happens.
    void putForeign()
    {
        foreign[QStringLiteral("dentist.ics")] = foreignEvent("d", "20261124T083000Z");
        foreign[QStringLiteral("series.ics")] = foreignEvent("s", "20261123T083000Z", "RRULE:FREQ=DAILY;COUNT=3\n");
        foreign[QStringLiteral("namesake.ics")] =
            foreignEvent("n", "20261123T183000Z").replace("Dentist\\, \xC3\xA9tage 2", news.toUtf8());
        for (const auto& [name, bytes] : foreign)
            writeRaw(calendars->folder() + QLatin1Char('/') + name, bytes);
    }
    /// Our events by the names of their files, after a look at all others.
    Files ours() const
    {
        Files files;
        auto present = filesOf(calendars->folder());
        for (const auto& [name, bytes] : foreign)
            EXPECT_EQ(present[name].toStdString(), bytes.toStdString());
        for (const auto& [name, bytes] : present) {
            struct stat status = {};
            const QString path = calendars->folder() + QLatin1Char('/') + name;
            EXPECT_EQ(::stat(QFile::encodeName(path), &status), 0);
            if (!foreign.contains(name))
                files[name] = {bytes, status.st_ino};
        }
        return files;
    }
    static std::string text(Instant start, const QString& title)
    {
        return QString(isoText(start) + QLatin1Char(' ') + title).toStdString();
    }
    static std::multiset<std::string> titlesAndStarts(const Files& files)
    {
        std::multiset<std::string> result;
        for (const auto& [name, file] : files) {
            const auto read = ICalendarEvent::read(file.first);
            EXPECT_TRUE(read && read->event.alarms == std::vector{EventAlarm{Seconds(-600)}}) << name.toStdString();
            if (read)
                result.insert(text(read->event.startDate, read->event.title));
        }
        return result;
    }
    /// The coming broadcasts of these titles, as the device's own lists have them.
    static std::multiset<std::string> broadcasts(RegionDevice& device, const QStringList& titles, minutes by = {})
    {
        std::multiset<std::string> result;
        for (const Show& show : device.shows(lipa)) {
            const TVEntry& entry = *show->entry;
            if (titles.contains(*entry.title()) && *entry.dateTime() > device.region.clock.now())
                result.insert(text(*entry.dateTime() + by, *entry.title()));
        }
        return result;
    }
    static std::set<QString> namesOf(const Files& files)
    {
        std::set<QString> names;
        for (const auto& [name, file] : files)
            names.insert(name);
        return names;
    }

    const std::unique_ptr<Calendars> calendars = GetParam() == std::string("folder")
                                                     ? std::unique_ptr<Calendars>(std::make_unique<FolderCalendars>())
                                                     : std::make_unique<ServerCalendars>();
    std::map<QString, QByteArray> foreign;
};

TEST_P(CalendarOverRegion, FollowsWhateverTheProviderDoes)
{
    const auto device = this->device();
    putForeign();
    const Files first = ours();
    const auto planned = broadcasts(*device, {news, noon});
    ASSERT_GT(planned.size(), 3U);
    EXPECT_EQ(titlesAndStarts(first), planned);

    const auto moved = [&] {
        auto result = broadcasts(*device, {news}, minutes(30));
        result.merge(broadcasts(*device, {noon}));
        return result;
    }();
    device->updateLater({"Dnevnik dana=move:30"});
    const Files after = ours();
    EXPECT_EQ(titlesAndStarts(after), moved);
    EXPECT_EQ(namesOf(after), namesOf(first)) << "the same events, moved";
    std::multiset<std::string> read;
    for (const QString& line : linesOfKhal(calendars->folder())) {
        const QString title = line.mid(17).section(QLatin1Char('|'), 0, 0);
        if (line.contains(QStringLiteral("|Lipa 1|")))
            read.insert(text(moment(QString(line.left(10) + QLatin1Char('T') + line.mid(11, 5) + QStringLiteral(":00Z"))
                                        .toLatin1()
                                        .constData()),
                             title));
    }
    EXPECT_EQ(read, moved) << "as another program reads it";

    const int requests = calendars->requests();
    device->updateLater({"Dnevnik dana=move:30", "Dnevnik dana=twice"});
    EXPECT_EQ(ours(), after) << "shown twice is shown once, and nothing to change writes nothing";
    EXPECT_LE(calendars->requests() - requests, 3) << "for three calendars";

    device->updateLater({"Dnevnik dana=drop"});
    EXPECT_EQ(titlesAndStarts(ours()), broadcasts(*device, {noon}));
    device->updateLater({});
    EXPECT_EQ(titlesAndStarts(ours()), planned);
    device->updateLater({"Dnevnik dana=rename:Veliki dnevnik"});
    EXPECT_EQ(titlesAndStarts(ours()), broadcasts(*device, {noon}));
    favourite(*device, renamed.toUpper());
    device->updateLater({"Dnevnik dana=rename:Veliki dnevnik"});
    EXPECT_EQ(titlesAndStarts(ours()).size(), planned.size());
}

TEST_P(CalendarOverRegion, LeavesWhatTheUserMovedWhereItIs)
{
    const auto device = this->device();
    putForeign();
    Files files = ours();
    const auto [name, file] = *std::next(files.begin());
    const Event event = ICalendarEvent::read(file.first)->event;
    Event byHand = event;
    byHand.startDate -= minutes(20);
    byHand.title = QStringLiteral("News!");
    writeRaw(calendars->folder() + QLatin1Char('/') + name,
             *ICalendarEvent::change(file.first, byHand, device->region.clock.now()));
    files = ours();
    for (int update = 0; update < 2; ++update) {
        device->updateLater({});
        EXPECT_EQ(ours(), files);
    }
    const QString removed = files.rbegin()->first; // what the user removed comes again: the favourite asks for it
    QFile::remove(calendars->folder() + QLatin1Char('/') + removed);
    device->updateLater({});
    EXPECT_EQ(namesOf(ours()), namesOf(files));
}

TEST_P(CalendarOverRegion, HasOneEventForABroadcastHoweverManyDevicesShareIt)
{
    const auto first = device();
    const auto second = device();
    putForeign();
    const Files alone = ours();
    EXPECT_EQ(titlesAndStarts(alone), broadcasts(*first, {news, noon}));
    first->updateLater({"Dnevnik dana=move:30"});
    const Files moved = ours();
    second->updateLater({"Dnevnik dana=move:30"});
    EXPECT_EQ(ours(), moved);
    // One has not seen yet what the other did, and the provider changes its mind once more.
    first->updateLater({"Dnevnik dana=move:60"});
    second->updateLater({"Dnevnik dana=move:45"}, Seconds(1));
    for (RegionDevice* each : {first.get(), second.get()})
        each->updateLater({"Dnevnik dana=move:45"});
    EXPECT_EQ(titlesAndStarts(ours()), broadcasts(*first, {news, noon}));
}

TEST_P(CalendarOverRegion, KeepsTheHourWhenTheClocksChange)
{
    const auto device = this->device();
    putForeign();
    device->updateLater({}, moment("2027-03-27T06:00:00Z") - device->region.clock.now());
    const QTimeZone zone("Europe/Belgrade");
    std::set<int> offsets;
    const Files files = ours();
    for (const auto& [name, file] : files) {
        const Instant start = ICalendarEvent::read(file.first)->event.startDate;
        if (start > device->region.clock.now())
            offsets.insert(QDateTime::fromMSecsSinceEpoch(unixMilliseconds(start), zone).offsetFromUtc());
    }
    EXPECT_EQ(offsets, (std::set{3600, 7200})) << "events before and after the change";
    const auto past = [&](const std::string& each) { return each < isoText(device->region.clock.now()).toStdString(); };
    auto coming = titlesAndStarts(files);
    std::erase_if(coming, past);
    EXPECT_EQ(coming, broadcasts(*device, {news, noon}));
    device->updateLater({"Dnevnik dana=move:-30"});
    coming = titlesAndStarts(ours());
    std::erase_if(coming, past);
    EXPECT_EQ(coming, broadcasts(*device, {news, noon}));
}

INSTANTIATE_TEST_SUITE_P(On, CalendarOverRegion, ::testing::Values("folder", "server"));

} // namespace
} // namespace vidora
