#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vidora {

/// How a file operation ended.
struct [[nodiscard]] FileResult
{
    int code = 0; ///< 0 when it is done, otherwise the system's error number
    QString text; ///< what the system says of that number

    bool failed() const { return code != 0; }
};

/// The single steps out of which a file is written. A test puts in one that fails, tears or loses a step. Every
/// operation returns 0 or the system's error number; any thread.
class FileLayer
{
public:
    virtual ~FileLayer() = default;
    /// Makes a file that did not exist, with these permission bits, and opens it for writing.
    virtual int create(const QString& path, unsigned mode, int& descriptor) = 0;
    /// Writes all bytes, or fails.
    virtual int write(int descriptor, QByteArrayView bytes) = 0;
    virtual int sync(int descriptor) = 0;
    virtual int close(int descriptor) = 0;
    virtual int rename(const QString& from, const QString& to) = 0;
    virtual int syncFolder(const QString& folder) = 0;
    virtual int remove(const QString& path) = 0;

    static FileLayer& system();
};

/// Files that are always whole: the old one or the new one, whatever happens to the process while it writes.
class AtomicFile
{
public:
    enum class Access
    {
        OwnerOnly, ///< 0600: everything that tells something about the user
        Everyone   ///< 0644
    };
    enum class Durability
    {
        Synced,  ///< survives a loss of power once `write` has returned
        Unsynced ///< whole after the death of the process; after a loss of power possibly the old file, or an empty one
    };

    /// Writes a new file beside `path`, brings it to the disk and renames it into place; missing folders are made,
    /// readable by their owner alone. After a failure the file at `path` is the old one, except that one of the very
    /// last step (the folder's sync) leaves the new one. Any thread; of two writers of one path one wins as a whole.
    static FileResult write(const QString& path, QByteArrayView bytes, Access access,
                            Durability durability = Durability::Synced, FileLayer& layer = FileLayer::system());
    /// The same in place of a file that holds `expected`. With another content by the time that the new file is ready,
    /// or without a file, it stays, and the error is ESTALE: for files that other programs write to as well.
    static FileResult replace(const QString& path, QByteArrayView expected, QByteArrayView bytes, Access access,
                              FileLayer& layer = FileLayer::system());

    /// The whole of a regular file. Nothing when it is missing, can't be read, is longer than `maximumSize` bytes or is
    /// a folder, pipe or device. Any thread.
    static std::optional<QByteArray> read(const QString& path, qint64 maximumSize);

    /// Removes what writers that were killed half-way left in a folder. Only while nobody writes there: at launch.
    static void removeLeftovers(const QString& folder);

    /// Moves a file that can't be understood out of the way, to PATH.unreadable, so that nothing of the user's is
    /// written over. False when that fails.
    [[nodiscard]] static bool setAside(const QString& path);
};

} // namespace vidora
