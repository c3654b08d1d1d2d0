#include "alarms/AlarmFixture.h"
#include "alarms/AlarmRequests.h"

namespace vidora {

namespace {

using Outcome = AlarmRequests::Outcome;

const QString news = QStringLiteral("Dnevnik");
const QString film = QStringLiteral("Film");

class AlarmRequestsTest : public AlarmTest
{
protected:
    AlarmRequestsTest()
        : requests({clock, *shows, *alarms, silentHours, counters, calendars, defaults, keyValueStore, device, *this,
                    *this, QStringLiteral("vidora")},
                   *engine)
    {
        update(one, {{news, 60, 90}, {film, 90, 200}, {news, 300, 330}});
    }
    /// What comes of a request.
    template<typename Request>
    Outcome outcome(const Request& request)
    {
        std::optional<Outcome> reached;
        request([&](Outcome outcome) { reached = outcome; });
        DispatchQueue::runMain([&] { return reached.has_value(); });
        settle();
        return *reached;
    }
    Outcome setFavorite(const QString& title, const std::optional<AlarmEngine::Recurrence>& alarm)
    {
        return outcome([&](const auto& done) { requests.setFavorite(title, alarm, done); });
    }
    Show broadcast(const QString& title, int minute) { return TestShow{title, minute, minute + 110}.show(one); }

    AlarmRequests requests;
};

} // namespace

TEST_F(AlarmRequestsTest, AFavouriteAndItsAlarmComeAndGoTogether)
{
    EXPECT_EQ(setFavorite(QStringLiteral("Dnevnik "), AlarmEngine::Recurrence{10, {}}), Outcome::Done);
    EXPECT_EQ(seen(),
              (QStringList{QStringLiteral("Dnevnik at 60 on One -10"), QStringLiteral("Dnevnik at 300 on One -10")}));
    ASSERT_TRUE(requests.favorite(QStringLiteral("DNEVNIK ")));
    EXPECT_EQ(setFavorite(news, AlarmEngine::Recurrence{5, {}}), Outcome::Done);
    EXPECT_EQ(seen(),
              (QStringList{QStringLiteral("Dnevnik at 60 on One -5"), QStringLiteral("Dnevnik at 300 on One -5")}));
    EXPECT_EQ(requests.usualMinutes(), 5);
    EXPECT_EQ(outcome([&](const auto& done) { requests.removeAlarms(news, done); }), Outcome::Done);
    EXPECT_EQ(outcome([&](const auto& done) { requests.removeAlarms(news, done); }), Outcome::Nothing);
    EXPECT_EQ(requests.favorite(news)->minutes(), -1);
    EXPECT_EQ(outcome([&](const auto& done) { requests.removeFavorite(news, done); }), Outcome::Done);
    EXPECT_EQ(outcome([&](const auto& done) { requests.removeFavorite(news, done); }), Outcome::Nothing);

    calendars.setAuthorizationStatus(AuthorizationStatus::Denied, false);
    EXPECT_EQ(setFavorite(news, AlarmEngine::Recurrence{10, {}}), Outcome::NoCalendar);
    EXPECT_TRUE(requests.favorite(news)) << "a favourite all the same";
}

TEST_F(AlarmRequestsTest, AnAlarmOnOneBroadcastLastsBecauseItsTitleIsFollowed)
{
    const auto setAlarm = [&](int minutes) {
        return outcome([&](const auto& done) { requests.setAlarm(broadcast(film, 90), minutes, done); });
    };
    EXPECT_EQ(setAlarm(90), Outcome::TooLate);
    EXPECT_FALSE(requests.favorite(film));
    EXPECT_EQ(setAlarm(15), Outcome::Done);
    EXPECT_EQ(setAlarm(30), Outcome::Done);
    sync();
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Film at 90 on One -30")});
    const auto remove = [&] {
        return outcome([&](const auto& done) { requests.removeAlarm(broadcast(film, 90), done); });
    };
    EXPECT_EQ(remove(), Outcome::Done);
    EXPECT_EQ(remove(), Outcome::Nothing);

    EXPECT_EQ(setAlarm(15), Outcome::Done);
    setFavorite(news, AlarmEngine::Recurrence{10, {}});
    put(event(QStringLiteral("Dentist"), 60, QStringLiteral("Here"), QStringLiteral("https://example.org/")));
    EXPECT_EQ(seen().size(), 4);
    EXPECT_EQ(outcome([&](const auto& done) { requests.removeAllAlarms(done); }), Outcome::Done);
    sync();
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Dentist at 60 on Here -10")});
    EXPECT_EQ(outcome([&](const auto& done) { requests.removeAllAlarms(done); }), Outcome::Nothing);
}

TEST_F(AlarmRequestsTest, SilentHoursTakeEffectAtOnce)
{
    setFavorite(news, AlarmEngine::Recurrence{10, {}});
    ASSERT_EQ(seen().size(), 2);
    EXPECT_EQ(outcome([&](const auto& done) { requests.setSilentHours(QTime(0, 0), QTime(23, 59), done); }),
              Outcome::Done);
    EXPECT_TRUE(seen().isEmpty());
    EXPECT_EQ(outcome([&](const auto& done) { requests.setSilentHoursEnabled(false, done); }), Outcome::Done);
    EXPECT_EQ(seen().size(), 2);
}

} // namespace vidora
