#include "sample-region/Schedule.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <cstdio>

namespace vidora::region {

namespace {

constexpr int dayStartHour = 6;

std::uint64_t mixed(std::uint64_t value)
{
    value += 0x9e3779b97f4a7c15ULL;
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9ULL;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebULL;
    return value ^ (value >> 31);
}

std::uint64_t hashed(std::uint64_t seed, std::string_view text)
{
    for (const char c : text)
        seed = mixed(seed ^ static_cast<unsigned char>(c));
    return seed;
}

/// Draws that follow from a key alone.
class Dice
{
public:
    explicit Dice(std::uint64_t key)
        : m_state(key)
    {
    }
    std::size_t below(std::size_t bound) { return std::size_t((m_state = mixed(m_state)) % bound); }
    std::string_view one(std::string_view list)
    {
        const auto all = items(list);
        return all[below(all.size())];
    }

private:
    std::uint64_t m_state;
};

using enum Genre;

/// What a channel shows at an hour. A genre stands more than once where it is likelier.
std::vector<Genre> genresAt(Profile profile, int hour)
{
    switch (profile) {
    case Profile::Films:
        return {Film, Film, Film, Film, Series};
    case Profile::Series:
        return {Series, Series, Series, Film};
    case Profile::Documentary:
        return {Documentary, Documentary, Documentary, Entertainment, Film};
    case Profile::Children:
        return {Children, Children, Children, Film};
    case Profile::News:
        return {News, News, News, Documentary, Entertainment};
    case Profile::Entertainment:
        return {Entertainment, Entertainment, Series, Music, News};
    case Profile::Music:
        return {Music, Music, Music, Entertainment};
    case Profile::Sports:
        return {Sports, Sports, Sports, Sports};
    case Profile::General:
        break;
    }
    if (hour < 9)
        return {News, Children, Entertainment};
    if (hour < 17)
        return {Series, Documentary, Entertainment, Film, Children, News};
    if (hour < 20)
        return {Series, News, Sports, Entertainment};
    return {Film, Series, Music, Documentary, News};
}

int minutesOf(Genre genre, Dice& dice)
{
    switch (genre) {
    case Film:
        return 90 + 5 * int(dice.below(7));
    case Series:
        return 45 + 5 * int(dice.below(4));
    case Sports:
        return 60 + 15 * int(dice.below(5));
    case Children:
        return 15 + 5 * int(dice.below(4));
    case News:
        return 20 + 5 * int(dice.below(4));
    case Documentary:
    case Entertainment:
    case Music:
        break;
    }
    return 40 + 5 * int(dice.below(7));
}

std::string personIn(const Vocabulary& words, Dice& dice)
{
    const std::string first(dice.one(words.firstNames)), last(dice.one(words.lastNames));
    return words.lastNameFirst ? last + " " + first : first + " " + last;
}

/// Fills in what belongs to the show itself and is the same at each of its broadcasts.
void describe(Broadcast& show, const Vocabulary& words, std::uint64_t seed)
{
    Dice dice(hashed(seed, show.title));
    const auto genre = std::size_t(show.genre);
    show.genreText = words.genreWords[genre];
    show.description = words.synopses[genre];
    show.country = dice.one(words.countries);
    show.year = 1968 + int(dice.below(57));
    show.description += " " + std::string(dice.one(words.closings));
    if (show.genre == Film)
        show.genreText += " " + std::string(dice.one(words.filmKinds));
    if (show.genre == Film || show.genre == Series || show.genre == Documentary)
        show.director = personIn(words, dice);
    if (show.genre == Film || show.genre == Series)
        for (std::size_t count = 2 + dice.below(4); show.cast.size() < count;)
            if (std::string name = personIn(words, dice);
                std::find(show.cast.begin(), show.cast.end(), name) == show.cast.end())
                show.cast.push_back(std::move(name));
    char slug[32];
    std::snprintf(slug, sizeof slug, "%d-%08x", int(genre), unsigned(hashed(seed, show.title) & 0xffffffffU));
    show.slug = slug;
}

QDateTime local(const QTimeZone& zone, Instant moment)
{
    return QDateTime::fromMSecsSinceEpoch(unixMilliseconds(moment), zone);
}

} // namespace

std::optional<Change> Change::fromText(std::string_view text)
{
    const std::size_t equals = text.rfind('=');
    if (equals == std::string_view::npos || equals == 0)
        return std::nullopt;
    Change change{std::string(text.substr(0, equals)), Kind::Drop};
    const std::string_view kind = text.substr(equals + 1);
    if (kind == "drop")
        return change;
    if (kind == "twice") {
        change.kind = Kind::Twice;
        return change;
    }
    constexpr std::string_view rename = "rename:", move = "move:";
    if (kind.starts_with(rename) && kind.size() > rename.size()) {
        change.kind = Kind::Rename;
        change.newTitle = kind.substr(rename.size());
        return change;
    }
    constexpr int furthest = 24 * 60;
    bool isNumber = false;
    const int minutes =
        kind.starts_with(move) ? QByteArray(kind.data(), qsizetype(kind.size())).mid(move.size()).toInt(&isNumber) : 0;
    if (!isNumber || std::abs(minutes) > furthest)
        return std::nullopt;
    change.kind = Kind::Move;
    change.by = std::chrono::minutes(minutes);
    return change;
}

Broadcasts Schedule::changed(Broadcasts shows) const
{
    for (const Change& change : m_changes) {
        Broadcasts result;
        for (Broadcast& show : shows) {
            const bool isMeant = show.title == change.title;
            if (isMeant && change.kind == Change::Kind::Drop)
                continue;
            if (isMeant && change.kind == Change::Kind::Rename)
                show.title = change.newTitle;
            if (isMeant && change.kind == Change::Kind::Move) {
                show.start += change.by;
                show.end += change.by;
            }
            if (isMeant && change.kind == Change::Kind::Twice)
                result.push_back(show);
            result.push_back(std::move(show));
        }
        shows = std::move(result);
    }
    return shows;
}

Broadcasts Schedule::between(const RegionChannel& channel, Instant from, Instant to) const
{
    const QTimeZone zone = zoneNamed(vocabulary(channel.speech).zone);
    Broadcasts found;
    // A change moves a broadcast by a day at most.
    const QDate first = dateIn(zone, from).addDays(m_changes.empty() ? -1 : -2);
    const Instant end = m_changes.empty() ? to : to + dayStep;
    for (QDate date = first; momentOf(zone, date, dayStartHour) < end; date = date.addDays(1))
        for (Broadcast& show : changed(day(channel, zone, date)))
            if (show.start >= from && show.start < to)
                found.push_back(std::move(show));
    std::stable_sort(found.begin(), found.end(),
                     [](const Broadcast& a, const Broadcast& b) { return a.start < b.start; });
    return found;
}

Broadcasts Schedule::day(const RegionChannel& channel, const QTimeZone& zone, QDate date) const
{
    const Vocabulary& words = vocabulary(channel.speech);
    const std::uint64_t ofChannel = hashed(mixed(m_seed), channel.id);
    const auto week = std::uint64_t(date.toJulianDay()) / 7;
    Dice pattern(ofChannel ^ (std::uint64_t(date.dayOfWeek()) << 32));
    Broadcasts shows;
    const Instant end = momentOf(zone, date.addDays(1), dayStartHour);
    for (Instant at = momentOf(zone, date, dayStartHour); at < end;) {
        const int hour = local(zone, at).time().hour();
        const auto genres = genresAt(channel.profile, hour);
        Broadcast show{at, {}, genres[pattern.below(genres.size())], {}, {}, 0, {}, {}, 0, {}, {}, {}, false, {}};
        show.end = std::min(end, at + std::chrono::minutes(minutesOf(show.genre, pattern)));
        if (end - show.end < std::chrono::minutes(15))
            show.end = end;
        Dice ofDate(pattern.below(1U << 30) ^ (show.genre == Film ? week << 32 : 0));
        const auto titles = items(words.titles[std::size_t(show.genre)]);
        const std::size_t drawn = ofDate.below(titles.size());
        const bool again = !shows.empty() && shows.back().title == titles[drawn];
        show.title = titles[again ? (drawn + 1) % titles.size() : drawn];
        if (show.genre == Series) {
            const auto episodes = items(words.episodes);
            show.episode = 1 + int((week + ofDate.below(40)) % 60);
            show.episodeTitle = episodes[std::size_t(show.episode) % episodes.size()];
        }
        show.repeat = hour < 12 && show.genre != News && pattern.below(3) == 0;
        describe(show, words, m_seed);
        at = show.end;
        shows.push_back(std::move(show));
    }
    return shows;
}

Instant momentOf(const QTimeZone& zone, QDate date, int hour)
{
    return instantFromUnixMilliseconds(QDateTime(date, QTime(hour, 0), zone).toMSecsSinceEpoch());
}

QDate dateIn(const QTimeZone& zone, Instant moment)
{
    return local(zone, moment).date();
}

std::string localText(const QTimeZone& zone, Instant moment, const char* pattern)
{
    return QLocale::c().toString(local(zone, moment), QLatin1String(pattern)).toStdString();
}

std::string dateText(QDate date, const char* pattern)
{
    return QLocale::c().toString(date, QLatin1String(pattern)).toStdString();
}

QTimeZone zoneNamed(std::string_view name)
{
    return QTimeZone(QByteArray(name.data(), qsizetype(name.size())));
}

} // namespace vidora::region
