#include "CalendarSupport.h"
#include "calendar/FolderEventStore.h"
#include "calendar/MemoryEventStore.h"

#include <gtest/gtest.h>
#include <thread>

namespace vidora {
namespace {

using namespace test;

const Instant start = moment("2026-11-22T19:00:00Z");

class FolderEventStoreTest : public ::testing::Test
{
protected:
    std::unique_ptr<FolderEventStore> open(FileLayer& layer = FileLayer::system())
    {
        auto store = std::make_unique<FolderEventStore>(root, QStringLiteral("This device"), clock, random, layer);
        store->requestAccessToEntityType(EntityType::Event, [](bool granted, const auto&) { EXPECT_TRUE(granted); });
        return store;
    }
    std::vector<Event> all(EventStore& store)
    {
        return store.eventsMatchingPredicate(store.predicateForEventsWithStartDate(
            start - dayStep * 30, start + dayStep * 30, store.calendarsForEntityType(EntityType::Event)));
    }
    Calendar own(EventStore& store) { return *store.defaultCalendarForNewEvents(); }

    QTemporaryDir home;
    const QString root = home.filePath(QStringLiteral("calendars"));
    const QString folder = root + QStringLiteral("/vidora");
    FixedClock clock{moment("2026-11-22T12:00:00Z")};
    ScriptedRandom random = ScriptedRandom::seeded(1);
};

/// What every form of the store promises, tried on those that need no server.
TEST_F(FolderEventStoreTest, KeepsTheContractInBothForms)
{
    MemoryEventStore memory({{QStringLiteral("m"), QStringLiteral("M"), {}, {}, true}});
    const auto files = open();
    for (EventStore* store : std::vector<EventStore*>{&memory, files.get()}) {
        EXPECT_EQ(store->authorizationStatusForEntityType(EntityType::Event), AuthorizationStatus::Authorized);
        Event event = broadcast(own(*store), QStringLiteral("Dnevnik"), start);
        ASSERT_FALSE(store->saveEvent(event, EventSpan::ThisEvent, false));
        ASSERT_FALSE(event.eventIdentifier.isEmpty());
        EXPECT_EQ(all(*store).size(), 1U);
        store->reset();
        EXPECT_TRUE(all(*store).empty());
        EXPECT_TRUE(store->saveEvent(event, EventSpan::ThisEvent, false)); // gone
        event.eventIdentifier.clear();
        ASSERT_FALSE(store->saveEvent(event, EventSpan::ThisEvent));
        store->reset();
        auto stored = store->eventWithIdentifier(event.eventIdentifier);
        ASSERT_TRUE(stored);
        EXPECT_EQ(stored->title, event.title);
        EXPECT_EQ(stored->url, event.url);
        EXPECT_EQ(stored->alarms, event.alarms);
        EXPECT_EQ(stored->calendar, event.calendar);

        const auto touching = [&](Instant from, Instant to) {
            return store->eventsMatchingPredicate(store->predicateForEventsWithStartDate(from, to, {event.calendar}))
                .size();
        };
        EXPECT_EQ(touching(start - dayStep, start), 0U);
        EXPECT_EQ(touching(event.endDate, start + dayStep), 0U);
        EXPECT_EQ(touching(start + Seconds(60), start + Seconds(61)), 1U);
        EXPECT_THROW(touching(start, start - Seconds(1)), EventStoreException);

        stored->endDate = start - Seconds(1);
        EXPECT_TRUE(store->saveEvent(*stored, EventSpan::ThisEvent));
        ASSERT_FALSE(store->removeEvent(event, EventSpan::ThisEvent, false));
        EXPECT_FALSE(store->eventWithIdentifier(event.eventIdentifier));
        EXPECT_TRUE(store->removeEvent(event, EventSpan::ThisEvent, false));
        ASSERT_FALSE(store->commit());
        store->reset();
        EXPECT_TRUE(all(*store).empty());
    }
}

TEST_F(FolderEventStoreTest, ShowsItsEventsToAnotherProgram)
{
    const auto store = open();
    Event first = broadcast(own(*store), QStringLiteral("Dnevnik, drugi"), start);
    Event second = broadcast(own(*store), QStringLiteral("Čas; \"x\""), start + dayStep);
    ASSERT_FALSE(store->saveEvent(first, EventSpan::ThisEvent));
    ASSERT_FALSE(store->saveEvent(second, EventSpan::ThisEvent));
    first.startDate += std::chrono::minutes(30);
    first.endDate += std::chrono::minutes(30);
    ASSERT_FALSE(store->saveEvent(first, EventSpan::ThisEvent));
    const QStringList lines = linesOfKhal(folder);
    ASSERT_EQ(lines.size(), 2) << lines.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("2026-11-22 19:30 Dnevnik, drugi|Lipa 1|")))
        << lines[0].toStdString();
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("2026-11-23 19:00 Čas; \"x\"|Lipa 1|"))) << lines[1].toStdString();
    EXPECT_FALSE(lines[0].endsWith(QLatin1Char('|'))); // it rings
}

