#pragma once

#include "CalDAVServer.h"
#include "calendar/CalDAVEventStore.h"
#include "platform/NetworkURLSession.h"

namespace vidora::test {

inline const Instant start = moment("2026-11-22T19:00:00Z");

/// Devices of one account on a real server, over a network that can fail.
class CalDAVEventStoreTest : public ::testing::Test
{
protected:
    CalDAVEventStoreTest() { qputenv("no_proxy", "127.0.0.1"); }
    std::unique_ptr<CalDAVEventStore>
    open(const char* device = "a", const char* password = "s3cret", FileLayer& layer = FileLayer::system(),
         CalDAVEventStore::Exchange exchange = CalDAVEventStore::Exchange::WhileCallerWaits)
    {
        return std::make_unique<CalDAVEventStore>(
            home.filePath(QString::fromLatin1(device)), QStringLiteral("Work"),
            CalDAVAccount{server.address(), QStringLiteral("ana"), QString::fromLatin1(password)}, session, clock,
            random, sleeper, layer, exchange);
    }
    Calendar tv(EventStore& store)
    {
        for (const Calendar& calendar : store.calendarsForEntityType(EntityType::Event)) {
            if (calendar.title == QStringLiteral("TV"))
                return calendar;
        }
        ADD_FAILURE() << "no calendar";
        return {};
    }
    std::vector<Event> all(EventStore& store)
    {
        return store.eventsMatchingPredicate(
            store.predicateForEventsWithStartDate(start - dayStep * 30, start + dayStep * 30, {tv(store)}));
    }
    Event save(EventStore& store, const QString& title, Instant at = start)
    {
        Event event = broadcast(tv(store), title, at);
        EXPECT_FALSE(store.saveEvent(event, EventSpan::ThisEvent));
        return event;
    }
    /// What the server holds, by title, and how often.
    std::map<QString, int> titles() const
    {
        std::map<QString, int> result;
        for (const auto& [name, bytes] : filesOf(server.calendar("tv"))) {
            const auto event = ICalendarEvent::read(bytes);
            ++result[event ? event->event.title : QStringLiteral("?")];
        }
        return result;
    }

    static std::string text(const std::map<QString, int>& titles)
    {
        QString result;
        for (const auto& [title, count] : titles)
            result += QStringLiteral("%1 x %2, ").arg(title).arg(count);
        return result.toStdString();
    }

    CalDAVServer server;
    QTemporaryDir home;
    NetworkURLSession network{32 * 1024 * 1024};
    FaultySession session{network};
    FixedClock clock{moment("2026-11-22T12:00:00Z")};
    ScriptedRandom random = ScriptedRandom::seeded(7);
    ScriptedSleeper sleeper;
};

} // namespace vidora::test
