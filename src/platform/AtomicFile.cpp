#include "platform/AtomicFile.h"

#include "platform/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace vidora {

namespace {

constexpr QLatin1String partialMark(".partial-");

class SystemFileLayer final : public FileLayer
{
public:
    int create(const QString& path, unsigned mode, int& descriptor) override
    {
        descriptor = ::open(QFile::encodeName(path), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (descriptor < 0)
            return errno;
        // The umask may have taken bits away that the caller asked for.
        return ::fchmod(descriptor, mode) == 0 ? 0 : errno;
    }
    int write(int descriptor, QByteArrayView bytes) override
    {
        while (!bytes.isEmpty()) {
            const ssize_t written = ::write(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()));
            if (written < 0 && errno != EINTR)
                return errno;
            if (written > 0)
                bytes = bytes.sliced(written);
        }
        return 0;
    }
    int sync(int descriptor) override { return ::fsync(descriptor) == 0 ? 0 : errno; }
    int close(int descriptor) override { return ::close(descriptor) == 0 ? 0 : errno; }
    int rename(const QString& from, const QString& to) override
    {
        return std::rename(QFile::encodeName(from), QFile::encodeName(to)) == 0 ? 0 : errno;
    }
    int syncFolder(const QString& folder) override
    {
        const int descriptor = ::open(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (descriptor < 0)
            return errno;
        const int result = sync(descriptor);
        ::close(descriptor);
        // Some file systems can't sync a folder and say so; there is nothing more to be done there.
        return result == EINVAL ? 0 : result;
    }
    int remove(const QString& path) override { return ::unlink(QFile::encodeName(path)) == 0 ? 0 : errno; }
};

int writeNewFile(const QString& path, QByteArrayView bytes, unsigned mode, bool synced, FileLayer& layer)
{
    int descriptor = -1;
    int error = layer.create(path, mode, descriptor);
    if (descriptor < 0)
        return error == 0 ? EIO : error;
    if (error == 0)
        error = layer.write(descriptor, bytes);
    if (error == 0 && synced)
        error = layer.sync(descriptor);
    const int closed = layer.close(descriptor);
    return error != 0 ? error : closed;
}

void makeFolder(const QString& folder)
{
    const QString parent = QFileInfo(folder).path();
    if (QFileInfo::exists(folder) || parent == folder)
        return;
    makeFolder(parent);
    ::mkdir(QFile::encodeName(folder), 0700); // a failure shows in the next step
}

bool openRegular(QFile& file, const QString& path)
{
    // A pipe would block and a device never end: their kind is checked on what was opened, not on the name.
    const int descriptor = ::open(QFile::encodeName(path), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    struct stat status = {};
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

} // namespace

FileLayer& FileLayer::system()
{
    static SystemFileLayer layer;
    return layer;
}

namespace {

/// `isExpected`: asked about the place when the new file is ready to go there.
FileResult writeInPlace(const QString& path, QByteArrayView bytes, AtomicFile::Access access, bool synced,
                        FileLayer& layer, const std::function<bool()>& isExpected)
{
    const QString folder = QFileInfo(path).absolutePath();
    makeFolder(folder);
    const QString partial = path + partialMark + QString::number(QRandomGenerator::global()->generate64(), 16);
    int error = writeNewFile(partial, bytes, access == AtomicFile::Access::OwnerOnly ? 0600 : 0644, synced, layer);
    if (error == 0)
        error = isExpected() ? layer.rename(partial, path) : ESTALE;
    if (error != 0)
        layer.remove(partial);
    else if (synced)
        error = layer.syncFolder(folder);
    if (error == 0)
        return {};
    FileResult result{error, QString::fromStdString(std::generic_category().message(error))};
    Log::line(QStringLiteral("file %1 not written: %2").arg(path, result.text));
    return result;
}

} // namespace

FileResult AtomicFile::write(const QString& path, QByteArrayView bytes, Access access, Durability durability,
                             FileLayer& layer)
{
    return writeInPlace(path, bytes, access, durability == Durability::Synced, layer, [] { return true; });
}

FileResult AtomicFile::replace(const QString& path, QByteArrayView expected, QByteArrayView bytes, Access access,
                               FileLayer& layer)
{
    return writeInPlace(path, bytes, access, true, layer, [&] { return read(path, expected.size()) == expected; });
}

std::optional<QByteArray> AtomicFile::read(const QString& path, qint64 maximumSize)
{
    QFile file;
    if (!openRegular(file, path) || file.size() > maximumSize)
        return std::nullopt;
    QByteArray bytes = file.read(maximumSize + 1); // it may grow meanwhile
    if (file.error() != QFileDevice::NoError || bytes.size() > maximumSize)
        return std::nullopt;
    return bytes;
}

void AtomicFile::removeLeftovers(const QString& folder)
{
    QDir directory(folder);
    const auto names = directory.entryList({QLatin1Char('*') + partialMark + QLatin1Char('*')},
                                           QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names)
        directory.remove(name);
}

bool AtomicFile::setAside(const QString& path)
{
    const QString aside = path + QStringLiteral(".unreadable");
    Log::line(QStringLiteral("file %1 can't be understood and becomes %2").arg(path, aside));
    return FileLayer::system().rename(path, aside) == 0;
}

} // namespace vidora