TEST_F(FolderEventStoreTest, SeesWhatOthersDoAndLeavesTheirsAlone)
{
    const auto store = open();
    EXPECT_TRUE(all(*store).empty());
    const QString path = folder + QStringLiteral("/x.ics");
    writeRaw(path, foreignEvent("x", "20261122T190000Z"));
    ASSERT_EQ(all(*store).size(), 1U);
    writeRaw(path, foreignEvent("x", "20261122T180000Z")); // in place, of the same length, at once
    EXPECT_EQ(all(*store).at(0).startDate, moment("2026-11-22T18:00:00Z"));

    const std::map<QString, QByteArray> strange{
        {QStringLiteral("series.ics"), foreignEvent("s", "20261122T190000Z", "RRULE:FREQ=SECONDLY\n")},
        {QStringLiteral("broken.ics"), "BEGIN:VCALENDAR\nBEGIN:VEVENT\n"},
        {QStringLiteral("huge.ics"), foreignEvent("h", "20261122T190000Z", "X:" + QByteArray(10 << 20, 'x') + "\n")}};
    for (const auto& [name, bytes] : strange)
        writeRaw(folder + QLatin1Char('/') + name, bytes);
    auto events = all(*store);
    ASSERT_EQ(events.size(), 2U);
    EXPECT_TRUE(store->removeEvent(events[1], EventSpan::ThisEvent, true));
    events[1].title.clear();
    EXPECT_TRUE(store->saveEvent(events[1], EventSpan::ThisEvent));
    QFile::remove(path);
    EXPECT_EQ(all(*store).size(), 1U);
    EXPECT_EQ(filesOf(folder), strange);
    QDir(folder).removeRecursively();
    EXPECT_THROW(store->eventsMatchingPredicate({start, start + dayStep, {events[0].calendar}}), EventStoreException);
}

TEST_F(FolderEventStoreTest, MergesWithWhatChangedBeforeTheCommit)
{
    const auto store = open();
    std::vector<Event> events;
    for (int i = 0; i < 3; ++i) {
        events.push_back(broadcast(own(*store), QStringLiteral("Show %1").arg(i), start + dayStep * i));
        ASSERT_FALSE(store->saveEvent(events.back(), EventSpan::ThisEvent));
    }
    const auto pathOf = [&](int i) -> QString {
        return root + QLatin1Char('/') + events[static_cast<std::size_t>(i)].eventIdentifier;
    };
    for (Event& event : events) {
        event.startDate -= std::chrono::minutes(5);
        ASSERT_FALSE(store->saveEvent(event, EventSpan::ThisEvent, false));
    }
    const QByteArray noted = readRaw(pathOf(0)).replace("BEGIN:VALARM", "COMMENT:with Ana\r\nBEGIN:VALARM");
    writeRaw(pathOf(0), noted);
    QFile::remove(pathOf(1));
    const QByteArray series = foreignEvent("y", "20261122T190000Z", "RRULE:FREQ=DAILY\n");
    writeRaw(pathOf(2), series);
    ASSERT_FALSE(store->commit());
    EXPECT_EQ(readRaw(pathOf(0)), QByteArray(noted).replace("DTSTART:20261122T190000Z", "DTSTART:20261122T185500Z"));
    EXPECT_FALSE(QFile::exists(pathOf(1)));
    EXPECT_EQ(readRaw(pathOf(2)), series);
}

