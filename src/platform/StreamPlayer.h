#pragma once

namespace vidora {

/// Plays one stream. Main thread.
class StreamPlayer
{
public:
    enum class Status
    {
        Unknown = 0,
        ReadyToPlay = 1,
        Failed = 2
    };

    virtual ~StreamPlayer() = default;
    virtual Status status() const = 0;
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual void seekToStart() = 0;
};

} // namespace vidora
