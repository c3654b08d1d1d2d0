#include "CalDAVFixture.h"

namespace vidora {
namespace {

using namespace test;
using Fault = FaultySession::Fault;

TEST_F(CalDAVEventStoreTest, LosesAndDoublesNothingWhateverTheServerAnswers)
{
    struct Case
    {
        Fault fault;
        int status;
        const char* method;
    };
    std::vector<Case> cases;
    cases.push_back({Fault::HalfSent, 0, "PUT"});
    for (const Fault fault : {Fault::Silence, Fault::LostReply, Fault::Page, Fault::CutOff}) {
        for (const char* method : {"PUT", "DELETE", "REPORT"})
            cases.push_back({fault, 0, method});
    }
    for (const int status : {401, 403, 404, 409, 412, 423, 500, 507})
        cases.push_back({Fault::Status, status, "PUT"});
    cases.insert(cases.end(), {{Fault::Status, 404, "DELETE"},
                               {Fault::Status, 412, "DELETE"},
                               {Fault::Status, 500, ""},
                               {Fault::Status, 403, "REPORT"},
                               {Fault::Status, 423, "PROPFIND"}});
    const QByteArray foreign = foreignEvent("w", "20261122T200000Z");
    const QString foreignPath = server.calendar("tv") + QStringLiteral("/w.ics");
    writeRaw(foreignPath, foreign);
    auto store = open();
    ASSERT_FALSE(store->refresh());
    std::map<QString, int> expected{{QStringLiteral("Dentist, \u00E9tage 2"), 1}};
    int number = 0;
    for (const Case& each : cases) {
        const std::string what =
            std::to_string(int(each.fault)) + " " + std::to_string(each.status) + " " + each.method;
        const Instant at = start + Seconds(++number);
        Event changed = broadcast(tv(*store), QStringLiteral("Changed %1").arg(number), at);
        Event removed = broadcast(tv(*store), QStringLiteral("Removed %1").arg(number), at);
        EXPECT_FALSE(store->saveEvent(changed, EventSpan::ThisEvent, false));
        EXPECT_FALSE(store->saveEvent(removed, EventSpan::ThisEvent));
        ASSERT_EQ(store->unsentChanges(), 0) << what;
        session.fault = each.fault;
        session.status = each.status;
        session.method = each.method;
        changed.title = QStringLiteral("Moved %1").arg(number);
        EXPECT_FALSE(store->saveEvent(changed, EventSpan::ThisEvent, false));
        EXPECT_FALSE(store->removeEvent(removed, EventSpan::ThisEvent, false));
        save(*store, QStringLiteral("New %1").arg(number), at);
        clock.advance(Seconds(3600));
        store->refreshSourcesIfNecessary();
        store = open();
        session.fault = Fault::None;
        for (int again = 0; again < 2; ++again) {
            clock.advance(Seconds(3600));
            store->refreshSourcesIfNecessary();
        }
        ++expected[changed.title];
        ++expected[QStringLiteral("New %1").arg(number)];
        if (each.status == 404 && titles() != expected) { // believed, then seen again: it can be removed once more
            for (const Event& event : all(*store)) {
                const bool back = event.url == removed.url;
                EXPECT_FALSE(back && store->removeEvent(event, EventSpan::ThisEvent, true).has_value());
            }
        }
        ASSERT_EQ(text(titles()), text(expected)) << what;
        ASSERT_EQ(all(*store).size(), expected.size()) << what;
    }
    EXPECT_EQ(readRaw(foreignPath), foreign);
}

TEST_F(CalDAVEventStoreTest, BringsBackACopyThatWasLostHere)
{
    writeRaw(server.calendar("tv") + QStringLiteral("/w.ics"), foreignEvent("w", "20261122T200000Z"));
    ASSERT_FALSE(open()->refresh());
    const QString folder = home.filePath(QStringLiteral("a/")) + tv(*open()).calendarIdentifier;
    const QByteArray state = readRaw(folder + QStringLiteral("/.sync"));
    for (const QByteArray& left : {QByteArray("{\"address\": 12, \"items\""), QByteArray(), state}) {
        writeRaw(folder + QStringLiteral("/.sync"), left);
        writeRaw(folder + QStringLiteral("/w.ics"), ""); // as after a loss of power
        const auto restarted = open();
        ASSERT_FALSE(restarted->refresh());
        EXPECT_EQ(all(*restarted).size(), 1U);
        EXPECT_EQ(filesOf(server.calendar("tv")).size(), 1U);
    }
}

TEST_F(CalDAVEventStoreTest, LeavesOutWhatIsTooLargeAndFetchesTheRest)
{
    const auto large = [](const char* uid, qsizetype size) {
        return foreignEvent(uid, "20261122T200000Z", QByteArray("X-A:" + QByteArray(900, 'x') + "\n").repeated(size));
    };
    for (const char* uid : {"a", "b", "c", "d", "e"})
        writeRaw(server.calendar("tv") + QStringLiteral("/%1.ics").arg(QLatin1String(uid)), large(uid, 30));
    writeRaw(server.calendar("tv") + QStringLiteral("/cc.ics"), large("cc", 100));
    NetworkURLSession narrow{64 * 1024};
    CalDAVEventStore store(home.filePath(QStringLiteral("a")), QStringLiteral("Work"),
                           {server.address(), QStringLiteral("ana"), QStringLiteral("s3cret")}, narrow, clock, random,
                           sleeper);
    EXPECT_FALSE(store.refresh());
    EXPECT_EQ(all(store).size(), 5U);
    clock.advance(Seconds(3600));
    const int before = store.requestCount();
    store.refreshSourcesIfNecessary();
    EXPECT_EQ(store.requestCount(), before + 1) << "it is not asked for again and again";
}

TEST_F(CalDAVEventStoreTest, TheTroubleOfOneCalendarIsNotThatOfTheOthers)
{
    const auto store = open();
    ASSERT_FALSE(store->refresh());
    writeRaw(server.calendar("tv") + QStringLiteral("/w.ics"), foreignEvent("w", "20261122T200000Z"));
    writeRaw(server.calendar("home") + QStringLiteral("/w.ics"), foreignEvent("w", "20261122T200000Z"));
    session.fault = Fault::Silence;
    save(*store, QStringLiteral("Ours"));
    session.fault = Fault::Status;
    session.status = 500;
    session.address = QStringLiteral("/ana/home/");
    clock.advance(-Seconds(3600)); // a clock that was set back doesn't put anything off
    store->refreshSourcesIfNecessary();
    EXPECT_EQ(all(*store).size(), 2U);
    EXPECT_EQ(store->unsentChanges(), 0);
    EXPECT_EQ(titles().size(), 2U);
    session.requests = 0;
    store->refreshSourcesIfNecessary();
    EXPECT_EQ(session.requests, 0) << "not at once again";
}

/// What is stopped at any step of any file is made good by the next run, which does again what it does not find done.
TEST_F(CalDAVEventStoreTest, LeavesEachEventWholeWhereverItIsStopped)
{
    bool stopped = true;
    auto store = open();
    ASSERT_FALSE(store->refresh());
    for (int step = 0; stopped; ++step) {
        const Instant at = start + Seconds(step);
        const auto name = [&](const char* text) -> QString {
            return QStringLiteral("%1 %2").arg(QLatin1String(text)).arg(step);
        };
        Event changed = broadcast(tv(*store), name("Before"), at);
        Event removed = broadcast(tv(*store), name("Removed"), at);
        EXPECT_FALSE(store->saveEvent(changed, EventSpan::ThisEvent, false));
        EXPECT_FALSE(store->saveEvent(removed, EventSpan::ThisEvent));

        FaultyFileLayer layer(step, true);
        const auto doAll = [&](EventStore& calendars) {
            changed.title = name("After");
            EXPECT_FALSE(calendars.saveEvent(changed, EventSpan::ThisEvent, false));
            const bool present = calendars.eventWithIdentifier(removed.eventIdentifier).has_value();
            EXPECT_FALSE(present && calendars.removeEvent(removed, EventSpan::ThisEvent, false).has_value());
            Event added = broadcast(tv(calendars), name("New"), at);
            EXPECT_FALSE(calendars.saveEvent(added, EventSpan::ThisEvent, false));
            return !calendars.commit();
        };
        store = open("a", "s3cret", layer);
        doAll(*store);
        stopped = layer.killed;
        for (const auto& [title, count] : titles())
            EXPECT_TRUE(count == 1 && title != QStringLiteral("?")) << title.toStdString() << " at step " << step;

        store = open();
        EXPECT_TRUE(doAll(*store));
        EXPECT_EQ(store->unsentChanges(), 0);
        const std::map<QString, int> expected{{name("After"), 1}, {name("New"), 1}};
        ASSERT_EQ(text(titles()), text(expected)) << "at step " << step;
        for (const Event& event : all(*store))
            EXPECT_FALSE(store->removeEvent(event, EventSpan::ThisEvent, false));
        EXPECT_FALSE(store->commit());
    }
}

TEST_F(CalDAVEventStoreTest, NeverTouchesTheWorldsEventsWhateverHappens)
{
    for (unsigned seed = 0; seed < 3; ++seed) {
        auto dice = ScriptedRandom::seeded(seed);
        const std::vector<const char*> devices{"a", "b"};
        std::vector<std::unique_ptr<CalDAVEventStore>> stores;
        const bool inBackground = seed == 2; // where much happens at once; faults are for the others
        const auto exchange =
            inBackground ? CalDAVEventStore::Exchange::InBackground : CalDAVEventStore::Exchange::WhileCallerWaits;
        for (const char* device : devices)
            ASSERT_FALSE(stores.emplace_back(open(device, "s3cret", FileLayer::system(), exchange))->refresh());
        const QString folder = server.calendar("tv");
        const QString broken = folder + QStringLiteral("/broken.ics");
        const QString huge = QStringLiteral("huge.ics");
        std::map<QString, QByteArray> foreign{
            {huge,
             foreignEvent("h", "20261122T190000Z", QByteArray("X:" + QByteArray(70, 'x') + "\n").repeated(16'000))}};
        writeRaw(folder + QLatin1Char('/') + huge, foreign[huge]);
        for (int step = 0; step < 40; ++step) {
            auto& store = *stores[dice.uniform(2)];
            if (!inBackground) {
                session.fault =
                    std::vector{Fault::None, Fault::None, Fault::Silence, Fault::LostReply}[dice.uniform(4)];
                session.method = dice.uniform(2) ? "" : "PUT";
            }
            const QString name = QStringLiteral("w%1-%2.ics").arg(seed).arg(dice.uniform(5));
            const Instant at = start + Seconds(1800) * dice.uniform(6);
            const auto events = all(store);
            const auto ours =
                std::find_if(events.begin(), events.end(), [](const Event& each) { return each.url.has_value(); });
            switch (dice.uniform(9)) {
            case 0:
                foreign[name] = foreignEvent(name.toUtf8(), "20261122T19" + QByteArray::number(10 + step % 50) + "00Z",
                                             dice.uniform(2) ? "RRULE:FREQ=DAILY;COUNT=3\n" : "");
                writeRaw(folder + QLatin1Char('/') + name, foreign[name]);
                break;
            case 1:
                foreign.erase(name);
                QFile::remove(folder + QLatin1Char('/') + name);
                break;
            case 2:
            case 3:
                save(store, QStringLiteral("Show"), at);
                break;
            case 4:
                if (ours != events.end()) {
                    Event event = *ours;
                    event.title += QLatin1Char('!');
                    store.saveEvent(event, EventSpan::ThisEvent);
                }
                break;
            case 5:
                if (ours != events.end())
                    store.removeEvent(*ours, EventSpan::ThisEvent, true);
                break;
            case 6: // what the server itself can't read makes it fail, until somebody takes it away
                if (!QFile::remove(broken))
                    writeRaw(broken, "BEGIN:VCALENDAR\nBEGIN:VEVENT\n");
                break;
            case 7: { // ours, moved by hand
                const auto files = filesOf(folder);
                for (const auto& [file, bytes] : files) {
                    if (const auto read = ICalendarEvent::read(bytes); read && read->event.url && dice.uniform(3) == 0)
                        writeRaw(folder + QLatin1Char('/') + file, QByteArray(bytes).replace("00Z", "05Z"));
                }
                break;
            }
            default:
                clock.advance(Seconds(3600));
                store.refreshSourcesIfNecessary();
            }
        }
        if (!inBackground)
            session.fault = Fault::None;
        QFile::remove(broken);
        for (int round = 0; round < 2; ++round) {
            for (const auto& store : stores)
                EXPECT_FALSE(store->refresh());
        }
        auto present = filesOf(folder);
        for (const auto& [name, bytes] : foreign)
            EXPECT_EQ(present[name], bytes) << name.toStdString() << " seed " << seed;
        std::set<QString> addresses;
        for (const Event& event : all(*stores[0])) {
            const bool first = !event.url || addresses.insert(event.url->text()).second;
            EXPECT_TRUE(first) << "twice, seed " << seed;
        }
        EXPECT_EQ(present.size(), all(*stores[0]).size() + 1) << "all but the huge one, seed " << seed;
        EXPECT_EQ(present.size(), all(*stores[1]).size() + 1) << "seed " << seed;
        EXPECT_EQ(present.size(), foreign.size() + addresses.size()) << "seed " << seed;
        EXPECT_EQ(stores[0]->unsentChanges() + stores[1]->unsentChanges(), 0);
        for (const auto& [name, bytes] : present)
            QFile::remove(folder + QLatin1Char('/') + name);
    }
}

} // namespace
} // namespace vidora
