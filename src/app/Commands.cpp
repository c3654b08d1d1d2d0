#include "app/Commands.h"

#include "app/AlarmCommands.h"
#include "app/CalendarCommands.h"
#include "app/ChannelNames.h"
#include "app/Device.h"
#include "app/GuideImportCommand.h"
#include "app/PasswordPrompt.h"
#include "app/Progress.h"
#include "app/ShowPrinter.h"
#include "content/TVListingsCategory.h"
#include "core/ChannelFace.h"
#include "platform/Localized.h"
#include "platform/Log.h"
#include "screens/AllChannelsViewController.h"
#include "screens/ChannelViewController.h"
#include "screens/RootViewController.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

namespace vidora {

namespace {

void say(const QString& message)
{
    std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

void printJson(const QJsonObject& object)
{
    printText(QString::fromUtf8(QJsonDocument(object).toJson()));
}

/// Runs a query of the store to its answer, which comes on the main queue.
template<typename Answer>
Answer waitFor(const std::function<void(std::function<void(Answer)>)>& query)
{
    std::optional<Answer> answer;
    query([&](Answer found) { answer = std::move(found); });
    DispatchQueue::runMain([&] { return answer.has_value(); });
    return std::move(*answer);
}

class CommandRun
{
public:
    CommandRun(const CommandLine& line, Device& device)
        : m_line(line)
        , m_device(device)
    {
    }

    int run()
    {
        using Handler = int (CommandRun::*)();
        static const QHash<QString, Handler> handlers{
            {QString(), &CommandRun::tonight},
            {QStringLiteral("update"), &CommandRun::update},
            {QStringLiteral("now"), &CommandRun::now},
            {QStringLiteral("channel"), &CommandRun::channel},
            {QStringLiteral("category"), &CommandRun::category},
            {QStringLiteral("search"), &CommandRun::search},
            {QStringLiteral("channels"), &CommandRun::channels},
            {QStringLiteral("select"), &CommandRun::select},
            {QStringLiteral("unselect"), &CommandRun::unselect},
        };
        return (this->*handlers.value(m_line.command))();
    }

private:
    VidoraAppDelegate& delegate() { return m_device.delegate(); }
    const ChannelData& catalogue() { return delegate().channelData(); }
    QString argument() const { return m_line.arguments.join(QLatin1Char(' ')); }

    int tonight();
    int update();
    int now();
    int channel();
    int category();
    int search();
    int channels();
    int select();
    int unselect();

    bool hasSelection();
    std::optional<std::vector<ObjectId>> namedChannels();
    int printShows(const ShowList& shows);
    ShowList showsOfCategory(TVListingsCategory category);
    void chooseFirstChannels();

    const CommandLine& m_line;
    Device& m_device;
};

bool CommandRun::hasSelection()
{
    if (!delegate().channels().selected().empty())
        return true;
    say(localized("No channels are chosen yet. \"vidora channels\" lists them, \"vidora select X...\" chooses."));
    return false;
}

void CommandRun::chooseFirstChannels()
{
    constexpr std::size_t dozen = 12;
    std::vector<ObjectId> ids = channelsByTitle(catalogue());
    ids.resize(std::min(ids.size(), dozen));
    if (ids.empty() || m_device.hasOwnGuide())
        return;
    delegate().channels().setSelected(ids);
    say(localized(
            "This is a first look at a made-up region, with the first %1 of its %2 channels. \"vidora import\" reads a "
            "guide of your own.")
            .arg(ids.size())
            .arg(catalogue().size()));
}

int CommandRun::tonight()
{
    if (delegate().channels().selected().empty())
        chooseFirstChannels();
    if (!hasSelection())
        return 0;
    const int updated = update();
    return updated == 0 && !m_device.isEnding() ? now() : updated;
}

int CommandRun::update()
{
    if (!hasSelection())
        return 0;
    Progress progress(catalogue());
    delegate().setUpdateObserver(&progress);
    delegate().applicationDidBecomeActive();
    DispatchQueue::runMain([&] { return progress.ended(); });
    delegate().setUpdateObserver(nullptr);

    QStringList failed;
    for (const ObjectId& id : progress.failed())
        failed << titleOf(id, catalogue());
    failed.sort();
    if (m_line.json && m_line.command == QLatin1String("update")) {
        printJson({{QStringLiteral("channels"), static_cast<qint64>(progress.wanted())},
                   {QStringLiteral("shows"), static_cast<qint64>(progress.shows())},
                   {QStringLiteral("failed"), QJsonArray::fromStringList(failed)}});
    } else {
        say(progress.wanted() == 0 ? localized("Everything is up to date.")
                                   : localized("%1 of %2 channels updated, %3 shows.")
                                         .arg(progress.wanted() - progress.failed().size())
                                         .arg(progress.wanted())
                                         .arg(progress.shows()));
        if (!failed.isEmpty())
            say(localized("Nothing came for: %1").arg(failed.join(QLatin1String(", "))));
    }
    return progress.wanted() > 0 && progress.failed().size() == progress.wanted() ? 1 : 0;
}

int CommandRun::now()
{
    if (!hasSelection() && !m_line.json)
        return 0;
    RootViewController home(delegate());
    home.viewWillAppear();
    home.selectedChannelsChanged();
    DispatchQueue::runMain([&] { return home.hasContent(); });
    const ShowPrinter printer(catalogue());
    if (!m_line.json) {
        printText(printer.screen(home));
        return 0;
    }
    QJsonArray array;
    for (const RootViewController::Section& section : home.sections()) {
        const ObjectId& channel = section.channel.channel;
        array.append(QJsonObject{{QStringLiteral("channel"), channel.hex()},
                                 {QStringLiteral("channelTitle"), titleOf(channel, catalogue())},
                                 {QStringLiteral("shows"), printer.json(section.entries)}});
    }
    printJson({{QStringLiteral("channels"), array}});
    return 0;
}

int CommandRun::printShows(const ShowList& shows)
{
    const ShowPrinter printer(catalogue());
    if (m_line.json)
        printJson({{QStringLiteral("shows"), printer.json(shows)}});
    else if (shows.empty())
        say(localized("No shows."));
    else
        printText(printer.byDays(shows));
    return 0;
}

int CommandRun::channel()
{
    const NamedChannel named = channelNamed(argument(), catalogue());
    if (const auto* message = std::get_if<QString>(&named)) {
        say(*message);
        return 1;
    }
    const ObjectId& id = std::get<ObjectId>(named);
    const auto list = waitFor<SharedShowList>([&](std::function<void(SharedShowList)> answer) {
        delegate().listings().cachedListForChannel(id, QualityOfService::UserInitiated, std::move(answer));
    });
    if (m_line.json || list->empty())
        return printShows(*list);
    const ChannelViewController screen(delegate(), channelFace(id, catalogue()), *list);
    printText(ShowPrinter(catalogue()).screen(screen));
    return 0;
}

ShowList CommandRun::showsOfCategory(TVListingsCategory category)
{
    const auto listing = waitFor<CompoundListing>([&](std::function<void(CompoundListing)> answer) {
        TVListings& listings = delegate().listings();
        const bool isList = category == category::all || category == category::evening || category == category::popular;
        if (isList)
            listings.allShowsWithCategory(category, QualityOfService::UserInitiated, std::move(answer));
        else
            listings.showsWithCategory(category, QualityOfService::UserInitiated, std::move(answer));
    });
    ShowList shows;
    for (const QString& date : listing.dates) {
        const ShowList& section = listing.sections.at(date);
        shows.insert(shows.end(), section.begin(), section.end());
    }
    return shows;
}

int CommandRun::category()
{
    std::vector<TVListingsCategory> values{category::all, category::film, category::evening, category::popular};
    for (TVListingsCategory bit = category::movies; bit <= category::horrors; bit <<= 1)
        values.push_back(bit);
    QStringList labels, keys;
    for (const TVListingsCategory value : values) {
        keys << textForCategory(static_cast<std::int32_t>(value));
        labels << localized(keys.back().toUtf8().constData());
    }
    QStringList candidates = candidatesFor(argument(), labels);
    if (candidates.isEmpty())
        candidates = candidatesFor(argument(), keys);
    candidates.removeDuplicates();
    if (candidates.size() != 1) {
        say(ambiguousName(argument(), candidates, labels));
        return 1;
    }
    const qsizetype index = std::max(labels.indexOf(candidates.front()), keys.indexOf(candidates.front()));
    return printShows(showsOfCategory(values[static_cast<std::size_t>(index)]));
}

int CommandRun::search()
{
    const auto shows = waitFor<SharedShowList>([this](std::function<void(SharedShowList)> answer) {
        delegate().listings().showsContainingPattern(argument(), [answer](SharedShowList found) {
            DispatchQueue::main().async([answer, found] { answer(found); });
        });
    });
    return printShows(*shows);
}

int CommandRun::channels()
{
    const AllChannelsViewController chooser(
        delegate(), std::make_shared<const std::vector<ChannelGroup>>(channelGroups(catalogue())));
    if (!m_line.json) {
        printText(ShowPrinter(catalogue()).screen(chooser));
        return 0;
    }
    QJsonArray array;
    // All of them: the chooser offers only one of several that bear the same title.
    for (const ObjectId& id : channelsByTitle(catalogue())) {
        const ChannelDictionary& channel = catalogue().at(id);
        array.append(QJsonObject{{QStringLiteral("channel"), id.hex()},
                                 {QStringLiteral("channelTitle"), titleOf(id, catalogue())},
                                 {QStringLiteral("language"), channel.language().value_or(QString())},
                                 {QStringLiteral("hasStream"), channel.stream().has_value()},
                                 {QStringLiteral("selected"), chooser.isSelected(id)}});
    }
    printJson({{QStringLiteral("channels"), array}});
    return 0;
}

std::optional<std::vector<ObjectId>> CommandRun::namedChannels()
{
    std::vector<ObjectId> ids;
    for (const QString& name : m_line.arguments) {
        const NamedChannel named = channelNamed(name, catalogue());
        if (const auto* message = std::get_if<QString>(&named)) {
            say(*message);
            return std::nullopt;
        }
        ids.push_back(std::get<ObjectId>(named));
    }
    return ids;
}

int CommandRun::select()
{
    const auto named = namedChannels();
    if (!named)
        return 1;
    ChannelIds selection = delegate().channels().selected();
    for (const ObjectId& id : *named) {
        if (std::find(selection.begin(), selection.end(), id) == selection.end())
            selection.push_back(id);
    }
    delegate().channels().setSelected(selection);
    say(localized("%n channels are chosen.", selection.size()));
    return 0;
}

int CommandRun::unselect()
{
    const auto named = namedChannels();
    if (!named)
        return 1;
    ChannelIds selection = delegate().channels().selected();
    for (const ObjectId& id : *named)
        std::erase(selection, id);
    delegate().channels().setSelected(selection);
    for (const ObjectId& id : *named)
        delegate().listings().removeListingsForChannel(id);
    say(localized("%n channels are chosen.", selection.size()));
    return 0;
}

bool fetches(const QString& command)
{
    return command.isEmpty() || command == QLatin1String("update");
}

bool changes(const CommandLine& line)
{
    const QString& command = line.command;
    return fetches(command) || command == QLatin1String("select") || command == QLatin1String("unselect") ||
           command == QLatin1String("import") || changesAlarms(line) || changesCalendars(line);
}

} // namespace

int runCommand(const CommandLine& line)
{
    if (line.log)
        Log::setSink(say);
    std::optional<QString> password;
    if (wantsCalendarPassword(line)) {
        password = readPassword(localized("Password of %1: ").arg(line.options.value(QStringLiteral("--user"))));
        if (!password) {
            say(localized("No password was given."));
            return 1;
        }
    }
    Device device(line, changes(line) ? Device::Access::Write : Device::Access::Read, fetches(line.command));
    // The blocks queued at launch (pruning, the channel objects) come ahead of every command, and the alarms that rows
    // show are known to them.
    bool launched = false;
    DispatchQueue::main().async([&] { device.delegate().alarmEngine().whenIdle([&] { launched = true; }); });
    DispatchQueue::runMain([&] { return launched; });

    int status = 1;
    if (!changes(line) || fetches(line.command) || device.keepsChanges())
        status = line.command == QLatin1String("import") ? importGuide(line, device)
                 : line.command == QLatin1String("calendars")
                     ? runCalendarCommand(line, device, password.value_or(QString()))
                 : isAlarmCommand(line.command) ? runAlarmCommand(line, device)
                                                : CommandRun(line, device).run();
    device.quit();
    // What a shell reports of a process that a signal ended.
    constexpr int endedBySignal = 128;
    return device.isEnding() ? endedBySignal + device.endSignal() : status;
}

} // namespace vidora
