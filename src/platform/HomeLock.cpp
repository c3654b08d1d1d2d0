#include "platform/HomeLock.h"

#include "platform/WorkerPool.h"

#include <QDir>
#include <QFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace vidora {

HomeLock::HomeLock(const QString& folder)
{
    QDir().mkpath(folder);
    const QByteArray path = QFile::encodeName(QDir(folder).filePath(QStringLiteral(".lock")));
    // Closed in programs that this one starts, which would otherwise keep the lock.
    m_file = Descriptor(::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (m_file)
        take(LOCK_EX | LOCK_NB);
}

void HomeLock::waitForTurn()
{
    if (m_outcome != Outcome::Second)
        return;
    const BlockingScope blocking;
    take(LOCK_EX);
}

std::optional<qint64> HomeLock::holder() const
{
    std::array<char, 24> text;
    const auto length = ::pread(m_file.number(), text.data(), text.size(), 0);
    bool isNumber = false;
    const qint64 process = QByteArray(text.data(), std::max<qsizetype>(length, 0)).trimmed().toLongLong(&isNumber);
    return isNumber ? std::optional(process) : std::nullopt;
}

void HomeLock::take(int operation)
{
    int result = 0;
    do
        result = ::flock(m_file.number(), operation);
    while (result != 0 && errno == EINTR);
    if (result != 0) {
        m_outcome = errno == EWOULDBLOCK ? Outcome::Second : Outcome::Unavailable;
        return;
    }
    m_outcome = Outcome::First;
    // For the other's message only; the lock holds without it.
    const QByteArray process = QByteArray::number(static_cast<qint64>(::getpid())) + '\n';
    if (::ftruncate(m_file.number(), 0) == 0) [[maybe_unused]]
        const auto written =
            ::pwrite(m_file.number(), process.constData(), static_cast<std::size_t>(process.size()), 0);
}

} // namespace vidora