/// Another program that writes at the very moment at which a change is on its way to the disk.
TEST_F(FolderEventStoreTest, DoesNotRevertWhatIsWrittenMeanwhile)
{
    class BusyLayer final : public FileLayer
    {
    public:
        int create(const QString& path, unsigned mode, int& d) override { return system().create(path, mode, d); }
        int write(int d, QByteArrayView bytes) override { return system().write(d, bytes); }
        int sync(int d) override
        {
            if (meanwhile)
                std::exchange(meanwhile, nullptr)();
            return system().sync(d);
        }
        int close(int d) override { return system().close(d); }
        int rename(const QString& from, const QString& to) override { return system().rename(from, to); }
        int syncFolder(const QString& folder) override { return system().syncFolder(folder); }
        int remove(const QString& path) override { return system().remove(path); }
        std::function<void()> meanwhile;
    } layer;
    const auto store = open(layer);
    Event event = broadcast(own(*store), QStringLiteral("Film"), start);
    ASSERT_FALSE(store->saveEvent(event, EventSpan::ThisEvent));
    const QString path = root + QLatin1Char('/') + event.eventIdentifier;
    const Event read = all(*store).at(0);
    writeRaw(path, readRaw(path).replace("-PT10M", "-PT5M")); // after it was read here
    layer.meanwhile = [&] { writeRaw(path, readRaw(path).replace("Lipa 1", "Sofa")); };
    Event moved = read;
    moved.startDate += Seconds(600);
    ASSERT_FALSE(store->saveEvent(moved, EventSpan::ThisEvent));
    const Event present = all(*store).at(0);
    EXPECT_EQ(present.startDate, start + Seconds(600));
    EXPECT_EQ(present.location, QStringLiteral("Sofa"));
    EXPECT_EQ(present.alarms, std::vector{EventAlarm{Seconds(-300)}});

    const QByteArray bytes = readRaw(path);
    clock.advance(Seconds(60));
    Event same = present;
    ASSERT_FALSE(store->saveEvent(same, EventSpan::ThisEvent, false));
    EXPECT_TRUE(store->waitingChanges().empty()) << "what doesn't differ is no change";
    Event again = broadcast(own(*store), QStringLiteral("Film"), start);
    again.url = present.url;
    again.device = QStringLiteral("ab");
    ASSERT_FALSE(store->saveEvent(again, EventSpan::ThisEvent));
    EXPECT_EQ(all(*store).size(), 1U) << "one of before there were marks is taken over";
    again = broadcast(own(*store), QStringLiteral("Film"), start);
    again.device = QStringLiteral("cd");
    ASSERT_FALSE(store->saveEvent(again, EventSpan::ThisEvent));
    EXPECT_EQ(all(*store).size(), 2U) << "one of another device's is not";
}

/// A look at what waits, while somebody else saves and commits.
TEST_F(FolderEventStoreTest, TellsWhatWaitsWhileItChanges)
{
    const auto store = open();
    const Calendar calendar = own(*store);
    std::atomic<bool> isOver = false;
    std::thread writer([&] {
        for (int i = 0; i < 30; ++i) {
            Event event = broadcast(calendar, QStringLiteral("Show %1").arg(i), start);
            EXPECT_FALSE(store->saveEvent(event, EventSpan::ThisEvent, i % 3 == 0));
        }
        isOver = true;
    });
    std::size_t most = 0;
    while (!isOver)
        most = std::max(most, store->waitingChanges().size());
    writer.join();
    EXPECT_LE(most, 3U);
}

