#include "CalendarSupport.h"
#include "calendar/CombinedEventStore.h"
#include "calendar/MemoryEventStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vidora {
namespace {

using namespace test;
using ::testing::ElementsAre;

const Instant start = moment("2026-11-22T19:00:00Z");

class CombinedEventStoreTest : public ::testing::Test
{
protected:
    CombinedEventStoreTest()
    {
        store.addSource(QStringLiteral("device"), device);
        store.addSource(QStringLiteral("work"), work);
    }
    static Calendar calendar(const char* title, const char* source, bool writable = true)
    {
        return {QStringLiteral("same/%1").arg(QLatin1String(title)), QString::fromLatin1(title),
                QString::fromLatin1(source), std::nullopt, writable};
    }
    std::vector<std::string> titlesIn(const std::vector<Calendar>& calendars)
    {
        std::vector<std::string> titles;
        for (const Event& event : store.eventsMatchingPredicate(
                 store.predicateForEventsWithStartDate(start - dayStep, start + dayStep, calendars)))
            titles.push_back(event.title.toStdString());
        return titles;
    }

    const std::shared_ptr<MemoryEventStore> device = std::make_shared<MemoryEventStore>(
        std::vector{calendar("B", "This device"), calendar("Closed", "This device", false)});
    const std::shared_ptr<MemoryEventStore> work =
        std::make_shared<MemoryEventStore>(std::vector{calendar("A", "Work"), calendar("B", "Work")});
    CombinedEventStore store;
};

TEST_F(CombinedEventStoreTest, ShowsTheCalendarsOfAllSourcesAndKeepsTheirEventsApart)
{
    const auto all = store.calendarsForEntityType(EntityType::Event);
    std::vector<std::string> labels;
    for (const Calendar& each : all) {
        labels.push_back(QStringLiteral("%1 %2").arg(each.title, each.source).toStdString());
        EXPECT_EQ(store.calendarWithIdentifier(each.calendarIdentifier), each);
    }
    ASSERT_THAT(labels, ElementsAre("A Work", "B This device", "B Work", "Closed This device"));
    EXPECT_EQ(store.defaultCalendarForNewEvents(), all[1]);

    for (const std::size_t index : {1, 2}) {
        Event event = broadcast(all[index], all[index].source, start);
        ASSERT_FALSE(store.saveEvent(event, EventSpan::ThisEvent));
        EXPECT_EQ(store.eventWithIdentifier(event.eventIdentifier)->calendar, all[index]);
    }
    EXPECT_THAT(titlesIn({all[1]}), ElementsAre("This device"));
    EXPECT_THAT(titlesIn({all[1], all[2]}), ElementsAre("This device", "Work"));
    EXPECT_EQ(work->committedEvents().size(), 1U);

    Event moved = *store.eventWithIdentifier(
        store.eventsMatchingPredicate({start, start + dayStep, {all[2]}})[0].eventIdentifier);
    moved.title = QStringLiteral("Moved");
    ASSERT_FALSE(store.saveEvent(moved, EventSpan::ThisEvent));
    EXPECT_EQ(work->committedEvents()[0].title, QStringLiteral("Moved"));
    moved.calendar = all[1];
    EXPECT_TRUE(store.saveEvent(moved, EventSpan::ThisEvent)) << "into another source";
    moved.calendar = all[2];
    ASSERT_FALSE(store.removeEvent(moved, EventSpan::ThisEvent, true));
    EXPECT_TRUE(work->committedEvents().empty());
    EXPECT_EQ(device->committedEvents().size(), 1U);
}

TEST_F(CombinedEventStoreTest, ASourceThatFailsOrGoesCostsItsOwnCalendarsOnly)
{
    const auto all = store.calendarsForEntityType(EntityType::Event);
    Event there = broadcast(all[0], QStringLiteral("There"), start);
    Event here = broadcast(all[1], QStringLiteral("Here"), start);
    ASSERT_FALSE(store.saveEvent(there, EventSpan::ThisEvent, false));
    ASSERT_FALSE(store.saveEvent(here, EventSpan::ThisEvent, false));
    device->setFailure(EventStoreError{QStringLiteral("disk full")});
    EXPECT_EQ(store.commit()->localizedDescription, QStringLiteral("disk full"));
    EXPECT_EQ(work->committedEvents().size(), 1U);
    device->setFailure(std::nullopt);
    EXPECT_FALSE(store.commit());
    EXPECT_EQ(device->committedEvents().size(), 1U);

    work->setAuthorizationStatus(AuthorizationStatus::Denied, false);
    EXPECT_EQ(store.authorizationStatusForEntityType(EntityType::Event), AuthorizationStatus::Authorized);
    store.removeSource(QStringLiteral("work"));
    EXPECT_EQ(store.calendarsForEntityType(EntityType::Event).size(), 2U);
    EXPECT_FALSE(store.eventWithIdentifier(there.eventIdentifier));
    EXPECT_TRUE(store.saveEvent(there, EventSpan::ThisEvent));
    EXPECT_THROW(titlesIn({all[0]}), EventStoreException);
    EXPECT_THAT(titlesIn({all[1]}), ElementsAre("Here"));
}

} // namespace
} // namespace vidora
