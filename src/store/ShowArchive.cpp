#include "store/ShowArchive.h"

#include "store/ShowTable.h"

namespace vidora {

namespace {

ShowList showsOf(const SharedShowTable& table)
{
    return table && table->isWhole() ? table->shows() : ShowList();
}

} // namespace

QByteArray ShowArchive::archivedData(const ShowList& list)
{
    return ShowTable::make(list)->archived(0).value_or(QByteArray());
}

ShowList ShowArchive::unarchivedList(const QByteArray& bytes)
{
    return showsOf(ShowTable::open(ByteSource::ofMemory(bytes)));
}

bool ShowArchive::archiveRootObject(const ShowList& list, const QString& toFile, FileLayer& files)
{
    return writeFile(archivedData(list), toFile, files);
}

bool ShowArchive::writeFile(const QByteArray& archivedData, const QString& toFile, FileLayer& files)
{
    // A list lost with the power is fetched again, so nobody waits for the disk here.
    return !AtomicFile::write(toFile, archivedData, AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Unsynced,
                              files)
                .failed();
}

ShowList ShowArchive::unarchiveObjectWithFile(const QString& file)
{
    return showsOf(ShowTable::openFile(file));
}

} // namespace vidora
