#include "app/ChannelNames.h"
#include "app/Command.h"
#include "app/CommandSession.h"
#include "app/ShowPrinter.h"
#include "content/TVListingsCategory.h"
#include "core/ChannelFace.h"
#include "platform/Localized.h"
#include "screens/ChannelViewController.h"
#include "screens/RootViewController.h"

#include <algorithm>

namespace vidora {

namespace {

void now(CommandSession& session)
{
    if (!session.line().json && !session.hasSelection())
        return;
    RootViewController home(session.delegate());
    home.viewWillAppear();
    home.selectedChannelsChanged();
    DispatchQueue::runMain([&] { return home.hasContent(); });
    const ShowPrinter printer(session.catalogue());
    if (!session.line().json)
        return session.answer(printer.screen(home), {});
    QJsonArray array;
    for (const RootViewController::Section& section : home.sections()) {
        const ObjectId& channel = section.channel.channel;
        array.append(QJsonObject{{QStringLiteral("channel"), channel.hex()},
                                 {QStringLiteral("channelTitle"), titleOf(channel, session.catalogue())},
                                 {QStringLiteral("shows"), printer.json(section.entries)}});
    }
    session.answer({}, {{QStringLiteral("channels"), array}});
}

void answerShows(CommandSession& session, const ShowList& shows)
{
    const ShowPrinter printer(session.catalogue());
    if (session.line().json)
        session.answer({}, {{QStringLiteral("shows"), printer.json(shows)}});
    else if (shows.empty())
        say(localized("No shows."));
    else
        printText(printer.byDays(shows));
}

void channelShows(CommandSession& session)
{
    const ObjectId id = channelNamed(session.argument(), session.catalogue());
    const auto list = session.answerOf<SharedShowList>([&](const auto& answer) {
        session.delegate().listings().cachedListForChannel(id, QualityOfService::UserInitiated, answer);
    });
    if (session.line().json || list->empty())
        return answerShows(session, *list);
    const ChannelViewController screen(session.delegate(), channelFace(id, session.catalogue()), *list);
    printText(ShowPrinter(session.catalogue()).screen(screen));
}

ShowList showsOfCategory(CommandSession& session, TVListingsCategory category)
{
    const auto listing = session.answerOf<CompoundListing>([&](const auto& answer) {
        TVListings& listings = session.delegate().listings();
        const bool isList = category == category::all || category == category::evening || category == category::popular;
        if (isList)
            listings.allShowsWithCategory(category, QualityOfService::UserInitiated, answer);
        else
            listings.showsWithCategory(category, QualityOfService::UserInitiated, answer);
    });
    ShowList shows;
    for (const QString& date : listing.dates) {
        const ShowList& section = listing.sections.at(date);
        shows.insert(shows.end(), section.begin(), section.end());
    }
    return shows;
}

void categoryShows(CommandSession& session)
{
    std::vector<TVListingsCategory> values{category::all, category::film, category::evening, category::popular};
    for (TVListingsCategory bit = category::movies; bit <= category::horrors; bit <<= 1)
        values.push_back(bit);
    QStringList labels, keys;
    for (const TVListingsCategory value : values) {
        keys << textForCategory(static_cast<std::int32_t>(value));
        labels << localized(keys.back().toUtf8().constData());
    }
    QStringList candidates = candidatesFor(session.argument(), labels);
    if (candidates.isEmpty())
        candidates = candidatesFor(session.argument(), keys);
    candidates.removeDuplicates();
    if (candidates.size() != 1)
        throw Refusal{ambiguousName(session.argument(), candidates, labels)};
    const qsizetype index = std::max(labels.indexOf(candidates.front()), keys.indexOf(candidates.front()));
    answerShows(session, showsOfCategory(session, values[static_cast<std::size_t>(index)]));
}

void search(CommandSession& session)
{
    const auto shows = session.answerOf<SharedShowList>(
        [&](const auto& answer) { session.delegate().listings().showsContainingPattern(session.argument(), answer); });
    answerShows(session, *shows);
}

void chooseFirstChannels(CommandSession& session)
{
    constexpr std::size_t dozen = 12;
    std::vector<ObjectId> ids = channelsByTitle(session.catalogue());
    ids.resize(std::min(ids.size(), dozen));
    if (ids.empty() || session.device().hasOwnGuide())
        return;
    session.delegate().changeSelection(ids);
    say(localized(
            "This is a first look at a made-up region, with the first %1 of its %2 channels. \"vidora import\" reads a "
            "guide of your own.")
            .arg(ids.size())
            .arg(session.catalogue().size()));
}

void tonight(CommandSession& session)
{
    if (session.delegate().channels().selected().empty())
        chooseFirstChannels(session);
    if (!session.hasSelection())
        return;
    commandNamed(QStringLiteral("update"))->run(session);
    if (session.isDone() && !session.device().isEnding())
        now(session);
}

} // namespace

const CommandFamily& showCommands()
{
    static const CommandFamily family{
        {.name = "",
         .meaning = QT_TRANSLATE_NOOP(
             "vidora",
             "Without a command: the window; without a display, what is on now, after an update where one is due."),
         .changesWith = 0,
         .fetches = true,
         .run = tonight},
        {.name = "now",
         .meaning = QT_TRANSLATE_NOOP("vidora", "what is on now and next on the chosen channels"),
         .run = now},
        {.name = "channel",
         .arguments = "X",
         .meaning = QT_TRANSLATE_NOOP("vidora", "all coming shows of a channel, by days"),
         .least = 1,
         .most = Command::any,
         .kind = ValueKind::Channel,
         .run = channelShows},
        {.name = "category",
         .arguments = "X",
         .meaning = QT_TRANSLATE_NOOP("vidora", "coming shows of a category"),
         .least = 1,
         .most = Command::any,
         .kind = ValueKind::Title,
         .run = categoryShows},
        {.name = "search",
         .arguments = QT_TRANSLATE_NOOP("vidora", "TEXT"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "coming shows that contain a text"),
         .least = 1,
         .most = Command::any,
         .run = search},
    };
    return family;
}

} // namespace vidora
