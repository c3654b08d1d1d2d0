#include "app/window/StreamMediaPlayer.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QMediaDevices>
#include <QUrl>

namespace vidora {

void StreamMediaPlayer::chooseBackend()
{
    if (!qEnvironmentVariableIsSet("QT_MEDIA_BACKEND"))
        qputenv("QT_MEDIA_BACKEND", "gstreamer");
}

StreamMediaPlayer::StreamMediaPlayer(const URL& url)
{
    if (!QMediaDevices::audioOutputs().isEmpty()) {
        m_audio = new QAudioOutput(this);
        m_player.setAudioOutput(m_audio);
        connect(m_audio, &QAudioOutput::volumeChanged, this, &StreamMediaPlayer::volumeChanged);
    }
    connect(&m_player, &QMediaPlayer::mediaStatusChanged, this, &StreamMediaPlayer::stateChanged);
    connect(&m_player, &QMediaPlayer::playbackStateChanged, this, &StreamMediaPlayer::stateChanged);
    connect(&m_player, &QMediaPlayer::tracksChanged, this, &StreamMediaPlayer::stateChanged);
    connect(&m_player, &QMediaPlayer::errorChanged, this, &StreamMediaPlayer::stateChanged);
    connect(&m_player, &QMediaPlayer::positionChanged, this, &StreamMediaPlayer::positionChanged);
    const QUrl source(url.text());
    m_isRefused = source.scheme() != QLatin1String("http") && source.scheme() != QLatin1String("https");
    if (!m_isRefused)
        m_player.setSource(source);
}

StreamMediaPlayer::~StreamMediaPlayer()
{
    m_player.stop();
}

StreamPlayer::Status StreamMediaPlayer::status() const
{
    if (m_isRefused || m_player.error() != QMediaPlayer::NoError)
        return Status::Failed;
    switch (m_player.mediaStatus()) {
    case QMediaPlayer::LoadedMedia:
    case QMediaPlayer::BufferingMedia:
    case QMediaPlayer::BufferedMedia:
    case QMediaPlayer::EndOfMedia: // also said of an address where there was nothing to play
        return m_player.hasVideo() || m_player.hasAudio() ? Status::ReadyToPlay : Status::Unknown;
    case QMediaPlayer::InvalidMedia:
        return Status::Failed;
    case QMediaPlayer::NoMedia:
    case QMediaPlayer::LoadingMedia:
    case QMediaPlayer::StalledMedia:
        break;
    }
    return Status::Unknown;
}

void StreamMediaPlayer::play()
{
    m_player.play();
}

void StreamMediaPlayer::pause()
{
    m_player.pause();
}

void StreamMediaPlayer::seekToStart()
{
    m_player.setPosition(0);
}

void StreamMediaPlayer::setVideoOutput(QObject* output)
{
    m_player.setVideoOutput(output);
    Q_EMIT videoOutputChanged();
}

qreal StreamMediaPlayer::volume() const
{
    return m_audio ? m_audio->volume() : 0;
}

void StreamMediaPlayer::setVolume(qreal volume)
{
    if (m_audio)
        m_audio->setVolume(static_cast<float>(volume));
}

void StreamMediaPlayer::toggle()
{
    isPlaying() ? m_player.pause() : m_player.play();
}

} // namespace vidora
