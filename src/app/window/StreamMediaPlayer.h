#pragma once

#include "platform/StreamPlayer.h"
#include "platform/URL.h"

#include <QMediaPlayer>
#include <QObject>

class QAudioOutput;

namespace vidora {

/// A stream played by the system's codecs, and what a screen with controls must know of it. Main thread.
class StreamMediaPlayer final : public QObject, public StreamPlayer
{
    Q_OBJECT
    /// The item that shows the pictures; set by the screen.
    Q_PROPERTY(QObject* videoOutput READ videoOutput WRITE setVideoOutput NOTIFY videoOutputChanged)
    Q_PROPERTY(bool playing READ isPlaying NOTIFY stateChanged)
    Q_PROPERTY(bool ready READ isReady NOTIFY stateChanged)
    Q_PROPERTY(bool failed READ hasFailed NOTIFY stateChanged)
    Q_PROPERTY(qreal volume READ volume WRITE setVolume NOTIFY volumeChanged)

public:
    /// Only addresses of the web are opened: a catalogue may have been written by anyone.
    explicit StreamMediaPlayer(const URL& url);
    ~StreamMediaPlayer() override;

    Status status() const override;
    void play() override;
    void pause() override;
    void seekToStart() override;

    QObject* videoOutput() const { return m_player.videoOutput(); }
    void setVideoOutput(QObject* output);
    bool isPlaying() const { return m_player.playbackState() == QMediaPlayer::PlayingState; }
    bool isReady() const { return status() == Status::ReadyToPlay; }
    bool hasFailed() const { return status() == Status::Failed; }
    qreal volume() const;
    void setVolume(qreal volume);

    Q_INVOKABLE void toggle();

Q_SIGNALS:
    void videoOutputChanged();
    void stateChanged();
    void volumeChanged();

private:
    QMediaPlayer m_player;
    QAudioOutput* m_audio;
    bool m_isRefused = false;
};

} // namespace vidora
