#pragma once

#include "core/VidoraAppDelegate.h"
#include "screens/ScreenModel.h"

namespace vidora {

/// The channels of the home screen as a short list, to jump to one of them.
class ChannelListViewController final : public ScreenModel
{
public:
    /// The four lists are of one length. The delegate outlives the screen.
    ChannelListViewController(VidoraAppDelegate& delegate, std::vector<ObjectId> identificators,
                              std::vector<QString> titles, std::vector<QString> icons, std::vector<QString> iconNames);

    QString title() const override { return localized("Channels"); }
    std::size_t numberOfRowsInSection(std::size_t) const override { return m_channelIdentificators.size(); }
    ScreenRow rowAt(RowPath path) const override;
    /// Goes back and opens the channel, or plays it when it has a stream and no shows.
    void selectRow(RowPath path) override;

private:
    VidoraAppDelegate& m_delegate;
    const std::vector<ObjectId> m_channelIdentificators;
    const std::vector<QString> m_channelTitles, m_channelIcons, m_channelIconNames;
};

} // namespace vidora
