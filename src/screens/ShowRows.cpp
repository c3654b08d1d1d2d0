#include "screens/ShowRows.h"

#include <algorithm>

namespace vidora {

namespace {

QString startTimeColour(const VidoraAppDelegate& delegate, const TVEntry& entry, bool isOnAir)
{
    const ShowMarks* marks = delegate.showServices().marks;
    if (marks && marks->alarmedEntry(entry) >= 0)
        return colour::alarmRed;
    if (!delegate.colorizedShows())
        return colour::secondaryLabel;
    if (isOnAir)
        return colour::onAirGreen;
    if (marks && entry.identificator() && marks->containsFavoriteNamed(*entry.identificator()))
        return colour::favouriteOrange;
    return colour::secondaryLabel;
}

bool isPopular(const TVListings& listings, const Show& show)
{
    const SharedShowList popular = listings.popularShows();
    return popular && std::any_of(popular->begin(), popular->end(),
                                  [&](const Show& other) { return other->entry == show->entry; });
}

} // namespace

TextAttributes subtitleAttributes()
{
    TextAttributes attributes;
    attributes.pointSize = 13;
    attributes.colour = TextAttributes::Colour::SecondaryLabel;
    return attributes;
}

ScreenRow showRow(VidoraAppDelegate& delegate, const Show& show, bool isOnAir)
{
    const TVEntry& entry = *show->entry;
    ScreenRow row;
    row.kind = ScreenRow::Kind::Broadcast;
    row.text =
        entry.humanCondensedWithColor(startTimeColour(delegate, entry, isOnAir), isPopular(delegate.listings(), show));
    if (const auto details = entry.fullInstantDetails())
        row.text.append(QLatin1Char('\n') + *details, subtitleAttributes());
    row.accessory = Accessory::Disclosure;
    row.swipeable = true;
    row.show = show;
    return row;
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
