#include "app/Progress.h"

#include "app/ChannelNames.h"
#include "platform/Localized.h"

namespace vidora {

Progress::Progress(const ChannelData& channels)
    : m_channels(channels)
{
}

void Progress::passStarted(std::size_t channels)
{
    m_wanted = channels;
    draw();
}

void Progress::fetching(const std::vector<ObjectId>& channels)
{
    QStringList titles;
    for (const ObjectId& channel : channels)
        titles << titleOf(channel, m_channels);
    m_fetching = titles.join(QLatin1String(", "));
    draw();
}

void Progress::delivered(const std::unordered_map<ObjectId, ShowList>& lists)
{
    for (const auto& [channel, shows] : lists)
        m_done.insert(channel);
    draw();
}

void Progress::passEnded(std::size_t shows, const std::vector<ObjectId>& failed)
{
    m_shows = shows;
    m_failed = failed;
    m_ended = true;
    m_line.clear();
}

void Progress::draw()
{
    if (m_wanted == 0)
        return;
    const std::size_t done = std::min(m_done.size(), m_wanted);
    m_line.draw(done, m_wanted,
                localized("%1 of %2 channels").arg(done).arg(m_wanted) + QLatin1String("  ") + m_fetching);
}

} // namespace vidora
