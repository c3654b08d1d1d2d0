#include "app/Progress.h"

#include "app/ChannelNames.h"
#include "platform/Localized.h"

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace vidora {

namespace {

constexpr int barWidth = 24;

int terminalWidth()
{
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

} // namespace

Progress::Progress(const ChannelData& channels)
    : m_channels(channels)
    , m_isTerminal(isatty(STDERR_FILENO) == 1)
{
}

void Progress::passStarted(std::size_t channels)
{
    m_wanted = channels;
    draw({});
}

void Progress::fetching(const std::vector<ObjectId>& channels)
{
    QStringList titles;
    for (const ObjectId& channel : channels)
        titles << titleOf(channel, m_channels);
    m_fetching = titles.join(QLatin1String(", "));
    draw(m_fetching);
}

void Progress::delivered(const std::unordered_map<ObjectId, ShowList>& lists)
{
    for (const auto& [channel, shows] : lists)
        m_done.insert(channel);
    draw(m_fetching);
}

void Progress::passEnded(std::size_t shows, const std::vector<ObjectId>& failed)
{
    m_shows = shows;
    m_failed = failed;
    m_ended = true;
    clear();
}

void Progress::draw(const QString& text)
{
    if (!m_isTerminal || m_wanted == 0)
        return;
    const auto done = static_cast<int>(std::min(m_done.size(), m_wanted));
    const int filled = done * barWidth / static_cast<int>(m_wanted);
    const QString count = localized("%1 of %2 channels").arg(done).arg(m_wanted);
    QString line = QLatin1Char('[') + QString(filled, QLatin1Char('#')) + QString(barWidth - filled, QLatin1Char('.')) +
                   QLatin1String("] ") + count + QLatin1String("  ") + text;
    line.truncate(terminalWidth() - 1);
    std::fprintf(stderr, "\r\x1b[K%s", line.toUtf8().constData());
    std::fflush(stderr);
}

void Progress::clear()
{
    if (m_isTerminal)
        std::fprintf(stderr, "\r\x1b[K");
}

} // namespace vidora
