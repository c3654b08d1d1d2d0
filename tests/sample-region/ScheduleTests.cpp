#include "sample-region/Schedule.h"

#include <gtest/gtest.h>

namespace vidora::region {
namespace {

const Instant present = instantFromIsoText(QStringLiteral("2026-11-22T19:00:00Z")).value();

std::string summary(const Broadcasts& shows)
{
    std::string text;
    for (const Broadcast& show : shows)
        text +=
            isoText(show.start).toStdString() + " " + show.title + "/" + show.episodeTitle + "/" + show.director + "\n";
    return text;
}

TEST(Schedule, IsAFunctionOfSeedChannelAndDate)
{
    const RegionChannel& channel = regionChannels().front();
    const Schedule schedule(7);
    const std::string once = summary(schedule.between(channel, present, present + 2 * dayStep));
    EXPECT_EQ(summary(Schedule(7).between(channel, present, present + 2 * dayStep)), once);
    EXPECT_EQ(summary(schedule.between(channel, present, present + dayStep)) +
                  summary(schedule.between(channel, present + dayStep, present + 2 * dayStep)),
              once);
    EXPECT_NE(summary(Schedule(8).between(channel, present, present + 2 * dayStep)), once);
    EXPECT_NE(summary(schedule.between(regionChannels().at(1), present, present + 2 * dayStep)), once);
}

TEST(Schedule, HasNoGapsAlsoWhereTheClocksChange)
{
    const Instant change = instantFromIsoText(QStringLiteral("2026-10-25T00:00:00Z")).value();
    for (const RegionChannel& channel : regionChannels()) {
        const Broadcasts shows = Schedule(1).between(channel, change - dayStep, change + 2 * dayStep);
        ASSERT_GT(shows.size(), 40U) << channel.title;
        for (std::size_t i = 1; i < shows.size(); ++i) {
            EXPECT_EQ(shows[i].start, shows[i - 1].end) << channel.title;
            EXPECT_GE(shows[i].end - shows[i].start, std::chrono::minutes(15)) << channel.title;
        }
    }
}

TEST(Schedule, RepeatsItsWeekButForFilmsAndEpisodes)
{
    const RegionChannel& sports = *std::find_if(regionChannels().begin(), regionChannels().end(),
                                                [](const RegionChannel& c) { return c.profile == Profile::Sports; });
    const Broadcasts week = Schedule(1).between(sports, present, present + dayStep);
    const Broadcasts next = Schedule(1).between(sports, present + 7 * dayStep, present + 8 * dayStep);
    ASSERT_EQ(week.size(), next.size());
    for (std::size_t i = 0; i < week.size(); ++i)
        EXPECT_EQ(week[i].title, next[i].title);
}

TEST(Schedule, TitlesHoldNothingThatProvidersGiveAMeaning)
{
    for (const RegionChannel& channel : regionChannels())
        for (const Broadcast& show : Schedule(3).between(channel, present, present + 3 * dayStep)) {
            EXPECT_EQ((show.title + show.episodeTitle).find_first_of(",()[]<>&\"{}"), std::string::npos) << show.title;
            EXPECT_EQ(show.description.find_first_of("<>&\"{}"), std::string::npos) << show.description;
        }
}

} // namespace
TEST(Schedule, ChangesMoveDropRenameAndRepeatTheBroadcastsOfATitle)
{
    const RegionChannel& channel = regionChannels().front();
    const auto shows = [&](const char* change) {
        Changes changes;
        if (*change)
            changes.push_back(Change::fromText(change).value());
        return Schedule(1, changes).between(channel, present, present + 2 * dayStep);
    };
    const Broadcasts plain = shows("");
    const std::string title = plain[3].title;
    const auto count = [](const Broadcasts& list, const std::string& name) {
        return std::count_if(list.begin(), list.end(), [&](const Broadcast& show) { return show.title == name; });
    };
    EXPECT_EQ(count(shows((title + "=drop").c_str()), title), 0);
    EXPECT_EQ(count(shows((title + "=twice").c_str()), title), 2 * count(plain, title));
    EXPECT_EQ(count(shows((title + "=rename:Another").c_str()), "Another"), count(plain, title));
    const Broadcasts moved = shows((title + "=move:45").c_str());
    EXPECT_TRUE(std::any_of(moved.begin(), moved.end(), [&](const Broadcast& show) {
        return show.title == title && show.start == plain[3].start + std::chrono::minutes(45) &&
               show.end == plain[3].end + std::chrono::minutes(45);
    }));
    EXPECT_TRUE(std::is_sorted(moved.begin(), moved.end(),
                               [](const Broadcast& a, const Broadcast& b) { return a.start < b.start; }));
    for (const char* text : {"", "drop", "=drop", "a=move:x", "a=move:99999", "a=rename:", "a=other"})
        EXPECT_FALSE(Change::fromText(text)) << text;
}

} // namespace vidora::region