TEST_F(FolderEventStoreTest, MakesAnEventOnce)
{
    const auto store = open();
    const auto other = open(); // another device on the same folder
    for (EventStore* each : std::vector<EventStore*>{store.get(), other.get(), store.get()}) {
        Event event = broadcast(own(*each), QStringLiteral("Dnevnik"), start);
        ASSERT_FALSE(each->saveEvent(event, EventSpan::ThisEvent, false));
    }
    ASSERT_FALSE(store->commit());
    ASSERT_FALSE(other->commit());
    ASSERT_EQ(all(*store).size(), 1U);
    Event moved = all(*store).at(0);
    moved.startDate -= Seconds(900);
    ASSERT_FALSE(other->saveEvent(moved, EventSpan::ThisEvent)); // by hand
    Event wanted = broadcast(own(*store), QStringLiteral("Dnevnik"), start);
    ASSERT_FALSE(store->saveEvent(wanted, EventSpan::ThisEvent));
    EXPECT_EQ(all(*other).size(), 1U);
    moved = all(*store).at(0);
    EXPECT_EQ(moved.startDate, start);
    moved.url = URL::fromText(u"vidora://elsewhere/1");
    ASSERT_FALSE(store->saveEvent(moved, EventSpan::ThisEvent));
    Event again = broadcast(own(*store), QStringLiteral("Dnevnik"), start);
    ASSERT_FALSE(store->saveEvent(again, EventSpan::ThisEvent));
    EXPECT_EQ(all(*other).size(), 2U);
}

TEST_F(FolderEventStoreTest, LeavesEachEventWholeWhereverItIsStopped)
{
    for (const bool kills : {false, true}) {
        for (int step = 0;; ++step) {
            QDir(root).removeRecursively();
            const auto before = open();
            std::vector<Event> events;
            for (int i = 0; i < 2; ++i) {
                events.push_back(broadcast(own(*before), QStringLiteral("Show %1").arg(i), start + dayStep * i));
                ASSERT_FALSE(before->saveEvent(events.back(), EventSpan::ThisEvent));
            }
            FaultyFileLayer layer(step, kills);
            const auto store = open(layer);
            events[0].startDate -= std::chrono::minutes(5);
            Event added = broadcast(own(*store), QStringLiteral("New"), start);
            ASSERT_FALSE(store->saveEvent(events[0], EventSpan::ThisEvent, false));
            ASSERT_FALSE(store->removeEvent(events[1], EventSpan::ThisEvent, false));
            ASSERT_FALSE(store->saveEvent(added, EventSpan::ThisEvent, false));
            const bool failed = store->commit().has_value();
            EXPECT_EQ(failed, layer.steps > step);
            for (const auto& [name, bytes] : filesOf(folder))
                EXPECT_TRUE(ICalendarEvent::read(bytes)) << name.toStdString() << " at step " << step;
            EXPECT_TRUE(QFile::exists(root + QLatin1Char('/') + events[0].eventIdentifier));
            if (!failed)
                break;
            layer.failingStep = -1;
            layer.killed = false;
            EXPECT_FALSE(store->commit()); // what could not be written is tried again
            EXPECT_EQ(all(*before).size(), 2U);
            EXPECT_EQ(before->eventWithIdentifier(events[0].eventIdentifier)->startDate, events[0].startDate);
        }
    }
}

