#include "app/ShowNames.h"

#include "alarms/SilentHours.h"
#include "app/ChannelNames.h"
#include "app/ShowPrinter.h"
#include "platform/DeviceSettings.h"
#include "platform/Localized.h"

#include <QTime>

#include <algorithm>

namespace vidora {

namespace {

QString titleOf(const Show& show)
{
    return show->entry->title().value_or(QString());
}

/// `time`: of a day, or a moment.
bool startsAt(const TVEntry& entry, const QString& time)
{
    if (!entry.dateTime())
        return false;
    if (const auto instant = instantFromIsoText(time))
        return entry.dateTime() == instant;
    return SilentHours::timeOf(*entry.dateTime(), DeviceSettings::timeZone()) ==
           QTime::fromString(time, QStringLiteral("H:mm"));
}

/// The coming broadcasts that fit the arguments, all that start first.
ShowList broadcastsNamed(CommandSession& session)
{
    const QString time = session.option("--at").value_or(QString());
    std::optional<ObjectId> channel;
    if (const auto name = session.option("--on"))
        channel = channelNamed(*name, session.catalogue());
    ShowList shows = showsNamedLike(session.argument(), session);
    std::erase_if(shows, [&](const Show& show) {
        return (channel && show->entry->channel() != *channel) || !startsAt(*show->entry, time) ||
               *show->entry->dateTime() < session.device().clock().now();
    });
    // A time of day means the first day that has it.
    if (!shows.empty())
        std::erase_if(shows, [first = shows.front()->entry->dateTime()](const Show& show) {
            return show->entry->dateTime() != first;
        });
    return shows;
}

} // namespace

ShowList showsNamedLike(const QString& text, CommandSession& session)
{
    const ShowList shows = *session.answerOf<SharedShowList>(
        [&](const auto& answer) { session.delegate().listings().showsContainingPattern(text, answer); });
    std::vector<QStringList> spellings;
    for (const Show& show : shows)
        spellings.push_back({titleOf(show), show->entry->identificator().value_or(QString())});
    ShowList named;
    for (const std::size_t place : placesNamed(text, spellings))
        named.push_back(shows[place]);
    return named;
}

std::optional<QString> listedTitle(CommandSession& session)
{
    const ShowList shows = showsNamedLike(session.argument(), session);
    if (shows.empty())
        return std::nullopt;
    QStringList titles;
    for (const Show& show : shows)
        titles << titleOf(show);
    titles.removeDuplicates();
    if (titles.size() > 1)
        throw Refusal{ambiguousName(session.argument(), titles, titles)};
    return shows.front()->entry->identificator();
}

QString favouriteNamed(CommandSession& session)
{
    const TVShows& favourites = session.delegate().shows();
    QStringList names, shown; // the latter: named by the title in which their shows are listed
    for (const QString& name : favourites.favoriteNames())
        names << name;
    names.sort();
    for (const Show& show : showsNamedLike(session.argument(), session)) {
        const QString raw = show->entry->identificator().value_or(QString());
        if (favourites.containsFavoriteNamed(raw) && !shown.contains(raw))
            shown << raw;
    }
    const bool isNamedRaw = shown.size() != 1 || !candidatesFor(session.argument(), names).isEmpty();
    return isNamedRaw ? textNamed(session.argument(), names) : shown.front();
}

Show broadcastNamed(CommandSession& session)
{
    const ShowList shows = broadcastsNamed(session);
    if (shows.empty())
        throw Refusal{localized("No coming broadcast of \"%1\" starts then.").arg(session.argument())};
    if (shows.size() == 1)
        return shows.front();
    QStringList lines{localized("More than one broadcast fits; --on CHANNEL or more of the title tells which:")};
    for (const Show& show : shows)
        lines << lineOf(show, session);
    throw Refusal{lines.join(QLatin1Char('\n'))};
}

QHash<QString, QString> shownFavourites(CommandSession& session)
{
    const auto shows = session.answerOf<SharedShowList>(
        [&](const auto& answer) { session.delegate().listings().favoritesScheduleWithBlock(answer); });
    QHash<QString, QString> titles;
    for (const Show& show : *shows)
        titles.insert(show->entry->lowercasedIdentificator().value_or(QString()), titleOf(show));
    return titles;
}

QString lineOf(const Show& show, CommandSession& session)
{
    const Instant start = show->entry->dateTime().value_or(Instant());
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(start), DeviceSettings::timeZone());
    return DeviceSettings::locale().toString(local.date(), QLocale::ShortFormat) + QLatin1Char(' ') +
           ShowPrinter(session.catalogue()).lineWithChannel(show);
}

} // namespace vidora
