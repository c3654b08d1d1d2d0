// List files: any bytes give a list or none, and a list that was read survives being written again.
#include "store/FoldedTexts.h"
#include "store/ShowArchive.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vidora;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    ShowArchive::unarchivedList(bytes);
    // The checksums would keep every changed input away from the reader.
    const auto table = ShowTable::open(ByteSource::ofMemory(bytes), std::nullopt, ListFile::Checksums::Ignored);
    if (!table)
        return 0;
    QByteArray scratch;
    FoldedTexts folded(*table);
    if (folded.all(scratch))
        for (ShowTable::Row row = 0; row < table->end(); ++row)
            folded.ofRow(row, scratch);
    const ShowList list = table->shows();
    const QByteArray archived = ShowArchive::archivedData(list);
    const ShowList again = ShowArchive::unarchivedList(archived);
    if (again.size() != list.size() || ShowArchive::archivedData(again) != archived)
        std::abort();
    if (table->isEmpty())
        return 0;
    if (const Show first = table->show(table->first())) {
        const auto changed = table->with({{table->first(), first}});
        if (changed && changed->show(0) != first)
            std::abort();
    }
    return 0;
}
