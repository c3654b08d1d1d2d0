#pragma once

#include "core/ChannelFace.h"
#include "core/VidoraAppDelegate.h"
#include "screens/ScreenModel.h"

namespace vidora {

/// The channels of the home screen as a short list, to jump to one of them.
class ChannelListViewController final : public ScreenModel
{
public:
    /// Called once the list is gone again, if it was left by choosing.
    using Chosen = std::function<void(const ChannelFace& channel)>;

    /// The delegate outlives the screen.
    ChannelListViewController(VidoraAppDelegate& delegate, std::vector<ChannelFace> channels, Chosen chosen);

    QString title() const override { return localized("Channels"); }
    std::size_t numberOfRowsInSection(std::size_t) const override { return m_channels.size(); }
    ScreenRow rowAt(RowPath path) const override;
    void selectRow(RowPath path) override;

private:
    VidoraAppDelegate& m_delegate;
    const std::vector<ChannelFace> m_channels;
    const Chosen m_chosen;
};

} // namespace vidora