TEST_F(FolderEventStoreTest, DescribesCalendars)
{
    const auto store = open();
    writeRaw(root + QStringLiteral("/a/displayname"), "Zoo \xF0\x9F\x90\x98\n");
    writeRaw(root + QStringLiteral("/a/color"), "#FF0080\n");
    writeRaw(root + QStringLiteral("/a/.readonly"), "");
    writeRaw(root + QStringLiteral("/b/color"), "reddish");
    const auto calendars = store->calendarsForEntityType(EntityType::Event);
    ASSERT_EQ(calendars.size(), 3U);
    EXPECT_EQ(calendars[0].title, QStringLiteral("Vidora"));
    EXPECT_EQ(calendars[1].title, QStringLiteral("Zoo \U0001F418"));
    EXPECT_EQ(calendars[1].color, (CalendarColor{1, 0, 128 / 255.0, 1}));
    EXPECT_FALSE(calendars[1].allowsContentModifications);
    EXPECT_EQ(calendars[2].title, QStringLiteral("b"));
    EXPECT_FALSE(calendars[2].color);
    Event event = broadcast(calendars[1], QStringLiteral("x"), start);
    EXPECT_TRUE(store->saveEvent(event, EventSpan::ThisEvent));
    for (const char* hostile : {"../b", "", ".", "..", "a/b/c", "vidora/../../x.ics"}) {
        EXPECT_FALSE(store->eventWithIdentifier(QString::fromLatin1(hostile)));
        EXPECT_FALSE(store->calendarWithIdentifier(QString::fromLatin1(hostile)));
    }
}

TEST_F(FolderEventStoreTest, NeverTouchesTheWorldsEventsWhateverHappens)
{
    for (unsigned seed = 0; seed < 8; ++seed) {
        QDir(root).removeRecursively();
        auto dice = ScriptedRandom::seeded(seed);
        std::unique_ptr<FolderEventStore> stores[] = {open(), open()};
        const bool shared = seed % 2 == 1; // by two programs, which tell each other by the files alone
        const auto commits = [&] { return shared || dice.uniform(2) == 0; };
        std::map<QString, QByteArray> foreign{
            {QStringLiteral("huge.ics"),
             foreignEvent("h", "20261122T190000Z", "X:" + QByteArray(10 << 20, 'x') + "\n")}};
        writeRaw(folder + QStringLiteral("/huge.ics"), foreign.begin()->second);
        for (int step = 0; step < 120; ++step) {
            auto& store = stores[shared ? dice.uniform(2) : 0];
            const QString name = QStringLiteral("w%1.ics").arg(dice.uniform(8));
            const Instant at = start + Seconds(1800) * dice.uniform(6);
            const auto events = all(*store);
            const auto ours =
                std::find_if(events.begin(), events.end(), [](const Event& each) { return each.url.has_value(); });
            const auto unknown = [&](const Event& event) {
                return std::none_of(events.begin(), events.end(), [&](const Event& e) { return e.url == event.url; });
            };
            switch (dice.uniform(11)) {
            case 0: // new or moved
                foreign[name] =
                    foreignEvent(name.toUtf8(), "20261122T1" + QByteArray::number(dice.uniform(10)) + "0000Z",
                                 dice.uniform(2) ? "RRULE:FREQ=DAILY\n" : "");
                writeRaw(folder + QLatin1Char('/') + name, foreign[name]);
                break;
            case 1:
                foreign[name] = dice.uniform(2) ? QByteArray("junk") : foreignEvent("j", "20261122T190000Z").left(90);
                writeRaw(folder + QLatin1Char('/') + name, foreign[name]);
                break;
            case 2:
                foreign.erase(name);
                QFile::remove(folder + QLatin1Char('/') + name);
                break;
            case 3:
            case 4: {
                Event event = broadcast(own(*store), QStringLiteral("Show"), at);
                EXPECT_FALSE(unknown(event) && store->saveEvent(event, EventSpan::ThisEvent, commits()).has_value());
                break;
            }
            case 5:
                if (ours != events.end()) { // a broadcast that moves takes its address along
                    Event event = broadcast(ours->calendar, ours->title, at);
                    event.eventIdentifier = ours->eventIdentifier;
                    if (unknown(event))
                        store->saveEvent(event, EventSpan::ThisEvent, commits());
                }
                break;
            case 6:
                if (ours != events.end())
                    store->removeEvent(*ours, EventSpan::ThisEvent, commits());
                break;
            case 7:
                store->commit();
                break;
            case 8: // ours, moved by hand
                if (ours != events.end() && QFile::exists(root + QLatin1Char('/') + ours->eventIdentifier)) {
                    const QString path = root + QLatin1Char('/') + ours->eventIdentifier;
                    const QByteArray bytes = readRaw(path);
                    Event event = *ours;
                    event.startDate += Seconds(900);
                    event.endDate += Seconds(900);
                    writeRaw(path, ICalendarEvent::change(bytes, event, clock.now()).value_or(bytes));
                }
                break;
            case 9: // another file's name
                if (foreign.contains(name)) {
                    const QString newName = QStringLiteral("n%1.ics").arg(step);
                    QFile::rename(folder + QLatin1Char('/') + name, folder + QLatin1Char('/') + newName);
                    foreign[newName] = foreign.extract(name).mapped();
                }
                break;
            default:
                dice.uniform(2) ? store->reset() : static_cast<void>(store = open());
            }
        }
        for (const auto& store : stores)
            store->commit();
        std::set<QString> addresses;
        auto present = filesOf(folder);
        for (const auto& [name, bytes] : foreign)
            EXPECT_EQ(present[name], bytes) << name.toStdString() << " seed " << seed;
        for (const Event& event : all(*stores[0])) {
            const bool first = !event.url || addresses.insert(event.url->text()).second;
            EXPECT_TRUE(first) << "twice, seed " << seed;
        }
        std::erase_if(present, [&](const auto& file) { return foreign.contains(file.first); });
        EXPECT_EQ(present.size(), addresses.size());
    }
}

