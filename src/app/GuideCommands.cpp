#include "app/ChannelNames.h"
#include "app/Command.h"
#include "app/CommandSession.h"
#include "app/Progress.h"
#include "core/GuideImport.h"
#include "platform/BlockOwner.h"
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

QJsonObject reportJson(const ImportReport& report, const GuideIcons::Counts& icons, std::size_t stillSelected)
{
    const auto number = [](std::size_t value) { return static_cast<qint64>(value); };
    return {{QStringLiteral("address"), report.address.text()},
            {QStringLiteral("channels"), number(report.channels.size())},
            {QStringLiteral("programmes"), number(report.guide.programmes)},
            {QStringLiteral("days"), number(report.guide.days)},
            {QStringLiteral("iconsFetched"), number(icons.fetched)},
            {QStringLiteral("iconsDrawn"), number(icons.drawn)},
            {QStringLiteral("iconsWaiting"), number(icons.waiting)},
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

/// Fetches the icons that are due, for as long as a user would wait; the others come another time.
void fetchIcons(CommandSession& session, GuideIcons& icons, GuideIcons::Which which)
{
    constexpr Seconds longest(10);
    const auto ended = std::make_shared<std::atomic<bool>>(false);
    const BlockOwner blocks;
    blocks.after(longest, [ended] { *ended = true; });
    ProgressLine progress;
    const IconProgress draw = [&progress](std::size_t done, std::size_t of) {
        DispatchQueue::main().async(
            [&progress, done, of] { progress.draw(done, of, localized("icons: %1 of %2").arg(done).arg(of)); });
    };
    session.aside([&] {
        icons.fetch(session.device().network(), which, ended, draw);
        return true;
    });
}

void import(CommandSession& session)
{
    const QString& source = session.line().arguments.front();
    GuideIcons icons(Device::ownIcons(session.device().folders()), session.device().clock());
    const GuideImport guideImport(session.device().network(), Device::ownCatalogue(session.device().folders()), icons);
    ProgressLine progress;
    progress.draw(localized("reading %1").arg(source));
    const auto outcome =
        session.aside([&] { return guideImport.import(source, [&] { return session.device().isEnding(); }); });
    progress.clear();

    if (const auto* message = std::get_if<QString>(&outcome))
        throw Refusal{*message};
    const auto& report = std::get<ImportReport>(outcome);
    const std::size_t stillSelected = expireSelected(session.delegate().channels(), report);
    // The guide is there; the rest of the time goes to its icons.
    if (!session.line().json)
        session.answer(reportText(report, stillSelected), {});
    fetchIcons(session, icons, GuideIcons::Which::MissingAndOld);
    if (session.line().json)
        session.answer({}, reportJson(report, icons.counts(), stillSelected));
}

/// What an import or an earlier update had no time for, and what failed a day ago or more.
void fetchMissingIcons(CommandSession& session)
{
    if (!session.device().hasOwnGuide() || !session.device().keepsChanges())
        return;
    GuideIcons icons(Device::ownIcons(session.device().folders()), session.device().clock());
    if (icons.counts().waiting > 0)
        fetchIcons(session, icons, GuideIcons::Which::Missing);
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
    if (session.line().command == QLatin1String("update"))
        fetchMissingIcons(session);
}

} // namespace

const CommandFamily& guideCommands()
{
    static const CommandFamily family{
        {.name = "update",
         .meaning = QT_TRANSLATE_NOOP("vidora", "fetch what is missing or old"),
         .changesWith = 0,
         .fetches = true,
         .run = update},
        {.name = "import",
         .arguments = QT_TRANSLATE_NOOP("vidora", "ADDRESS"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "use an XMLTV guide of your own: an address or a file"),
         .least = 1,
         .most = 1,
         .kind = ValueKind::File,
         .changesWith = 0,
         .run = import},
    };
    return family;
}

} // namespace vidora
