#include "app/window/PassProgress.h"

namespace vidora {

void PassProgress::passStarted(std::size_t channels)
{
    m_isRunning = channels > 0;
    m_wanted = channels;
    m_done.clear();
    Q_EMIT changed();
}

void PassProgress::fetching(const std::vector<ObjectId>&) {}

void PassProgress::delivered(const std::unordered_map<ObjectId, ShowList>& lists)
{
    for (const auto& [channel, entries] : lists)
        m_done.insert(channel);
    Q_EMIT changed();
}

void PassProgress::passEnded(std::size_t, const std::vector<ObjectId>&)
{
    m_isRunning = false;
    Q_EMIT changed();
}

} // namespace vidora
