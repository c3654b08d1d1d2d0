#include "calendar/CalendarFolder.h"

#include "platform/AtomicFile.h"
#include "platform/FileTime.h"
#include "platform/Log.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vidora {

namespace {

/// More files than any calendar has; those beyond are not seen.
constexpr std::size_t maximalFiles = 50'000;
constexpr qint64 maximalAttributeSize = 4 * 1024;
/// The coarsest step in which file systems and the kernel count the times of a file.
constexpr std::int64_t timeStep = 20'000'000;

struct Folder
{
    explicit Folder(const QString& path)
        : stream(::opendir(QFile::encodeName(path)))
    {
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder()
    {
        if (stream)
            ::closedir(stream);
    }
    DIR* const stream;
};

} // namespace

CalendarFolder::CalendarFolder(QString path)
    : m_path(std::move(path))
{
}

QString CalendarFolder::pathOf(const QString& name) const
{
    return m_path + QLatin1Char('/') + name;
}

std::optional<CalendarFolder::Stamp> CalendarFolder::stampOf(int folder, const char* name, std::int64_t now)
{
    struct stat status = {};
    if (::fstatat(folder, name, &status, 0) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    const std::int64_t changed = nanosecondsOf(status.st_ctim);
    return Stamp{status.st_size, nanosecondsOf(status.st_mtim), changed, status.st_ino, changed + timeStep < now};
}

std::optional<std::map<QString, CalendarFolder::Stamp>> CalendarFolder::list() const
{
    const Folder folder(m_path);
    if (!folder.stream)
        return std::nullopt;
    const std::int64_t now = presentFileTime();
    std::map<QString, Stamp> stamps;
    while (const dirent* entry = stamps.size() < maximalFiles ? ::readdir(folder.stream) : nullptr) {
        const QByteArrayView name(entry->d_name);
        if (name.startsWith('.') || !name.endsWith(".ics"))
            continue;
        if (const auto stamp = stampOf(::dirfd(folder.stream), entry->d_name, now))
            stamps.insert_or_assign(QFile::decodeName(name.toByteArray()), *stamp);
    }
    return stamps;
}

bool CalendarFolder::refresh()
{
    const auto present = list();
    if (!present) {
        Log::line(QStringLiteral("calendar folder %1 can't be read").arg(m_path));
        return false;
    }
    std::erase_if(m_events, [&](const auto& entry) { return !present->contains(entry.first); });
    std::erase_if(m_stamps, [&](const auto& entry) { return !present->contains(entry.first); });
    for (const auto& [name, stamp] : *present)
        take(name, stamp);
    return true;
}

void CalendarFolder::refresh(const QString& name)
{
    const auto stamp = stampOf(AT_FDCWD, QFile::encodeName(pathOf(name)).constData(), presentFileTime());
    if (stamp) {
        take(name, *stamp);
    } else {
        m_events.erase(name);
        m_stamps.erase(name);
    }
}

void CalendarFolder::take(const QString& name, const Stamp& stamp)
{
    const auto known = m_stamps.find(name);
    if (known == m_stamps.end() || !known->second.sameFile(stamp))
        read(name, stamp);
}

void CalendarFolder::read(const QString& name, const Stamp& stamp)
{
    m_stamps.insert_or_assign(name, stamp);
    const auto bytes = AtomicFile::read(pathOf(name), ICalendarEvent::maximumSize);
    auto event = bytes ? ICalendarEvent::read(*bytes) : std::nullopt;
    if (event) {
        m_events.insert_or_assign(name, std::move(*event));
        return;
    }
    m_events.erase(name);
    if (stamp.settled)
        Log::line(QStringLiteral("calendar file %1 can't be understood and is left alone").arg(pathOf(name)));
}

Calendar CalendarFolder::describe(const QString& identifier, const QString& source) const
{
    const auto attribute = [this](const QString& name) {
        const auto bytes = AtomicFile::read(pathOf(name), maximalAttributeSize);
        return bytes ? QString::fromUtf8(*bytes).trimmed() : QString();
    };
    const QString title = attribute(QStringLiteral("displayname"));
    const bool writable =
        ::access(QFile::encodeName(m_path), W_OK | X_OK) == 0 && !QFile::exists(pathOf(QStringLiteral(".readonly")));
    return {identifier, title.isEmpty() ? identifier : title,
            source,     CalendarColor::fromText(attribute(QStringLiteral("color"))),
            writable,   attribute(QStringLiteral(".address"))};
}

} // namespace vidora
