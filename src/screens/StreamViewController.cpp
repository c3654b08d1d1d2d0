#include "screens/StreamViewController.h"

#include "core/ChannelFace.h"
#include "screens/ScreenModel.h"

namespace vidora {

namespace {

constexpr Seconds patience{25};

QString titleOfStream(const ChannelData& channels, const URL& url)
{
    for (const auto& [id, record] : channels) {
        if (const ChannelFace channel = channelFace(id, channels); channel.streamURL == url)
            return channel.title;
    }
    return {};
}

} // namespace

StreamViewController::StreamViewController(VidoraAppDelegate& delegate)
    : m_delegate(delegate)
{
    m_delegate.setStreams(this);
}

StreamViewController::~StreamViewController()
{
    m_delegate.setStreams(nullptr);
    if (m_player)
        m_player->pause();
}

void StreamViewController::playURL(const URL& url)
{
    moviePlayerPlaybackDidFinish();
    m_player = playerWithURL ? playerWithURL(url) : nullptr;
    if (!m_player)
        return;
    m_title = titleOfStream(m_delegate.channelData(), url);
    play();
    if (playerChanged)
        playerChanged();
}

void StreamViewController::playOpenStream()
{
    if (m_player)
        m_player->play();
}

void StreamViewController::play()
{
    if (!m_player)
        return;
    m_player->play();
    m_mainBlocks.after(patience, [this, player = std::weak_ptr(m_player)] { checkIsReady(player); });
}

void StreamViewController::checkIsReady(const std::weak_ptr<StreamPlayer>& player)
{
    if (!m_player || player.lock() != m_player || m_player->status() == StreamPlayer::Status::ReadyToPlay)
        return;
    moviePlayerPlaybackDidFinish();
    const auto close = m_mainBlocks.guarded([this] {
        m_delegate.networkAlerts().alertedNow();
        moviePlayerPlaybackDidFinish();
    });
    m_delegate.tabBarController().present(
        {localized("Alert"),
         localized("Streaming of this video is currently unavailable or your Internet connection speed is not "
                   "adequate."),
         {{localized("OK"), close}}});
}

void StreamViewController::moviePlayerPlaybackDidFinish()
{
    if (!m_player)
        return;
    const auto closed = std::exchange(m_player, nullptr);
    closed->pause();
    closed->seekToStart();
    if (playerChanged)
        playerChanged();
}

} // namespace vidora
