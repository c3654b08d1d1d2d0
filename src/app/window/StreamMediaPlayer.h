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
    /// Whether there is anything to hear it with; the pictures play without.
    Q_PROPERTY(bool audible READ isAudible CONSTANT)
    /// Milliseconds since the beginning.
    Q_PROPERTY(qint64 position READ position NOTIFY positionChanged)
    Q_PROPERTY(qreal volume READ volume WRITE setVolume NOTIFY volumeChanged)

public:
    /// Chooses the way of playing that neither holds the window up while a server is silent nor needs a device for
    /// sound. Ahead of the first player.
    static void chooseBackend();

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
    bool isAudible() const { return m_audio != nullptr; }
    qint64 position() const { return m_player.position(); }
    qreal volume() const;
    void setVolume(qreal volume);

    Q_INVOKABLE void toggle();

Q_SIGNALS:
    void videoOutputChanged();
    void stateChanged();
    void positionChanged();
    void volumeChanged();

private:
    QMediaPlayer m_player;
    QAudioOutput* m_audio = nullptr;
    bool m_isRefused = false;
};

} // namespace vidora
