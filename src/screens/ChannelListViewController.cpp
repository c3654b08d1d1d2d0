#include "screens/ChannelListViewController.h"

#include "screens/Navigation.h"
#include "screens/ShowRows.h"

namespace vidora {

ChannelListViewController::ChannelListViewController(VidoraAppDelegate& delegate, std::vector<ChannelFace> channels,
                                                     Chosen chosen)
    : m_delegate(delegate)
    , m_channels(std::move(channels))
    , m_chosen(std::move(chosen))
{
}

ScreenRow ChannelListViewController::rowAt(RowPath path) const
{
    ScreenRow row = channelRow(m_delegate, m_channels[path.row]);
    row.accessory = Accessory::Disclosure;
    return row;
}

void ChannelListViewController::selectRow(RowPath path)
{
    if (path.row >= m_channels.size())
        return;
    const auto chosen = [chosen = m_chosen, channel = m_channels[path.row]] { chosen(channel); };
    dismiss(m_delegate, *this); // this screen may be gone from here on
    chosen();
}

} // namespace vidora
