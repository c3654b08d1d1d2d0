#pragma once

#include "core/VidoraAppDelegate.h"
#include "platform/StreamPlayer.h"

#include <functional>
#include <memory>
#include <optional>

namespace vidora {

/// The stream that fills the window while it plays. At most one is open. Main thread.
class StreamViewController final : public StreamScreen
{
public:
    /// The delegate outlives this object.
    explicit StreamViewController(VidoraAppDelegate& delegate);
    ~StreamViewController() override;

    /// Makes the player of a stream. Set by the window; without one nothing plays.
    std::function<std::shared_ptr<StreamPlayer>(const URL& url)> playerWithURL;
    /// A player was opened or closed.
    std::function<void()> playerChanged;

    void playURL(const URL& url) override;
    void playOpenStream() override;
    /// Starts the open player, again where it already did. One that isn't ready in 25 seconds is closed, and the user
    /// is told.
    void play();
    /// Closes the open player, if any.
    void moviePlayerPlaybackDidFinish();
    /// Null while none is open.
    const std::shared_ptr<StreamPlayer>& player() const { return m_player; }
    /// Title of the channel whose stream was opened last; empty for an address of no channel.
    const QString& title() const { return m_title; }

private:
    void checkIsReady(const std::weak_ptr<StreamPlayer>& player);

    VidoraAppDelegate& m_delegate;
    std::shared_ptr<StreamPlayer> m_player;
    QString m_title;
    BlockOwner m_mainBlocks;
};

} // namespace vidora
