#include "platform/OpenFile.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vidora {

namespace {

/// The first descriptor that select() can't wait for: those ahead of it are left to others.
constexpr int firstOwn = 1024;

/// Lets the process hold as many files as the system allows it; by default that is fewer.
void allowManyFiles()
{
    constexpr rlim_t plenty = 16 * 1024;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= plenty)
        return;
    limit.rlim_cur = std::min(limit.rlim_max, plenty);
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

/// The same file under a high descriptor; -1 where there is none left.
int moveUp(int descriptor)
{
    static const bool allowed = (allowManyFiles(), true);
    static_cast<void>(allowed);
    const int own = ::fcntl(descriptor, F_DUPFD_CLOEXEC, firstOwn);
    ::close(descriptor);
    return own;
}

} // namespace

std::unique_ptr<const OpenFile> OpenFile::open(const QString& path)
{
    // A pipe would block: what it is is asked of what was opened, not of the name.
    const int descriptor = ::open(QFile::encodeName(path), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return nullptr;
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        return nullptr;
    }
    const int own = moveUp(descriptor);
    return own < 0 ? nullptr
                   : std::unique_ptr<const OpenFile>(new OpenFile(own, static_cast<std::size_t>(status.st_size)));
}

OpenFile::OpenFile(int descriptor, std::size_t size)
    : m_descriptor(descriptor)
    , m_size(size)
{
}

OpenFile::~OpenFile()
{
    ::close(m_descriptor);
}

bool OpenFile::read(std::size_t offset, char* to, std::size_t size) const
{
    while (size > 0) {
        const ssize_t count = ::pread(m_descriptor, to, size, static_cast<off_t>(offset));
        if (count == 0 || (count < 0 && errno != EINTR))
            return false;
        if (count < 0)
            continue;
        offset += static_cast<std::size_t>(count);
        to += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

} // namespace vidora
