#pragma once

#include "content/ShowElement.h"
#include "store/HeldShows.h"
#include "store/ListFile.h"
#include "store/ShowRecord.h"

#include <atomic>
#include <map>

namespace vidora {

/// The shows of a channel in the form in which they lie in their file: columns with what queries ask of all shows, and
/// beside them records out of which a show is made when it is looked at. Columns are in memory; records lie in the
/// file, or in memory while there is none. A table's shows never change: a change makes another table.
///
/// Rows are counted from 0; those ahead of `first` are over and no part of the list. Any thread.
class ShowTable
{
public:
    using Row = std::uint32_t;
    using Changes = std::map<Row, Show>;

    /// The table of shows as they came. A show without a title is dropped, and what lies beyond any real list.
    /// `isShared`: others may hold any of the shows, and not just those that are counted more than once.
    static std::shared_ptr<const ShowTable> make(const ShowList& shows, bool isShared = true);
    /// The table of a file, without the shows at its head that have ended by now. Null for what is missing or no list.
    static std::shared_ptr<const ShowTable> openFile(const QString& file, std::optional<Instant> now = std::nullopt);
    /// The same of bytes. Header and columns are checked now, records when they are read.
    static std::shared_ptr<const ShowTable> open(std::shared_ptr<const ByteSource> bytes,
                                                 std::optional<Instant> now = std::nullopt,
                                                 ListFile::Checksums checksums = ListFile::Checksums::Verified);

    /// Tells tables apart as long as the process lives.
    std::uint64_t serial() const { return m_serial; }
    Row first() const { return m_first; }
    Row end() const { return static_cast<Row>(m_columns.start.size()); }
    bool isEmpty() const { return m_first == end(); }

    // Columns.

    /// `Instant::min()` where there is none.
    Instant startOf(Row row) const { return m_columns.start[row]; }
    Instant endOf(Row row) const { return m_columns.end[row]; }
    /// The filter "end after now". A show without an end doesn't end after anything.
    bool endsAfter(Row row, Instant now) const { return endOf(row) > now; }
    /// The filter "end not before now". A show without an end passes it.
    bool endsNotBefore(Row row, Instant now) const { return endOf(row) >= now || endOf(row) == none; }
    std::optional<std::uint32_t> categoriesOf(Row row) const;
    bool isPreviouslyShown(Row row) const { return (m_columns.flags[row] & PreviouslyShown) != 0; }
    /// A number that equal titles share, and few others.
    static std::uint32_t markOf(QStringView title);
    /// The mark of the raw title in lower case.
    std::uint32_t nameMarkOf(Row row) const { return m_columns.names[row]; }
    /// The mark of the shown title; nothing where the list was made for a device of another alphabet.
    std::optional<std::uint32_t> titleMarkOf(Row row) const;

    /// The first row whose show ends after now; `end()` where all is past.
    Row firstEndingAfter(Instant now) const;

    // Shows.

    /// The show of a row: the same object for as long as anybody holds it. Null where its record was damaged, which
    /// `isDamaged` tells from then on.
    Show show(Row row) const;
    /// The show's parts, read anew. Nothing where they are damaged.
    std::optional<ShowElement> read(Row row) const;
    ShowList shows() const;
    /// The row of the show whose entry is this very object.
    std::optional<Row> rowOf(const std::shared_ptr<const TVEntry>& entry) const;
    /// Whether a part of the list turned out to be lost.
    bool isDamaged() const { return m_isDamaged; }
    void markDamaged() const { m_isDamaged = true; }
    /// Gives back what it remembers of shows that nobody holds.
    void forgetReleased() const { m_held.forgetReleased(); }

    /// The list with the shows of some rows replaced. Shows that somebody holds stay the same objects. Null where the
    /// records are lost.
    std::shared_ptr<const ShowTable> with(const Changes& changes) const;

    // Files.

    /// The bytes of the list's file, with the rows from `first` on as its list. Nothing where a part is damaged.
    std::optional<QByteArray> archived(Row first) const;
    /// Reads records from the file from now on, if it holds this very list, and gives the memory back that they took.
    void moveTo(const QString& file) const;
    /// Whether every part of the list is as it was written.
    bool isWhole() const;

private:
    friend class FoldedTexts;
    static constexpr ListFile::Key recordsKey = ListFile::key("recs");
    enum Flags : std::uint8_t
    {
        Classified = 1,
        PreviouslyShown = 2
    };
    static constexpr Instant none = Instant::min();
    struct Columns
    {
        std::vector<Instant> start, end;
        std::vector<std::uint32_t> categories, titles, names, recordEnds;
        std::vector<std::uint8_t> flags;

        bool read(const ListFile& file);
        void write(ListFileWriter& writer) const;
        /// Appends the row of another list's columns, but for the end of its record.
        void append(const Columns& other, Row row);
        void append(const ShowElement& show);
    };
    class Maker;

    ShowTable() = default;
    static bool isKnown(ListFile::Key key);
    std::shared_ptr<const ShowTable> remade(const Changes& changes) const;
    bool isForThisDevice() const;
    std::shared_ptr<const ListFile> file() const;
    std::pair<std::size_t, std::size_t> recordOf(Row row) const;

    std::uint64_t m_serial = 0;
    Row m_first = 0;
    std::uint32_t m_alphabet = 0;
    Columns m_columns;
    mutable HeldShows m_held;
    mutable std::atomic<bool> m_isDamaged = false;
    mutable std::mutex m_fileMutex; ///< held for a copy or a swap only
    mutable std::shared_ptr<const ListFile> m_file;
};

using SharedShowTable = std::shared_ptr<const ShowTable>;

} // namespace vidora
