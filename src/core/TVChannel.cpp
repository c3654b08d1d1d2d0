#include "core/TVChannel.h"

#include "platform/Log.h"
#include "store/TVListings.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <cmath>

namespace vidora {

namespace {

// A setting may hold anything; what is no usable number of seconds counts as the default of a day.
Seconds wholeSeconds(double interval)
{
    constexpr double bound = 1e12;
    if (!std::isfinite(interval) || std::abs(interval) > bound)
        return dayStep;
    return Seconds(static_cast<std::int64_t>(interval));
}

} // namespace

TVChannel::TVChannel(const ChannelAging& aging, const ObjectId& identificator, QString title, QString language,
                     QString iconFileName, bool hasStreamURL)
    : m_aging(aging)
    , m_identificator(identificator)
    , m_title(std::move(title))
    , m_language(std::move(language))
    , m_iconFileName(std::move(iconFileName))
    , m_hasStreamURL(hasStreamURL)
{
}

bool TVChannel::loading() const
{
    const std::lock_guard lock(m_mutex);
    return m_loading;
}

void TVChannel::setLoading(bool loading)
{
    const std::lock_guard lock(m_mutex);
    m_loading = loading;
}

std::optional<Instant> TVChannel::timeLoaded() const
{
    const std::lock_guard lock(m_mutex);
    return timeLoadedLocked();
}

std::optional<Instant> TVChannel::timeLoadedLocked() const
{
    if (!m_timeLoaded) {
        const QFileInfo file(listPath());
        if (file.exists())
            m_timeLoaded = instantFromUnixMilliseconds(file.lastModified().toMSecsSinceEpoch());
    }
    return m_timeLoaded;
}

void TVChannel::setTimeLoaded(Instant time)
{
    const std::lock_guard lock(m_mutex);
    m_timeLoaded = time;
}

bool TVChannel::reloadNeeded() const
{
    const Seconds interval = wholeSeconds(m_aging.automaticUpdateInterval());
    const std::lock_guard lock(m_mutex);
    const auto loaded = timeLoadedLocked();
    if (m_loading)
        return false;
    return !loaded || m_aging.clock.now() - interval > *loaded;
}

void TVChannel::unload()
{
    const std::lock_guard lock(m_mutex);
    m_timeLoaded.reset();
    if (!m_aging.readOnly)
        QFile::remove(listPath());
}

void TVChannel::expire()
{
    const std::lock_guard lock(m_mutex);
    QFile file(listPath());
    if (!m_timeLoaded && !file.exists())
        return;
    m_timeLoaded = Instant();
    if (!m_aging.readOnly && file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(QDateTime::fromMSecsSinceEpoch(0), QFileDevice::FileModificationTime);
}

QString TVChannel::listPath() const
{
    return m_aging.cachesFolder + QLatin1Char('/') + TVListings::listingsFileFromChannelIdentificator(m_identificator);
}

} // namespace vidora