TEST_F(FolderEventStoreTest, SharesAFolderWithProgramsThatWriteAtTheSameTime)
{
    open();
    constexpr int rounds = 60;
    const auto device = [&](unsigned seed) {
        auto dice = ScriptedRandom::seeded(seed);
        FolderEventStore store(root, QStringLiteral("This device"), clock, dice);
        for (int round = 0; round < rounds; ++round) {
            Event event = broadcast(own(store), QStringLiteral("Show"), start + Seconds(1800) * dice.uniform(6));
            const auto events = all(store);
            const auto present =
                std::find_if(events.begin(), events.end(), [&](const Event& e) { return e.url == event.url; });
            if (present == events.end())
                EXPECT_FALSE(store.saveEvent(event, EventSpan::ThisEvent));
            else if (dice.uniform(2))
                store.removeEvent(*present, EventSpan::ThisEvent, true); // the other one may have been faster
        }
    };
    std::map<QString, QByteArray> foreign;
    const auto others = [&] {
        for (int round = 0; round < rounds; ++round) {
            const QString name = QStringLiteral("w%1.ics").arg(round % 5);
            foreign[name] = foreignEvent(name.toUtf8(), "20261122T190000Z", QByteArray("X-N:1\n").repeated(round * 9));
            writeRaw(folder + QLatin1Char('/') + name, foreign[name]);
        }
    };
    std::thread threads[] = {std::thread(device, 1), std::thread(device, 2), std::thread(others)};
    for (std::thread& thread : threads)
        thread.join();
    auto present = filesOf(folder);
    std::set<QString> addresses;
    for (const auto& [name, bytes] : present) {
        const auto read = ICalendarEvent::read(bytes);
        ASSERT_TRUE(read) << name.toStdString();
        if (foreign.contains(name))
            EXPECT_EQ(bytes, foreign[name]);
        else
            EXPECT_TRUE(addresses.insert(read->event.url->text()).second);
    }
}

} // namespace
} // namespace vidora
