#include "store/ShowTable.h"

#include "platform/Log.h"
#include "store/FoldedTexts.h"

#include <algorithm>
#include <xxhash.h>

namespace vidora {

namespace {

constexpr ListFile::Key startKey = ListFile::key("strt"), endKey = ListFile::key("ends"),
                        categoriesKey = ListFile::key("cats"), flagsKey = ListFile::key("flag"),
                        titlesKey = ListFile::key("titl"), namesKey = ListFile::key("name"),
                        recordEndsKey = ListFile::key("rend");

// From the year 1 to the year 9999: calculations with such moments cannot overflow.
constexpr Instant earliest{Milliseconds(-62'135'596'800'000)}, latest{Milliseconds(253'402'300'799'999)};

/// Larger than the texts of any real list; with the folded texts the file stays below its largest size.
constexpr qsizetype maximumRecords = 30 << 20;

std::uint32_t presentAlphabet()
{
    return TVEntry::cyrillicDevice() ? 1 : 0;
}

} // namespace

bool ShowTable::Columns::read(const ListFile& file)
{
    if (!file.readColumn(startKey, start) || !file.readColumn(endKey, end) ||
        !file.readColumn(categoriesKey, categories) || !file.readColumn(flagsKey, flags) ||
        !file.readColumn(titlesKey, titles) || !file.readColumn(namesKey, names) ||
        !file.readColumn(recordEndsKey, recordEnds))
        return false;
    for (std::vector<Instant>* instants : {&start, &end})
        std::ranges::replace_if(
            *instants, [](Instant instant) { return instant < earliest || instant > latest; }, none);
    const ListFile::Block* records = file.block(recordsKey);
    return records && ListFile::areEnds(recordEnds, records->size);
}

void ShowTable::Columns::write(ListFileWriter& writer) const
{
    writer.addColumn(startKey, start);
    writer.addColumn(endKey, end);
    writer.addColumn(categoriesKey, categories);
    writer.addColumn(flagsKey, flags);
    writer.addColumn(titlesKey, titles);
    writer.addColumn(namesKey, names);
    writer.addColumn(recordEndsKey, recordEnds);
}

void ShowTable::Columns::append(const Columns& other, Row row)
{
    start.push_back(other.start[row]);
    end.push_back(other.end[row]);
    categories.push_back(other.categories[row]);
    flags.push_back(other.flags[row]);
    titles.push_back(other.titles[row]);
    names.push_back(other.names[row]);
}

void ShowTable::Columns::append(const ShowElement& show)
{
    const TVEntry& entry = *show.entry;
    start.push_back(entry.dateTime().value_or(none));
    end.push_back(entry.endDateTime().value_or(none));
    categories.push_back(show.categories.value_or(0));
    flags.push_back(static_cast<std::uint8_t>((show.count() > 1 ? Classified : 0) |
                                              (entry.previouslyShown() ? PreviouslyShown : 0)));
    titles.push_back(markOf(entry.title().value_or(QString())));
    names.push_back(markOf(entry.lowercasedIdentificator().value_or(QString())));
}

bool ShowTable::isKnown(ListFile::Key key)
{
    constexpr ListFile::Key known[] = {startKey, endKey,        categoriesKey, flagsKey,        titlesKey,
                                       namesKey, recordEndsKey, recordsKey,    FoldedTexts::key};
    return std::ranges::find(known, key) != std::end(known);
}

/// Puts a table together, row by row.
class ShowTable::Maker
{
public:
    void append(const ShowElement& show, std::string_view formerRecord = {})
    {
        m_columns.append(show);
        m_writer.append(show, formerRecord);
        endRecord();
    }
    void append(const Columns& columns, Row row, std::string_view record)
    {
        m_columns.append(columns, row);
        m_records.append(record.data(), static_cast<qsizetype>(record.size()));
        endRecord();
    }
    /// A block of a key that this version doesn't know.
    void keep(const ListFile::Block& block, std::string_view bytes)
    {
        m_others.emplace_back(block, QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
    }
    bool isFull() const
    {
        return m_columns.start.size() >= ListFile::maximumShows || m_records.size() >= maximumRecords;
    }
    std::shared_ptr<const ShowTable> table()
    {
        ListFileWriter writer;
        m_columns.write(writer);
        writer.add(recordsKey, 0, viewOf(m_records));
        m_records.clear();
        for (const auto& [block, bytes] : m_others)
            writer.add(block.key, block.width, viewOf(bytes));
        return open(ByteSource::ofMemory(
            writer.finish({static_cast<std::uint32_t>(m_columns.start.size()), 0, presentAlphabet()})));
    }

private:
    void endRecord() { m_columns.recordEnds.push_back(static_cast<std::uint32_t>(m_records.size())); }

    Columns m_columns;
    QByteArray m_records;
    ShowRecordWriter m_writer{m_records};
    std::vector<std::pair<ListFile::Block, QByteArray>> m_others;
};

std::shared_ptr<const ShowTable> ShowTable::make(const ShowList& shows, bool isShared)
{
    Maker maker;
    std::vector<const Show*> taken;
    for (const Show& show : shows) {
        if (!show->entry->identificator())
            continue;
        if (maker.isFull()) {
            Log::line(QStringLiteral("ShowTable: %1 shows of a list are too many").arg(shows.size()));
            break;
        }
        maker.append(*show);
        taken.push_back(&show);
    }
    auto table = maker.table();
    // What is remembered weakly keeps its memory, so of a long list that goes none is but what stays.
    for (Row row = 0; row < taken.size(); ++row) {
        const Show& show = *taken[row];
        if (isShared || show.use_count() > 1 || show->entry.use_count() > 1 || show->extra.use_count() > 1)
            table->m_held.remember(row, show);
    }
    return table;
}

std::shared_ptr<const ShowTable> ShowTable::openFile(const QString& file, std::optional<Instant> now)
{
    auto bytes = ByteSource::ofFile(file, ListFile::maximumSize);
    if (!bytes)
        return nullptr;
    auto table = open(std::move(bytes), now);
    if (!table)
        Log::line(QStringLiteral("ShowTable: ") + file + QStringLiteral(": no readable list"));
    return table;
}

std::shared_ptr<const ShowTable> ShowTable::open(std::shared_ptr<const ByteSource> bytes, std::optional<Instant> now,
                                                 ListFile::Checksums checksums)
{
    static std::atomic<std::uint64_t> lastSerial = 0;
    auto file = ListFile::open(std::move(bytes), checksums);
    const std::shared_ptr<ShowTable> table(new ShowTable);
    if (!file || !table->m_columns.read(*file))
        return nullptr;
    file->forgetStart();
    table->m_serial = ++lastSerial;
    table->m_alphabet = file->summary().alphabet;
    table->m_first = file->summary().first;
    table->m_file = std::make_shared<const ListFile>(std::move(*file));
    if (now)
        table->m_first = table->firstEndingAfter(*now);
    return table;
}

std::optional<std::uint32_t> ShowTable::categoriesOf(Row row) const
{
    return (m_columns.flags[row] & Classified) != 0 ? std::optional(m_columns.categories[row]) : std::nullopt;
}

std::uint32_t ShowTable::markOf(QStringView title)
{
    return static_cast<std::uint32_t>(XXH3_64bits(title.utf16(), static_cast<std::size_t>(title.size()) * 2));
}

std::optional<std::uint32_t> ShowTable::titleMarkOf(Row row) const
{
    return isForThisDevice() ? std::optional(m_columns.titles[row]) : std::nullopt;
}

bool ShowTable::isForThisDevice() const
{
    return m_alphabet == presentAlphabet();
}

ShowTable::Row ShowTable::firstEndingAfter(Instant now) const
{
    Row row = m_first;
    while (row < end() && !endsAfter(row, now))
        ++row;
    return row;
}

std::shared_ptr<const ListFile> ShowTable::file() const
{
    const std::lock_guard lock(m_fileMutex);
    return m_file;
}

std::pair<std::size_t, std::size_t> ShowTable::recordOf(Row row) const
{
    return {row == 0 ? 0 : m_columns.recordEnds[row - 1], m_columns.recordEnds[row]};
}

std::optional<ShowElement> ShowTable::read(Row row) const
{
    QByteArray scratch;
    const auto held = file();
    const auto [begin, end] = recordOf(row);
    const auto bytes = held->bytes().read(held->offset(*held->block(recordsKey)) + begin, end - begin, scratch);
    if (!bytes || (held->isVerified() && !ShowRecord(*bytes).isWhole())) {
        markDamaged();
        return std::nullopt;
    }
    const auto given = [](Instant instant) { return instant == none ? std::nullopt : std::optional(instant); };
    ShowElement show =
        ShowRecord(*bytes).show({given(startOf(row)), given(endOf(row)), categoriesOf(row), isPreviouslyShown(row)});
    if (!show.entry->identificator())
        return std::nullopt;
    return show;
}

Show ShowTable::show(Row row) const
{
    if (Show held = m_held.show(row))
        return held;
    std::optional<ShowElement> fresh = read(row);
    return fresh ? m_held.keep(row, std::move(*fresh)) : nullptr;
}

ShowList ShowTable::shows() const
{
    ShowList list;
    list.reserve(end() - m_first);
    for (Row row = m_first; row < end(); ++row) {
        if (Show each = show(row))
            list.push_back(std::move(each));
    }
    return list;
}

std::optional<ShowTable::Row> ShowTable::rowOf(const std::shared_ptr<const TVEntry>& entry) const
{
    const Instant start = entry->dateTime().value_or(none);
    for (Row row = m_first; row < end() && startOf(row) <= start; ++row) {
        if (startOf(row) == start && m_held.entry(row) == entry)
            return row;
    }
    return std::nullopt;
}

std::shared_ptr<const ShowTable> ShowTable::with(const Changes& changes) const
{
    if (!isForThisDevice())
        return remade(changes);
    const auto held = file();
    const auto [begin, unused] = m_first == end() ? std::pair<std::size_t, std::size_t>() : recordOf(m_first);
    const std::size_t recordsEnd = m_columns.recordEnds.empty() ? 0 : m_columns.recordEnds.back();
    QByteArray scratch;
    const auto records =
        held->bytes().read(held->offset(*held->block(recordsKey)) + begin, recordsEnd - begin, scratch);
    if (!records) {
        markDamaged();
        return nullptr;
    }
    Maker maker;
    for (Row row = m_first; row < end(); ++row) {
        const auto place = recordOf(row);
        const std::string_view record = records->substr(place.first - begin, place.second - place.first);
        const auto change = changes.find(row);
        if (change != changes.end())
            maker.append(*change->second, record);
        else
            maker.append(m_columns, row, record);
    }
    for (const ListFile::Block& block : held->blocks()) {
        if (isKnown(block.key))
            continue;
        QByteArray blockScratch;
        if (const auto bytes = held->read(block, blockScratch))
            maker.keep(block, bytes->substr(std::size_t(m_first) * block.width));
    }
    auto table = maker.table();
    if (!table) { // more blocks of others than a list may have
        markDamaged();
        return nullptr;
    }
    table->m_held.takeOver(m_held, m_first);
    for (const auto& [row, show] : changes)
        table->m_held.remember(row - m_first, show);
    return table;
}

/// For what was derived for a device of another alphabet.
std::shared_ptr<const ShowTable> ShowTable::remade(const Changes& changes) const
{
    ShowList list;
    for (Row row = m_first; row < end(); ++row) {
        const auto change = changes.find(row);
        if (Show each = change != changes.end() ? change->second : show(row))
            list.push_back(std::move(each));
    }
    return isDamaged() ? nullptr : make(list);
}

std::optional<QByteArray> ShowTable::archived(Row first) const
{
    const auto held = file();
    ListFileWriter writer;
    for (const ListFile::Block& block : held->blocks()) {
        QByteArray scratch;
        const auto bytes = held->read(block, scratch);
        if (!bytes) {
            markDamaged();
            return std::nullopt;
        }
        writer.add(block.key, block.width, *bytes);
    }
    if (!held->block(FoldedTexts::key) && isForThisDevice()) {
        FoldedTexts folded(*this);
        if (!folded.add(writer))
            return std::nullopt;
    }
    return writer.finish({end(), first, m_alphabet});
}

void ShowTable::moveTo(const QString& path) const
{
    auto bytes = ByteSource::ofFile(path, ListFile::maximumSize);
    auto opened = bytes ? ListFile::open(std::move(bytes)) : std::nullopt;
    if (!opened)
        return;
    opened->forgetStart();
    const auto fresh = std::make_shared<const ListFile>(std::move(*opened));
    const std::shared_ptr<const ListFile> old = file(); // given back when the lock is open again
    for (const ListFile::Block& block : old->blocks()) {
        const ListFile::Block* same = fresh->block(block.key);
        if (!same || *same != block)
            return; // another process has put a list of its own there
    }
    const std::lock_guard lock(m_fileMutex);
    m_file = fresh;
}

bool ShowTable::isWhole() const
{
    const auto held = file();
    return std::ranges::all_of(held->blocks(), [&](const ListFile::Block& block) {
        QByteArray scratch;
        return held->read(block, scratch).has_value();
    });
}

} // namespace vidora
