#include "screens/ChannelListViewController.h"

#include "screens/Navigation.h"
#include "screens/RootViewController.h"

#include <algorithm>

namespace vidora {

ChannelListViewController::ChannelListViewController(VidoraAppDelegate& delegate, std::vector<ObjectId> identificators,
                                                     std::vector<QString> titles, std::vector<QString> icons,
                                                     std::vector<QString> iconNames)
    : m_delegate(delegate)
    , m_channelIdentificators(std::move(identificators))
    , m_channelTitles(std::move(titles))
    , m_channelIcons(std::move(icons))
    , m_channelIconNames(std::move(iconNames))
{
}

ScreenRow ChannelListViewController::rowAt(RowPath path) const
{
    ScreenRow row;
    row.kind = ScreenRow::Kind::Channel;
    row.text = m_channelTitles[path.row];
    row.icon = m_channelIcons[path.row];
    return row;
}

void ChannelListViewController::selectRow(RowPath path)
{
    if (path.row >= m_channelIdentificators.size())
        return;
    const ObjectId channel = m_channelIdentificators[path.row];
    const QString title = m_channelTitles[path.row], iconName = m_channelIconNames[path.row];
    auto* home = dynamic_cast<RootViewController*>(homeScreen(m_delegate));
    dismiss(m_delegate, *this); // this screen may be gone from here on
    if (!home)
        return;
    if (home->hasStream(channel) && !home->hasShows(channel))
        home->play(channel);
    else
        home->selectedChannelIdentificator(channel, title, iconName);
}

} // namespace vidora
