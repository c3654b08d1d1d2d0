#include "app/window/PassProgress.h"

#include "core/VidoraAppDelegate.h"
#include "platform/DeviceSettings.h"
#include "platform/Localized.h"

#include <QDateTime>

namespace vidora {

namespace {

std::optional<Instant> youngestList(VidoraAppDelegate& delegate)
{
    std::optional<Instant> youngest;
    for (const ObjectId& id : delegate.channels().selected()) {
        const auto channel = delegate.channels().channelWithChannelId(id);
        const auto loaded = channel ? channel->timeLoaded() : std::nullopt;
        if (loaded && (!youngest || *loaded > *youngest))
            youngest = loaded;
    }
    return youngest;
}

} // namespace

QString PassProgress::state() const
{
    constexpr std::int64_t minute = 60, hour = 60 * minute, day = 24 * hour;
    const auto loaded = youngestList(m_delegate);
    if (!loaded)
        return {};
    const std::int64_t age = unixSeconds(m_delegate.environment().clock.now()) - unixSeconds(*loaded);
    if (age < minute && age > -minute)
        return localized("Updated just now");
    if (age >= 0 && age < hour)
        return localized("Updated %1 min ago").arg(age / minute);
    if (age >= 0 && age < day)
        return localized("Updated %1 h ago").arg(age / hour);
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(*loaded), DeviceSettings::timeZone());
    return localized("Updated ") + DeviceSettings::locale().toString(local, QLocale::ShortFormat);
}

void PassProgress::passStarted(std::size_t channels)
{
    m_isRunning = channels > 0;
    m_wanted = channels;
    m_failuresBefore = m_delegate.networkAlerts().failureCount();
    m_done.clear();
    Q_EMIT changed();
}

void PassProgress::fetching(const std::vector<ObjectId>&) {}

void PassProgress::delivered(const std::unordered_map<ObjectId, ShowList>& lists)
{
    for (const auto& [channel, entries] : lists)
        m_done.insert(channel);
    m_isOffline = false;
    Q_EMIT changed();
}

void PassProgress::passEnded(std::size_t, const std::vector<ObjectId>& failed)
{
    m_isRunning = false;
    const bool nobodyAnswered = m_delegate.networkAlerts().failureCount() > m_failuresBefore;
    m_isOffline = m_done.empty() && !failed.empty() && nobodyAnswered;
    Q_EMIT changed();
}

} // namespace vidora
