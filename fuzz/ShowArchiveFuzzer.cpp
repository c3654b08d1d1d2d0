// Archives of show lists: any bytes give a list or none, and a list that was read survives being written again.
#include "store/ShowArchive.h"
#include "store/ShowArchiveReader.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vidora;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    ShowArchive::unarchivedList(bytes);
    try {
        // The checksum would keep every changed input away from the reader.
        const ShowList list = ShowArchiveReader(bytes).readList();
        const QByteArray archived = ShowArchive::archivedData(list);
        const ShowList again = ShowArchive::unarchivedList(archived);
        if (again.size() != list.size() || ShowArchive::archivedData(again) != archived)
            std::abort();
    } catch (const ShowArchiveReader::Malformed&) {
    }
    return 0;
}
