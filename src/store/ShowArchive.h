#pragma once

#include "content/ShowElement.h"
#include "platform/AtomicFile.h"

#include <QByteArray>
#include <QString>

namespace vidora {

/// Lists of shows as objects, written to list files and read out of them (see ShowTable and ListFile). Only raw texts
/// are stored; the shown ones are derived again when a record is read.
///
/// Reading takes any bytes. It gives the whole list, or an empty one where the bytes are cut off, damaged or larger
/// than any real list; memory stays in proportion to the size of the file. A record without a title is dropped alone.
/// All functions are pure or touch the named file only; any thread.
class ShowArchive
{
public:
    static QByteArray archivedData(const ShowList& list);
    static ShowList unarchivedList(const QByteArray& bytes);

    /// Writes the list whole and renames it into place: the file is the old or the new one at any moment. False, with a
    /// line in the log, when it could not be written.
    static bool archiveRootObject(const ShowList& list, const QString& toFile, FileLayer& files = FileLayer::system());
    /// The same of a list's bytes.
    static bool writeFile(const QByteArray& archivedData, const QString& toFile, FileLayer& files);
    /// The list of a file; a missing, unreadable or damaged one is an empty list.
    static ShowList unarchiveObjectWithFile(const QString& file);
};

} // namespace vidora
