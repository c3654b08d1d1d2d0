#include "core/IconFetch.h"

#include "platform/AtomicFile.h"
#include "platform/DispatchQueue.h"
#include "platform/Log.h"
#include "platform/WorkerPool.h"

#include <QDir>

namespace vidora {

namespace {

constexpr qint64 largestIcon = 2 * 1024 * 1024;
constexpr qint64 largestFolder = 256LL * 1024 * 1024;
constexpr std::size_t sideBySide = 16;

qint64 sizeOf(const QString& folder)
{
    qint64 size = 0;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files))
        size += file.size();
    return size;
}

bool isSilence(const URLResult& result)
{
    using Kind = URLError::Kind;
    return result.error && !result.response &&
           (result.error->kind == Kind::NoSuchHost || result.error->kind == Kind::NoConnection ||
            result.error->kind == Kind::TimedOut);
}

} // namespace

IconFetch::IconFetch(URLSession& network, const QString& folder, std::shared_ptr<const std::atomic<bool>> ended,
                     const IconProgress& progress)
    : m_network(network)
    , m_folder(folder)
    , m_ended(std::move(ended))
    , m_progress(progress)
    , m_room(largestFolder - sizeOf(folder))
{
}

void IconFetch::add(const QString& name, const QString& address)
{
    const auto url = URL::fromText(address);
    const bool isOfTheWeb = url && (url->scheme() == QLatin1String("http") || url->scheme() == QLatin1String("https"));
    if (!isOfTheWeb) {
        m_came.insert(name, false);
        return;
    }
    const bool isFirst = !m_hosts.contains(url->host());
    m_hosts.insert(url->host());
    (isFirst ? m_firstOfHost : m_others).push_back({name, address, url->host()});
}

QHash<QString, bool> IconFetch::run()
{
    runSideBySide(m_firstOfHost);
    runSideBySide(m_others);
    return m_came;
}

void IconFetch::runSideBySide(const std::vector<Icon>& icons)
{
    std::atomic<std::size_t> next = 0;
    DispatchGroup group;
    for (std::size_t i = 0; i < std::min(sideBySide, icons.size()); ++i) {
        group.async(DispatchQueue::global(QualityOfService::UserInitiated), [&] {
            for (std::size_t own = next++; own < icons.size() && !*m_ended; own = next++)
                fetch(icons[own]);
        });
    }
    group.wait();
}

void IconFetch::fetch(const Icon& icon)
{
    const std::optional<QByteArray> bytes = isSilent(icon.host) ? QByteArray() : picture(icon);
    if (!bytes)
        return;
    const bool came = !bytes->isEmpty() && keep(icon, *bytes);
    {
        const std::lock_guard lock(m_mutex);
        m_came.insert(icon.name, came);
    }
    m_progress(++m_done, m_firstOfHost.size() + m_others.size());
}

bool IconFetch::isSilent(const QString& host)
{
    const std::lock_guard lock(m_mutex);
    return m_silentHosts.contains(host);
}

std::optional<QByteArray> IconFetch::picture(const Icon& icon)
{
    URLRequest request(*URL::fromText(icon.address));
    request.timeoutIntervalForRequest = Seconds(3);
    request.timeoutIntervalForResource = Seconds(5);
    request.maximumBodySize = largestIcon;
    request.cancelled = m_ended;
    const URLResult result = [&] {
        const BlockingScope blocking;
        return m_network.perform(request);
    }();
    if (result.error && result.error->kind == URLError::Kind::Cancelled)
        return std::nullopt;
    if (isSilence(result)) {
        const std::lock_guard lock(m_mutex);
        m_silentHosts.insert(icon.host);
    }
    const bool isGood = result.response && result.response->statusCode == 200 && result.data && isPicture(*result.data);
    if (!isGood)
        Log::line(QStringLiteral("icon %1: %2")
                      .arg(icon.address, result.error ? result.error->description
                                         : result.response
                                             ? QStringLiteral("status %1").arg(result.response->statusCode)
                                             : QStringLiteral("no answer")));
    return isGood ? *result.data : QByteArray();
}

bool IconFetch::keep(const Icon& icon, const QByteArray& bytes)
{
    {
        const std::lock_guard lock(m_mutex);
        if (bytes.size() > m_room) {
            Log::line(QStringLiteral("icon %1: no room").arg(icon.address));
            return false;
        }
        m_room -= bytes.size();
    }
    const FileResult written = AtomicFile::write(m_folder + QLatin1Char('/') + icon.name, bytes,
                                                 AtomicFile::Access::Everyone, AtomicFile::Durability::Unsynced);
    if (written.failed())
        Log::line(QStringLiteral("icon %1 can't be written: %2").arg(icon.address, written.text));
    return !written.failed();
}

} // namespace vidora
