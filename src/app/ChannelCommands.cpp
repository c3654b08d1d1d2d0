#include "app/ChannelNames.h"
#include "app/Command.h"
#include "app/CommandSession.h"
#include "app/ShowPrinter.h"
#include "platform/Localized.h"
#include "screens/AllChannelsViewController.h"

#include <algorithm>

namespace vidora {

namespace {

void channels(CommandSession& session)
{
    const AllChannelsViewController chooser(
        session.delegate(), std::make_shared<const std::vector<ChannelGroup>>(channelGroups(session.catalogue())));
    QJsonArray array;
    // All of them: the chooser offers only one of several that bear the same title.
    for (const ObjectId& id : channelsByTitle(session.catalogue())) {
        const ChannelDictionary& channel = session.catalogue().at(id);
        array.append(QJsonObject{{QStringLiteral("channel"), id.hex()},
                                 {QStringLiteral("channelTitle"), titleOf(id, session.catalogue())},
                                 {QStringLiteral("language"), channel.language().value_or(QString())},
                                 {QStringLiteral("hasStream"), channel.stream().has_value()},
                                 {QStringLiteral("selected"), chooser.isSelected(id)}});
    }
    session.answer(ShowPrinter(session.catalogue()).screen(chooser), {{QStringLiteral("channels"), array}});
}

std::vector<ObjectId> namedChannels(CommandSession& session)
{
    std::vector<ObjectId> ids;
    for (const QString& name : session.line().arguments)
        ids.push_back(channelNamed(name, session.catalogue()));
    return ids;
}

void choose(CommandSession& session, const ChannelIds& selection)
{
    session.delegate().changeSelection(selection);
    say(localized("%n channels are chosen.", selection.size()));
}

void select(CommandSession& session)
{
    ChannelIds selection = session.delegate().channels().selected();
    for (const ObjectId& id : namedChannels(session)) {
        if (std::find(selection.begin(), selection.end(), id) == selection.end())
            selection.push_back(id);
    }
    choose(session, selection);
}

void unselect(CommandSession& session)
{
    ChannelIds selection = session.delegate().channels().selected();
    for (const ObjectId& id : namedChannels(session))
        std::erase(selection, id);
    choose(session, selection);
}

} // namespace

const CommandFamily& channelCommands()
{
    static const CommandFamily family{
        {.name = "channels",
         .meaning = QT_TRANSLATE_NOOP("vidora", "the catalogue, the chosen channels marked"),
         .run = channels},
        {.name = "select",
         .arguments = "X...",
         .meaning = QT_TRANSLATE_NOOP("vidora", "choose channels"),
         .least = 1,
         .most = Command::any,
         .kind = ValueKind::Channel,
         .changesWith = 0,
         .run = select},
        {.name = "unselect",
         .arguments = "X...",
         .meaning = QT_TRANSLATE_NOOP("vidora", "give channels up"),
         .least = 1,
         .most = Command::any,
         .kind = ValueKind::Channel,
         .changesWith = 0,
         .run = unselect},
    };
    return family;
}

} // namespace vidora
