#pragma once

#include "platform/Instant.h"
#include "sample-region/RegionChannel.h"
#include "sample-region/Vocabulary.h"

#include <QDate>
#include <QTimeZone>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vidora::region {

/// One broadcast. Texts are UTF-8 without markup characters.
struct Broadcast
{
    Instant start, end;
    Genre genre;
    std::string title;
    std::string episodeTitle; ///< empty where the show has no episodes
    int episode = 0;          ///< 0 where the show has no episodes
    std::string genreText;    ///< as a feed writes it, "film drama"
    std::string country;
    int year;
    std::string description; ///< without credits
    std::vector<std::string> cast;
    std::string director; ///< empty where there is none
    bool repeat;
    std::string slug; ///< "12-3f0a9c21", the show's own path segment
    std::string picture() const { return "/images/" + slug + ".png"; }
};

using Broadcasts = std::vector<Broadcast>;

/// What the provider has changed since: every broadcast of a title is moved, dropped, renamed or listed twice.
struct Change
{
    enum class Kind : std::uint8_t
    {
        Move,   ///< "move:30", by minutes; "move:-30" to an earlier time
        Drop,   ///< "drop"
        Rename, ///< "rename:New title"
        Twice   ///< "twice"
    };

    std::string title;
    Kind kind;
    std::string newTitle = {};
    std::chrono::minutes by{0};

    /// Reads "TITLE=KIND[:ARGUMENT]"; nothing for any other text.
    static std::optional<Change> fromText(std::string_view text);
};

using Changes = std::vector<Change>;

/// What the region's channels show, a function of seed, channel and date alone: the same broadcast comes out whatever
/// document asks for it. A week's pattern repeats; films and episodes change with the date. Immutable; any thread.
class Schedule
{
public:
    explicit Schedule(std::uint64_t seed, Changes changes = {})
        : m_seed(seed)
        , m_changes(std::move(changes))
    {
    }

    std::uint64_t seed() const { return m_seed; }
    /// The broadcasts that start at or after `from` and before `to`, in order, without gaps but those of changes.
    Broadcasts between(const RegionChannel& channel, Instant from, Instant to) const;

private:
    /// One broadcasting day: from six in the morning, in the channel's zone, until six the next day.
    Broadcasts day(const RegionChannel& channel, const QTimeZone& zone, QDate date) const;

    Broadcasts changed(Broadcasts shows) const;

    std::uint64_t m_seed;
    Changes m_changes;
};

/// The moment at which the clocks of a zone show this hour.
Instant momentOf(const QTimeZone& zone, QDate date, int hour);
QDate dateIn(const QTimeZone& zone, Instant moment);
/// The moment in the zone's wall clock, by a pattern of QDateTime::toString.
std::string localText(const QTimeZone& zone, Instant moment, const char* pattern);
std::string dateText(QDate date, const char* pattern);
QTimeZone zoneNamed(std::string_view name);

} // namespace vidora::region
