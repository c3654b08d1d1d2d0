#include "app/AlarmCommands.h"

#include "app/ChannelNames.h"
#include "app/Refusal.h"
#include "app/ShowPrinter.h"
#include "platform/DeviceSettings.h"
#include "platform/Localized.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

namespace vidora {

namespace {

constexpr int mostMinutes = 7 * 24 * 60;

void say(const QString& message)
{
    std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

class AlarmRun
{
public:
    AlarmRun(const CommandLine& line, Device& device)
        : m_line(line)
        , m_device(device)
        , m_delegate(device.delegate())
        , m_engine(m_delegate.alarmEngine())
        , m_requests(m_delegate.alarmRequests())
    {
    }

    using Handler = void (AlarmRun::*)();
    static const QHash<QString, Handler>& handlers()
    {
        static const QHash<QString, Handler> table{
            {QStringLiteral("favourite"), &AlarmRun::favourite},
            {QStringLiteral("unfavourite"), &AlarmRun::unfavourite},
            {QStringLiteral("favourites"), &AlarmRun::favourites},
            {QStringLiteral("alarm"), &AlarmRun::alarm},
            {QStringLiteral("unalarm"), &AlarmRun::unalarm},
            {QStringLiteral("alerts"), &AlarmRun::alerts},
            {QStringLiteral("silent-hours"), &AlarmRun::silentHours},
        };
        return table;
    }

    int run()
    {
        settle();
        try {
            (this->*handlers().value(m_line.command))();
            return 0;
        } catch (const Refusal& refusal) {
            say(refusal.message);
            return 1;
        }
    }

private:
    void favourite();
    void unfavourite();
    void favourites();
    void alarm();
    void unalarm();
    void alerts();
    void silentHours();

    QString argument() const { return m_line.arguments.join(QLatin1Char(' ')).trimmed(); }
    /// Waits until nothing is being done to the calendar.
    void settle();
    /// Makes a request and waits for what comes of it.
    AlarmRequests::Outcome wait(const std::function<void(const AlarmRequests::Done&)>& request) const;
    void answer(const QString& text, const QJsonObject& json) const;
    int minutes(const QString& option, int otherwise) const;
    /// The one among these texts that the user named.
    QString named(QStringList texts) const;
    ShowList showsNamedLike(const QString& text);
    /// The raw title, by which alarms are kept, of the listed shows that the user named by the shown one.
    std::optional<QString> listedTitle();
    /// The favourite that the user named, by its own title or by that in which its shows are listed.
    QString favouriteNamed();
    /// The broadcast that the user named by title, time and channel.
    Show broadcast();
    bool startsAt(const TVEntry& entry, const QString& time) const;
    QString described(const Favorite& favorite) const;
    static QJsonObject json(const Favorite& favorite);
    QString lineOf(const Show& show) const;

    const CommandLine& m_line;
    Device& m_device;
    VidoraAppDelegate& m_delegate;
    AlarmEngine& m_engine;
    AlarmRequests& m_requests;
};

void AlarmRun::settle()
{
    bool isIdle = false;
    DispatchQueue::main().async([&] { m_engine.whenIdle([&] { isIdle = true; }); });
    DispatchQueue::runMain([&] { return isIdle; });
}

AlarmRequests::Outcome AlarmRun::wait(const std::function<void(const AlarmRequests::Done&)>& request) const
{
    std::optional<AlarmRequests::Outcome> outcome;
    request([&](AlarmRequests::Outcome reached) { outcome = reached; });
    DispatchQueue::runMain([&] { return outcome.has_value(); });
    return *outcome;
}

void AlarmRun::answer(const QString& text, const QJsonObject& json) const
{
    printText(m_line.json ? QString::fromUtf8(QJsonDocument(json).toJson()) : text + QLatin1Char('\n'));
}

int AlarmRun::minutes(const QString& option, int otherwise) const
{
    if (!m_line.options.contains(option))
        return otherwise;
    bool isNumber = false;
    const int minutes = m_line.options.value(option).toInt(&isNumber);
    if (!isNumber || minutes < 0 || minutes > mostMinutes)
        throw Refusal{
            localized("%1 takes a number of minutes from 0 to %2.").arg(option, QString::number(mostMinutes))};
    return minutes;
}

QString AlarmRun::named(QStringList texts) const
{
    texts.removeDuplicates();
    const QStringList candidates = candidatesFor(argument(), texts);
    if (candidates.size() != 1)
        throw Refusal{ambiguousName(argument(), candidates, texts)};
    return candidates.front();
}

ShowList AlarmRun::showsNamedLike(const QString& text)
{
    std::optional<ShowList> shows;
    m_delegate.listings().showsContainingPattern(
        text, [&](const SharedShowList& found) { DispatchQueue::main().async([&shows, found] { shows = *found; }); });
    DispatchQueue::runMain([&] { return shows.has_value(); });
    QStringList titles;
    for (const Show& show : *shows)
        titles << show->entry->title().value_or(QString());
    const QStringList candidates = candidatesFor(text, titles);
    std::erase_if(*shows,
                  [&](const Show& show) { return !candidates.contains(show->entry->title().value_or(QString())); });
    return std::move(*shows);
}

std::optional<QString> AlarmRun::listedTitle()
{
    const ShowList shows = showsNamedLike(argument());
    if (shows.empty())
        return std::nullopt;
    QStringList titles;
    for (const Show& show : shows)
        titles << show->entry->title().value_or(QString());
    const qsizetype index = titles.indexOf(named(titles));
    return shows[static_cast<std::size_t>(index)]->entry->identificator();
}

QString AlarmRun::described(const Favorite& favorite) const
{
    if (favorite.minutes() < 0)
        return printable(favorite.identificator());
    const auto minutes = static_cast<std::size_t>(favorite.minutes());
    const QString text =
        !favorite.previouslyShown()   ? localized("%1: alarm %n minutes ahead of each broadcast", minutes)
        : *favorite.previouslyShown() ? localized("%1: alarm %n minutes ahead of each replay", minutes)
                                      : localized("%1: alarm %n minutes ahead of each premiere", minutes);
    return text.arg(printable(favorite.identificator()));
}

QJsonObject AlarmRun::json(const Favorite& favorite)
{
    return {{QStringLiteral("title"), favorite.identificator()},
            {QStringLiteral("minutes"), favorite.minutes() < 0 ? QJsonValue() : QJsonValue(favorite.minutes())},
            {QStringLiteral("previouslyShown"),
             favorite.previouslyShown() ? QJsonValue(*favorite.previouslyShown()) : QJsonValue()}};
}

void AlarmRun::favourite()
{
    const bool premieres = m_line.options.contains(QStringLiteral("--premieres"));
    const bool replays = m_line.options.contains(QStringLiteral("--replays"));
    const int lead = minutes(QStringLiteral("--alarm"), -1);
    if (premieres && replays)
        throw Refusal{localized("--premieres and --replays exclude each other.")};
    if ((premieres || replays) && lead < 0)
        throw Refusal{localized("--premieres and --replays are about alarms: --alarm MINUTES is missing.")};
    const std::optional<QString> listed = listedTitle();
    const QString title = listed.value_or(argument());
    std::optional<AlarmEngine::Recurrence> alarm;
    if (lead >= 0)
        alarm = {lead, premieres || replays ? std::optional(replays) : std::nullopt};
    const auto outcome = wait([&](const auto& done) { m_requests.setFavorite(title, alarm, done); });
    if (outcome == AlarmRequests::Outcome::NotKept)
        throw Refusal{localized("%1 could not be added.").arg(title)};
    if (outcome == AlarmRequests::Outcome::NoCalendar)
        throw Refusal{
            localized("%1 is a favourite, but there is no calendar that can be written for its alarms.").arg(title)};
    const auto added = m_requests.favorite(title);
    QString text = localized("A favourite: %1").arg(described(*added));
    if (!listed)
        text += QLatin1Char('\n') + localized("No broadcast of this title is listed at present.");
    answer(text, {{QStringLiteral("favourite"), json(*added)}, {QStringLiteral("events"), m_engine.eventCount()}});
}

QString AlarmRun::favouriteNamed()
{
    QStringList names, shown; // the latter: named by the title in which their shows are listed
    for (const QString& name : m_delegate.shows().favoriteNames())
        names << name;
    names.sort();
    for (const Show& show : showsNamedLike(argument())) {
        const QString raw = show->entry->identificator().value_or(QString());
        if (m_delegate.shows().containsFavoriteNamed(raw) && !shown.contains(raw))
            shown << raw;
    }
    const bool isNamedRaw = shown.size() != 1 || !candidatesFor(argument(), names).isEmpty();
    return isNamedRaw ? named(names) : shown.front();
}

void AlarmRun::unfavourite()
{
    const QString title = favouriteNamed();
    wait([&](const auto& done) { m_requests.removeFavorite(title, done); });
    answer(localized("No longer a favourite: %1").arg(printable(title)), {{QStringLiteral("removed"), title}});
}

void AlarmRun::favourites()
{
    Favorites favorites = m_delegate.shows().favorites().value_or(Favorites());
    std::stable_sort(favorites.begin(), favorites.end(), [](const auto& a, const auto& b) {
        return a->identificator().compare(b->identificator(), Qt::CaseInsensitive) < 0;
    });
    QJsonArray array;
    QStringList lines;
    for (const auto& favorite : favorites) {
        array.append(json(*favorite));
        lines << described(*favorite);
    }
    if (lines.isEmpty())
        lines << localized("No favourites yet. \"vidora favourite X\" adds one.");
    answer(lines.join(QLatin1Char('\n')), {{QStringLiteral("favourites"), array}});
}

bool AlarmRun::startsAt(const TVEntry& entry, const QString& time) const
{
    if (!entry.dateTime())
        return false;
    if (const auto instant = instantFromIsoText(time))
        return entry.dateTime() == instant;
    const QTime clockTime = QTime::fromString(time, QStringLiteral("H:mm"));
    if (!clockTime.isValid())
        throw Refusal{localized("--at takes a time such as 20:00 or 2026-11-22T19:00:00Z.")};
    return SilentHours::timeOf(*entry.dateTime(), DeviceSettings::timeZone()) == clockTime;
}

QString AlarmRun::lineOf(const Show& show) const
{
    const Instant start = show->entry->dateTime().value_or(Instant());
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(start), DeviceSettings::timeZone());
    return DeviceSettings::locale().toString(local.date(), QLocale::ShortFormat) + QLatin1Char(' ') +
           ShowPrinter(m_delegate.channelData()).lineWithChannel(show);
}

Show AlarmRun::broadcast()
{
    if (!m_line.options.contains(QStringLiteral("--at")))
        throw Refusal{localized("--at TIME is missing: when the broadcast starts.")};
    const QString time = m_line.options.value(QStringLiteral("--at"));
    std::optional<ObjectId> channel;
    if (m_line.options.contains(QStringLiteral("--on"))) {
        const NamedChannel found = channelNamed(m_line.options.value(QStringLiteral("--on")), m_delegate.channelData());
        if (const auto* message = std::get_if<QString>(&found))
            throw Refusal{*message};
        channel = std::get<ObjectId>(found);
    }
    ShowList shows = showsNamedLike(argument());
    std::erase_if(shows, [&](const Show& show) {
        return (channel && show->entry->channel() != *channel) || !startsAt(*show->entry, time) ||
               *show->entry->dateTime() < m_device.clock().now();
    });
    if (shows.empty())
        throw Refusal{localized("No coming broadcast of \"%1\" starts then.").arg(argument())};
    // A time of day means the first day that has it.
    std::erase_if(shows, [first = shows.front()->entry->dateTime()](const Show& show) {
        return show->entry->dateTime() != first;
    });
    if (shows.size() > 1) {
        QStringList lines{localized("More than one broadcast fits; --on CHANNEL or more of the title tells which:")};
        for (const Show& show : shows)
            lines << lineOf(show);
        throw Refusal{lines.join(QLatin1Char('\n'))};
    }
    return shows.front();
}

void AlarmRun::alarm()
{
    const int lead = minutes(QStringLiteral("--before"), std::min(m_requests.usualMinutes(), mostMinutes));
    const Show show = broadcast();
    const QString title = show->entry->identificator().value_or(QString());
    const bool isFollowed = m_requests.favorite(title) != nullptr;
    const auto outcome = wait([&](const auto& done) { m_requests.setAlarm(show, lead, done); });
    if (outcome == AlarmRequests::Outcome::TooLate)
        throw Refusal{localized("It is too late for an alarm %n minutes ahead.", static_cast<std::size_t>(lead))};
    if (outcome == AlarmRequests::Outcome::NoCalendar)
        throw Refusal{localized("No alarm was set: no calendar can be written.")};
    QString text = localized("Alarm %n minutes ahead: %1", static_cast<std::size_t>(lead)).arg(lineOf(show));
    if (!isFollowed)
        text += QLatin1Char('\n') + localized("A favourite: %1").arg(printable(title));
    answer(text, {{QStringLiteral("minutes"), lead},
                  {QStringLiteral("favouriteAdded"), !isFollowed},
                  {QStringLiteral("show"), ShowPrinter(m_delegate.channelData()).json({show}).first()}});
}

void AlarmRun::unalarm()
{
    if (!m_line.options.contains(QStringLiteral("--at"))) {
        const std::optional<QString> listed = listedTitle();
        const QString title = listed ? *listed : favouriteNamed();
        wait([&](const auto& done) { m_requests.removeAlarms(title, done); });
        answer(localized("No alarms any more: %1").arg(printable(title)), {{QStringLiteral("removed"), title}});
        return;
    }
    const Show show = broadcast();
    const QString title = show->entry->identificator().value_or(QString());
    wait([&](const auto& done) { m_requests.removeAlarm(show, done); });
    QString text = localized("No alarm any more: %1").arg(lineOf(show));
    if (m_engine.alarmedIdentificatorType(title))
        text += QLatin1Char('\n') +
                localized("All broadcasts of this favourite have alarms: the next update sets it again.");
    answer(text, {{QStringLiteral("removed"), title},
                  {QStringLiteral("show"), ShowPrinter(m_delegate.channelData()).json({show}).first()}});
}

void AlarmRun::alerts()
{
    std::optional<ShowList> shows;
    m_engine.alertsScheduleWithPriority(QualityOfService::UserInitiated, [&](const CompoundListing& listing) {
        shows.emplace();
        for (const QString& date : listing.dates)
            shows->insert(shows->end(), listing.sections.at(date).begin(), listing.sections.at(date).end());
    });
    DispatchQueue::runMain([&] { return shows.has_value(); });
    const ShowPrinter printer(m_delegate.channelData());
    QJsonArray array;
    for (const Show& show : *shows) {
        QJsonObject object = printer.json({show}).first().toObject();
        object.insert(QStringLiteral("minutes"), m_engine.alarmedEntry(*show->entry));
        array.append(object);
    }
    answer(shows->empty() ? localized("No alarms.") : printer.byDays(*shows).trimmed(),
           {{QStringLiteral("alerts"), array}});
}

void AlarmRun::silentHours()
{
    SilentHours& hours = m_delegate.silentHours();
    const QTimeZone zone = DeviceSettings::timeZone();
    const QStringList& times = m_line.arguments;
    if (times.size() == 1 && times.front() == QLatin1String("off")) {
        wait([&](const auto& done) { m_requests.setSilentHoursEnabled(false, done); });
    } else if (!times.isEmpty()) {
        const QTime from = QTime::fromString(times.front(), QStringLiteral("H:mm"));
        const QTime to = QTime::fromString(times.back(), QStringLiteral("H:mm"));
        if (times.size() != 2 || !from.isValid() || !to.isValid())
            throw Refusal{localized("silent-hours takes two times such as 00:00 07:00, or \"off\".")};
        wait([&](const auto& done) { m_requests.setSilentHours(from, to, done); });
    }
    const QString from = SilentHours::timeOf(hours.fromTimestamp(), zone).toString(QStringLiteral("HH:mm"));
    const QString to = SilentHours::timeOf(hours.toTimestamp(), zone).toString(QStringLiteral("HH:mm"));
    QString text = hours.enabled() ? localized("Favourites do not ring between %1 and %2.").arg(from, to)
                                   : localized("No silent hours.");
    const SilentPeriod period = hours.period();
    if (period.enabled && period.from >= period.to)
        text += QLatin1Char('\n') + localized("A period that crosses midnight, or has no length, silences them at "
                                              "every time of the day.");
    answer(text,
           {{QStringLiteral("enabled"), hours.enabled()}, {QStringLiteral("from"), from}, {QStringLiteral("to"), to}});
}

} // namespace

bool isAlarmCommand(const QString& command)
{
    return AlarmRun::handlers().contains(command);
}

bool changesAlarms(const CommandLine& line)
{
    // Without an argument these show what is set, and "favourites" and "alerts" take none.
    return isAlarmCommand(line.command) && !line.arguments.isEmpty();
}

int runAlarmCommand(const CommandLine& line, Device& device)
{
    return AlarmRun(line, device).run();
}

} // namespace vidora
