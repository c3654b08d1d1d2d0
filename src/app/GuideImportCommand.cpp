#include "app/GuideImportCommand.h"

#include "app/ShowPrinter.h"
#include "core/GuideImport.h"
#include "platform/Localized.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace vidora {

namespace {

// One line on a terminal that the next one takes the place of.
void showProgress(const QString& text)
{
    if (isatty(STDERR_FILENO) == 1)
        std::fprintf(stderr, "\r\x1b[K%s", text.toUtf8().constData());
}

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

} // namespace

int importGuide(const CommandLine& line, Device& device)
{
    const GuideImport guideImport(device.network(), Device::ownCatalogue(device.folders()),
                                  Device::ownIcons(device.folders()));
    std::optional<std::variant<ImportReport, QString>> outcome;
    showProgress(localized("reading %1").arg(line.arguments.front()));
    DispatchQueue::global(QualityOfService::UserInitiated).async([&] {
        auto made = guideImport.import(line.arguments.front(), [&](std::size_t done, std::size_t of) {
            showProgress(localized("icons: %1 of %2").arg(done).arg(of));
            return !device.isEnding();
        });
        DispatchQueue::main().async([&, made = std::move(made)]() mutable { outcome = std::move(made); });
    });
    DispatchQueue::runMain([&] { return outcome.has_value(); });
    showProgress({});

    if (const auto* message = std::get_if<QString>(&*outcome)) {
        std::fprintf(stderr, "%s\n", message->toUtf8().constData());
        return 1;
    }
    const auto& report = std::get<ImportReport>(*outcome);
    const std::size_t stillSelected = expireSelected(device.delegate().channels(), report);
    if (line.json)
        printText(QString::fromUtf8(QJsonDocument(reportJson(report, stillSelected)).toJson()));
    else
        printText(reportText(report, stillSelected));
    return 0;
}

} // namespace vidora
