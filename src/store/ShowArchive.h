#pragma once

#include "content/ShowElement.h"
#include "platform/AtomicFile.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace vidora {

/// The form in which a list of shows lies on disk: a CBOR sequence (RFC 8742) of the list and its checksum. The list is
/// an array of show elements in order, each an array of its parts; records are maps by field name, so that files of an
/// older and of a newer version can be read: unknown fields are skipped, missing ones stay unset. Only raw texts are
/// stored; the shown ones are derived again when a record is read. Written and read as a stream, never as a tree.
///
/// Reading takes any bytes. It gives the whole list, or an empty one where the bytes are cut off, damaged, nested too
/// deeply or larger than any real list; memory stays in proportion to the size of the file. A record without a title
/// is dropped alone. All functions are pure or touch the named file only; any thread.
class ShowArchive
{
public:
    /// Limits that no real list comes near.
    static constexpr qsizetype maximumFileSize = 32 * 1024 * 1024;
    static constexpr std::size_t maximumShows = 20'000;

    static QByteArray archivedData(const ShowList& list);
    static ShowList unarchivedList(const QByteArray& bytes);

    /// Writes the list whole and renames it into place: the file is the old or the new one at any moment. False, with a
    /// line in the log, when it could not be written.
    static bool archiveRootObject(const ShowList& list, const QString& toFile, FileLayer& files = FileLayer::system());
    /// The list of a file; a missing, unreadable or damaged one is an empty list.
    static ShowList unarchiveObjectWithFile(const QString& file);
    /// The first shows of a file that `takes` accepts, up to `count`, for a look ahead of the whole: reads no more than
    /// it needs, and can't know whether the file is whole.
    static ShowList firstShowsOfFile(const QString& file, std::size_t count,
                                     const std::function<bool(const TVEntry&)>& takes);
};

} // namespace vidora
