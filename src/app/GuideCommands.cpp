#include "app/ChannelNames.h"
#include "app/Command.h"
#include "app/CommandSession.h"
#include "app/Progress.h"
#include "core/GuideImport.h"
#include "platform/Localized.h"

#include <algorithm>

namespace vidora {

namespace {

// The lists of an earlier guide stay in sight until the next update, which replaces them however young they are.
std::size_t expireSelected(TVChannels& channels, const ImportReport& report)
{
    std::size_t stillSelected = 0;
    for (const ObjectId& id : channels.selected()) {
        if (std::find(report.channels.begin(), report.channels.end(), id) == report.channels.end())
            continue;
        ++stillSelected;
        if (const auto channel = channels.channelWithChannelId(id))
            channel->expire();
    }
    return stillSelected;
}

QString skippedText(const GuideSummary& guide)
{
    QString text;
    const auto add = [&](std::size_t count, const char* what) {
        if (count > 0)
            text += localized(what, count) + QLatin1Char('\n');
    };
    add(guide.channelsWithoutId, QT_TRANSLATE_N_NOOP("vidora", "Skipped: %n channels without an id."));
    add(guide.channelsTwice, QT_TRANSLATE_N_NOOP("vidora", "Skipped: %n channels whose id was there already."));
    add(guide.programmesWithoutTimes,
        QT_TRANSLATE_N_NOOP("vidora", "Skipped: %n programmes without a start and an end with an offset."));
    add(guide.programmesOfUnknownChannels,
        QT_TRANSLATE_N_NOOP("vidora", "Skipped: %n programmes of channels that the guide does not list."));
    return text;
}

QJsonObject reportJson(const ImportReport& report, std::size_t stillSelected)
{
    const auto number = [](std::size_t value) { return static_cast<qint64>(value); };
    return {{QStringLiteral("address"), report.address.text()},
            {QStringLiteral("channels"), number(report.channels.size())},
            {QStringLiteral("programmes"), number(report.guide.programmes)},
            {QStringLiteral("days"), number(report.guide.days)},
            {QStringLiteral("iconsFetched"), number(report.iconsFetched)},
            {QStringLiteral("stillSelected"), number(stillSelected)},
            {QStringLiteral("channelsWithoutId"), number(report.guide.channelsWithoutId)},
            {QStringLiteral("channelsTwice"), number(report.guide.channelsTwice)},
            {QStringLiteral("programmesWithoutTimes"), number(report.guide.programmesWithoutTimes)},
            {QStringLiteral("programmesOfUnknownChannels"), number(report.guide.programmesOfUnknownChannels)}};
}

QString reportText(const ImportReport& report, std::size_t stillSelected)
{
    QString text = localized("%1 channels, %2 programmes on %3 days.")
                       .arg(report.channels.size())
                       .arg(report.guide.programmes)
                       .arg(report.guide.days) +
                   QLatin1Char('\n') + skippedText(report.guide);
    text += stillSelected > 0
                ? localized("%n of the channels chosen before are in it; \"vidora update\" reads their shows.",
                            stillSelected)
                : localized("Choose channels with \"vidora select X...\", then \"vidora update\".");
    return text + QLatin1Char('\n');
}

void import(CommandSession& session)
{
    const QString& source = session.line().arguments.front();
    const GuideImport guideImport(session.device().network(), Device::ownCatalogue(session.device().folders()),
                                  Device::ownIcons(session.device().folders()));
    ProgressLine progress;
    progress.draw(localized("reading %1").arg(source));
    const auto outcome = session.aside([&] {
        return guideImport.import(source, [&](std::size_t done, std::size_t of) {
            progress.draw(localized("icons: %1 of %2").arg(done).arg(of));
            return !session.device().isEnding();
        });
    });
    progress.clear();

    if (const auto* message = std::get_if<QString>(&outcome))
        throw Refusal{*message};
    const auto& report = std::get<ImportReport>(outcome);
    const std::size_t stillSelected = expireSelected(session.delegate().channels(), report);
    session.answer(reportText(report, stillSelected), reportJson(report, stillSelected));
}

void update(CommandSession& session)
{
    if (!session.hasSelection())
        return;
    Progress progress(session.catalogue());
    session.delegate().setUpdateObserver(&progress);
    session.delegate().applicationDidBecomeActive();
    DispatchQueue::runMain([&] { return progress.ended(); });
    session.delegate().setUpdateObserver(nullptr);

    QStringList failed;
    for (const ObjectId& id : progress.failed())
        failed << titleOf(id, session.catalogue());
    failed.sort();
    if (session.line().json && session.line().command == QLatin1String("update")) {
        session.answer({}, {{QStringLiteral("channels"), static_cast<qint64>(progress.wanted())},
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
    if (progress.wanted() > 0 && progress.failed().size() == progress.wanted())
        session.fail();
}

} // namespace

const CommandFamily& guideCommands()
{
    static const CommandFamily family{
        {.name = "update",
         .meaning = QT_TRANSLATE_NOOP("vidora", "fetch what is missing or old"),
         .changes = Touches::Everything,
         .fetches = true,
         .run = update},
        {.name = "import",
         .arguments = QT_TRANSLATE_NOOP("vidora", "ADDRESS"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "use an XMLTV guide of your own: an address or a file"),
         .least = 1,
         .most = 1,
         .kind = ValueKind::File,
         .changes = Touches::Everything,
         .run = import},
    };
    return family;
}

} // namespace vidora
