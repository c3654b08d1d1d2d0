#pragma once

#include "app/Terminal.h"
#include "core/UpdateCycle.h"

#include <QString>

namespace vidora {

/// Shows on a terminal how far a pass has come, and remembers how it ended. Prints nothing where standard error is no
/// terminal. Main thread.
class Progress final : public UpdateObserver
{
public:
    explicit Progress(const ChannelData& channels);

    void passStarted(std::size_t channels) override;
    void fetching(const std::vector<ObjectId>& channels) override;
    void delivered(const std::unordered_map<ObjectId, ShowList>& lists) override;
    void passEnded(std::size_t shows, const std::vector<ObjectId>& failed) override;

    bool ended() const { return m_ended; }
    std::size_t shows() const { return m_shows; }
    std::size_t wanted() const { return m_wanted; }
    const std::vector<ObjectId>& failed() const { return m_failed; }

private:
    void draw();

    const ChannelData& m_channels;
    ProgressLine m_line;
    QString m_fetching;
    std::set<ObjectId> m_done;
    std::size_t m_wanted = 0;
    std::size_t m_shows = 0;
    std::vector<ObjectId> m_failed;
    bool m_ended = false;
};

} // namespace vidora
