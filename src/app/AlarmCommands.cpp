#include "alarms/SilentHours.h"
#include "app/Command.h"
#include "app/CommandSession.h"
#include "app/ShowNames.h"
#include "app/ShowPrinter.h"
#include "platform/DeviceSettings.h"
#include "platform/Localized.h"

#include <QTime>

#include <algorithm>

namespace vidora {

namespace {

QTime timeOfDay(const QString& text)
{
    return QTime::fromString(text, QStringLiteral("H:mm"));
}

/// How long ahead to ring: as it is said, or as the last time.
int leadOf(CommandSession& session)
{
    constexpr int week = 7 * 24 * 60;
    const auto minutes = session.option("--before");
    return minutes ? minutes->toInt() : std::min(session.delegate().alarmRequests().usualMinutes(), week);
}

void alarm(CommandSession& session)
{
    const int lead = leadOf(session);
    const Show show = broadcastNamed(session);
    const QString title = show->entry->identificator().value_or(QString());
    const bool isFollowed = session.delegate().alarmRequests().favorite(title) != nullptr;
    const auto outcome =
        session.outcomeOf([&](AlarmRequests& requests, const auto& done) { requests.setAlarm(show, lead, done); });
    if (outcome == AlarmRequests::Outcome::TooLate)
        throw Refusal{localized("It is too late for an alarm %n minutes ahead.", static_cast<std::size_t>(lead))};
    if (outcome == AlarmRequests::Outcome::NoCalendar)
        throw Refusal{localized("No alarm was set: no calendar can be written.")};
    QString text = localized("Alarm %n minutes ahead: %1", static_cast<std::size_t>(lead)).arg(lineOf(show, session));
    if (!isFollowed)
        text += QLatin1Char('\n') + localized("A favourite: %1").arg(printable(show->entry->title().value_or(title)));
    session.answer(text, {{QStringLiteral("minutes"), lead},
                          {QStringLiteral("favouriteAdded"), !isFollowed},
                          {QStringLiteral("show"), ShowPrinter(session.catalogue()).json({show}).first()}});
}

void removeAlarms(CommandSession& session)
{
    const std::optional<QString> listed = listedTitle(session);
    const QString title = listed ? *listed : favouriteNamed(session);
    const QString shown = shownFavourites(session).value(title.toLower(), title);
    session.outcomeOf([&](AlarmRequests& requests, const auto& done) { requests.removeAlarms(title, done); });
    session.answer(localized("No alarms any more: %1").arg(printable(shown)), {{QStringLiteral("removed"), title}});
}

void unalarm(CommandSession& session)
{
    if (!session.has("--at"))
        return removeAlarms(session);
    const Show show = broadcastNamed(session);
    const QString title = show->entry->identificator().value_or(QString());
    session.outcomeOf([&](AlarmRequests& requests, const auto& done) { requests.removeAlarm(show, done); });
    QString text = localized("No alarm any more: %1").arg(lineOf(show, session));
    if (session.alarms().alarmedIdentificatorType(title))
        text += QLatin1Char('\n') +
                localized("All broadcasts of this favourite have alarms: the next update sets it again.");
    session.answer(text, {{QStringLiteral("removed"), title},
                          {QStringLiteral("show"), ShowPrinter(session.catalogue()).json({show}).first()}});
}

void alerts(CommandSession& session)
{
    const auto listing = session.answerOf<CompoundListing>([&](const auto& answer) {
        session.alarms().alertsScheduleWithPriority(QualityOfService::UserInitiated, answer);
    });
    ShowList shows;
    for (const QString& date : listing.dates)
        shows.insert(shows.end(), listing.sections.at(date).begin(), listing.sections.at(date).end());
    const ShowPrinter printer(session.catalogue());
    QJsonArray array;
    for (const Show& show : shows) {
        QJsonObject object = printer.json({show}).first().toObject();
        object.insert(QStringLiteral("minutes"), session.alarms().alarmedEntry(*show->entry));
        array.append(object);
    }
    session.answer(shows.empty() ? localized("No alarms.") : printer.byDays(shows),
                   {{QStringLiteral("alerts"), array}});
}

void checkSilentHours(const CommandLine& line)
{
    const QStringList& times = line.arguments;
    const bool isOff = times.size() == 1 && times.front() == QLatin1String("off");
    const bool isPeriod = times.size() == 2 && timeOfDay(times.front()).isValid() && timeOfDay(times.back()).isValid();
    if (!times.isEmpty() && !isOff && !isPeriod)
        throw UsageError{localized("silent-hours takes two times such as 00:00 07:00, or \"off\".")};
}

void setSilentHours(const QStringList& times, CommandSession& session)
{
    session.outcomeOf([&](AlarmRequests& requests, const auto& done) {
        if (times.size() == 2)
            requests.setSilentHours(timeOfDay(times.front()), timeOfDay(times.back()), done);
        else
            requests.setSilentHoursEnabled(false, done);
    });
}

void silentHours(CommandSession& session)
{
    if (!session.line().arguments.isEmpty())
        setSilentHours(session.line().arguments, session);
    const SilentHours& hours = session.delegate().silentHours();
    const QTimeZone zone = DeviceSettings::timeZone();
    const QString from = SilentHours::timeOf(hours.fromTimestamp(), zone).toString(QStringLiteral("HH:mm"));
    const QString to = SilentHours::timeOf(hours.toTimestamp(), zone).toString(QStringLiteral("HH:mm"));
    QString text = hours.enabled() ? localized("Favourites do not ring between %1 and %2.").arg(from, to)
                                   : localized("No silent hours.");
    const SilentPeriod period = hours.period();
    if (period.enabled && period.from >= period.to)
        text += QLatin1Char('\n') + localized("A period that crosses midnight, or has no length, silences them at "
                                              "every time of the day.");
    session.answer(
        text,
        {{QStringLiteral("enabled"), hours.enabled()}, {QStringLiteral("from"), from}, {QStringLiteral("to"), to}});
}

CommandOption at(bool isRequired)
{
    return {.name = "--at",
            .value = QT_TRANSLATE_NOOP("vidora", "TIME"),
            .meaning = QT_TRANSLATE_NOOP("vidora", "when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z"),
            .kind = ValueKind::Time,
            .isRequired = isRequired};
}

CommandOption on()
{
    return {.name = "--on",
            .value = QT_TRANSLATE_NOOP("vidora", "CHANNEL"),
            .meaning = QT_TRANSLATE_NOOP("vidora", "on this channel"),
            .kind = ValueKind::Channel};
}

} // namespace

const CommandFamily& alarmCommands()
{
    static const CommandFamily family{
        {.name = "alarm",
         .arguments = "X",
         .meaning = QT_TRANSLATE_NOOP("vidora", "ring ahead of one broadcast, and follow its title"),
         .least = 1,
         .most = Command::any,
         .kind = ValueKind::Title,
         .options = {at(true),
                     on(),
                     {.name = "--before",
                      .value = QT_TRANSLATE_NOOP("vidora", "MINUTES"),
                      .meaning = QT_TRANSLATE_NOOP("vidora", "so long ahead; without it, as the last time"),
                      .kind = ValueKind::Minutes}},
         .changesWith = 0,
         .run = alarm},
        {.name = "unalarm",
         .arguments = "X",
         .meaning = QT_TRANSLATE_NOOP("vidora", "remove the alarm of one broadcast, or of all"),
         .least = 1,
         .most = Command::any,
         .kind = ValueKind::Title,
         .options = {at(false), on()},
         .changesWith = 0,
         .run = unalarm},
        {.name = "alerts",
         .meaning = QT_TRANSLATE_NOOP("vidora", "the broadcasts of favourites that will ring"),
         .run = alerts},
        {.name = "silent-hours",
         .arguments = QT_TRANSLATE_NOOP("vidora", "[off | FROM TO]"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "when favourites must not ring"),
         .most = 2,
         .changesWith = 1,
         .check = checkSilentHours,
         .run = silentHours},
    };
    return family;
}

} // namespace vidora
