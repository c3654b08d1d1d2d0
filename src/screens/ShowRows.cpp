#include "screens/ShowRows.h"

#include "content/BroadcastTime.h"
#include "platform/DeviceSettings.h"

#include <QDateTime>

#include <algorithm>

namespace vidora {

namespace {

QString startTimeColour(const VidoraAppDelegate& delegate, const BroadcastColumns& columns)
{
    if (columns.hasAlarm)
        return colour::alarmRed;
    if (!delegate.colorizedShows())
        return colour::secondaryLabel;
    if (columns.progress)
        return colour::onAirGreen;
    return columns.isFavourite ? colour::favouriteOrange : colour::secondaryLabel;
}

bool isPopular(const TVListings& listings, const Show& show)
{
    const SharedShowList popular = listings.popularShows();
    return popular && std::any_of(popular->begin(), popular->end(),
                                  [&](const Show& other) { return other->entry == show->entry; });
}

} // namespace

namespace {

BroadcastColumns columnsOf(VidoraAppDelegate& delegate, const Show& show, std::optional<double> progress)
{
    constexpr std::int64_t minute = 60'000;
    const TVEntry& entry = *show->entry;
    BroadcastColumns columns;
    if (entry.dateTime())
        columns.start = broadcastTimeText(*entry.dateTime());
    if (entry.endDateTime())
        columns.end = broadcastTimeText(*entry.endDateTime());
    columns.title = entry.title().value_or(QString());
    columns.details = entry.fullInstantDetails().value_or(QString());
    if (const ShowMarks* marks = delegate.showServices().marks) {
        columns.hasAlarm = marks->alarmedEntry(entry) >= 0;
        columns.isFavourite = entry.identificator() && marks->containsFavoriteNamed(*entry.identificator());
    }
    columns.isRepeat = entry.previouslyShown();
    columns.isPopular = isPopular(delegate.listings(), show);
    columns.progress = progress;
    if (progress && entry.endDateTime()) {
        const auto left = (*entry.endDateTime() - delegate.environment().clock.now()).count();
        columns.minutesLeft = static_cast<int>((left + minute - 1) / minute);
    }
    columns.timeColour = startTimeColour(delegate, columns);
    return columns;
}

} // namespace

std::optional<double> progressOf(const TVEntry& entry, Instant now)
{
    const auto start = entry.dateTime(), end = entry.endDateTime();
    if (!start || !end || *start == *end)
        return std::nullopt;
    const double progress = static_cast<double>((now - *start).count()) / static_cast<double>((*end - *start).count());
    return progress >= 0 && progress <= 1 ? std::optional(progress) : std::nullopt;
}

TextAttributes subtitleAttributes()
{
    TextAttributes attributes;
    attributes.pointSize = 13;
    attributes.colour = TextAttributes::Colour::SecondaryLabel;
    return attributes;
}

ScreenRow showRow(VidoraAppDelegate& delegate, const Show& show, std::optional<double> progress)
{
    const TVEntry& entry = *show->entry;
    ScreenRow row;
    row.kind = ScreenRow::Kind::Broadcast;
    row.columns = columnsOf(delegate, show, progress);
    row.text = entry.humanCondensedWithColor(row.columns->timeColour, row.columns->isPopular);
    if (!row.columns->details.isEmpty())
        row.text.append(QLatin1Char('\n') + row.columns->details, subtitleAttributes());
    row.accessory = Accessory::Disclosure;
    row.swipeable = true;
    row.show = show;
    return row;
}

QString updatedText(VidoraAppDelegate& delegate, const ObjectId& channel)
{
    const auto object = delegate.channels().channelWithChannelId(channel);
    const auto loaded = object ? object->timeLoaded() : std::nullopt;
    if (!loaded)
        return {};
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(*loaded), DeviceSettings::timeZone());
    return localized("Updated ") + DeviceSettings::locale().toString(local, QLocale::ShortFormat);
}

ScreenRow channelRow(VidoraAppDelegate& delegate, const ChannelFace& channel)
{
    ScreenRow row;
    row.kind = ScreenRow::Kind::Channel;
    row.text = channel.title;
    row.icon = delegate.icons().iconNamed(channel.iconName).value_or(QString());
    return row;
}

} // namespace vidora
