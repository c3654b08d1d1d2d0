#include "app/Command.h"
#include "app/CommandSession.h"
#include "app/ShowNames.h"
#include "platform/Localized.h"

#include <algorithm>

namespace vidora {

namespace {

QString shownTitle(const QString& title, const QHash<QString, QString>& shown)
{
    return printable(shown.value(title.toLower(), title));
}

QString described(const Favorite& favorite, const QHash<QString, QString>& shown)
{
    const QString title = shownTitle(favorite.identificator(), shown);
    if (favorite.minutes() < 0)
        return title;
    const auto minutes = static_cast<std::size_t>(favorite.minutes());
    const QString text =
        !favorite.previouslyShown()   ? localized("%1: alarm %n minutes ahead of each broadcast", minutes)
        : *favorite.previouslyShown() ? localized("%1: alarm %n minutes ahead of each replay", minutes)
                                      : localized("%1: alarm %n minutes ahead of each premiere", minutes);
    return text.arg(title);
}

QJsonObject json(const Favorite& favorite)
{
    return {{QStringLiteral("title"), favorite.identificator()},
            {QStringLiteral("minutes"), favorite.minutes() < 0 ? QJsonValue() : QJsonValue(favorite.minutes())},
            {QStringLiteral("previouslyShown"),
             favorite.previouslyShown() ? QJsonValue(*favorite.previouslyShown()) : QJsonValue()}};
}

void checkFavourite(const CommandLine& line)
{
    const bool premieres = line.options.contains(QStringLiteral("--premieres"));
    const bool replays = line.options.contains(QStringLiteral("--replays"));
    if (premieres && replays)
        throw UsageError{localized("--premieres and --replays exclude each other.")};
    if ((premieres || replays) && !line.options.contains(QStringLiteral("--alarm")))
        throw UsageError{localized("--premieres and --replays are about alarms: --alarm MINUTES is missing.")};
}

void favourite(CommandSession& session)
{
    const bool premieres = session.has("--premieres"), replays = session.has("--replays");
    const std::optional<QString> listed = listedTitle(session);
    const QString title = listed.value_or(session.argument());
    std::optional<AlarmEngine::Recurrence> alarm;
    if (const auto minutes = session.option("--alarm"))
        alarm = {minutes->toInt(), premieres || replays ? std::optional(replays) : std::nullopt};
    const auto outcome =
        session.outcomeOf([&](AlarmRequests& requests, const auto& done) { requests.setFavorite(title, alarm, done); });
    if (outcome == AlarmRequests::Outcome::NotKept)
        throw Refusal{localized("%1 could not be added.").arg(title)};
    if (outcome == AlarmRequests::Outcome::NoCalendar)
        throw Refusal{
            localized("%1 is a favourite, but there is no calendar that can be written for its alarms.").arg(title)};
    const auto added = session.delegate().alarmRequests().favorite(title);
    QString text = localized("A favourite: %1").arg(described(*added, shownFavourites(session)));
    if (!listed)
        text += QLatin1Char('\n') + localized("No broadcast of this title is listed at present.");
    session.answer(
        text, {{QStringLiteral("favourite"), json(*added)}, {QStringLiteral("events"), session.alarms().eventCount()}});
}

void unfavourite(CommandSession& session)
{
    const QString title = favouriteNamed(session);
    const QString shown = shownTitle(title, shownFavourites(session));
    session.outcomeOf([&](AlarmRequests& requests, const auto& done) { requests.removeFavorite(title, done); });
    session.answer(localized("No longer a favourite: %1").arg(shown), {{QStringLiteral("removed"), title}});
}

void favourites(CommandSession& session)
{
    Favorites favorites = session.delegate().shows().favorites().value_or(Favorites());
    std::stable_sort(favorites.begin(), favorites.end(), [](const auto& a, const auto& b) {
        return a->identificator().compare(b->identificator(), Qt::CaseInsensitive) < 0;
    });
    const QHash<QString, QString> shown = shownFavourites(session);
    QJsonArray array;
    QStringList lines;
    for (const auto& favorite : favorites) {
        array.append(json(*favorite));
        lines << described(*favorite, shown);
    }
    if (lines.isEmpty())
        lines << localized("No favourites yet. \"vidora favourite X\" adds one.");
    session.answer(lines.join(QLatin1Char('\n')), {{QStringLiteral("favourites"), array}});
}

} // namespace

const CommandFamily& favouriteCommands()
{
    static const CommandFamily family{
        {.name = "favourite",
         .arguments = "X",
         .meaning = QT_TRANSLATE_NOOP("vidora", "follow a title, and ring ahead of its broadcasts"),
         .least = 1,
         .most = Command::any,
         .kind = ValueKind::Title,
         .options = {{.name = "--alarm",
                      .value = QT_TRANSLATE_NOOP("vidora", "MINUTES"),
                      .meaning = QT_TRANSLATE_NOOP("vidora", "ring so long ahead of each broadcast"),
                      .kind = ValueKind::Minutes},
                     {.name = "--premieres", .meaning = QT_TRANSLATE_NOOP("vidora", "of premieres only")},
                     {.name = "--replays", .meaning = QT_TRANSLATE_NOOP("vidora", "of replays only")}},
         .changesWith = 0,
         .check = checkFavourite,
         .run = favourite},
        {.name = "unfavourite",
         .arguments = "X",
         .meaning = QT_TRANSLATE_NOOP("vidora", "follow it no longer, and remove its alarms"),
         .least = 1,
         .most = Command::any,
         .kind = ValueKind::Title,
         .changesWith = 0,
         .run = unfavourite},
        {.name = "favourites",
         .meaning = QT_TRANSLATE_NOOP("vidora", "the titles that are followed"),
         .run = favourites},
    };
    return family;
}

} // namespace vidora
