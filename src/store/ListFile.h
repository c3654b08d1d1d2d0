#pragma once

#include "store/ByteSource.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

namespace vidora {

/// The form in which a list of shows lies on disk, and in memory until it does: a header, a directory of blocks, and
/// the blocks, one behind the other in the directory's order, with nothing between or behind them. A block is a column
/// with a value of fixed width a show, or bytes of any length (width 0). Each has a key and a checksum; a block of an
/// unknown key is passed over, and kept where the list is written anew. Numbers are in the byte order of the machine: a
/// file that came from one of another order is no list.
///
/// Opening reads and checks header and directory alone; a block is checked when it is read. Any bytes may be opened,
/// and memory stays in proportion to them. A value; any thread.
class ListFile
{
public:
    using Key = std::uint32_t;
    /// The key whose four letters can be read in the file.
    static constexpr Key key(const char (&letters)[5])
    {
        Key value = 0;
        for (int i = 3; i >= 0; --i)
            value = value << 8 | static_cast<unsigned char>(letters[i]);
        return value;
    }

    /// As it stands in the directory.
    struct Block
    {
        Key key;
        std::uint32_t width; ///< bytes a show; 0: any number of bytes
        std::uint64_t size;
        std::uint64_t checksum; ///< XXH3 of the bytes
        friend bool operator==(const Block&, const Block&) = default;
    };
    /// What the list says of itself.
    struct Summary
    {
        std::uint32_t shows = 0;
        std::uint32_t first = 0;    ///< shows ahead of it were over when the file was written: they are not in the list
        std::uint32_t alphabet = 0; ///< for which device shown titles and folded texts were made
    };

    /// For tests that reach behind the checksums.
    enum class Checksums
    {
        Verified,
        Ignored
    };
    static constexpr std::size_t maximumSize = std::size_t(64) << 20;
    static constexpr std::uint32_t maximumShows = 20'000;

    /// Nothing for bytes that are no list.
    static std::optional<ListFile> open(std::shared_ptr<const ByteSource> bytes,
                                        Checksums checksums = Checksums::Verified);

    const Summary& summary() const { return m_summary; }
    const std::vector<Block>& blocks() const { return m_blocks; }
    /// Null where there is none.
    const Block* block(Key key) const;
    /// Place of a block of this file.
    std::size_t offset(const Block& block) const;
    const ByteSource& bytes() const { return *m_bytes; }
    bool isVerified() const { return m_checksums == Checksums::Verified; }

    /// The whole of a block of this file. Nothing where it was damaged or is no longer there.
    std::optional<std::string_view> read(const Block& block, QByteArray& scratch) const;
    /// Fills the column; false where it is missing or damaged or has another width.
    template<typename Number>
    bool readColumn(Key key, std::vector<Number>& column) const
    {
        const Block* found = block(key);
        QByteArray scratch;
        const auto content = found && found->width == sizeof(Number) ? read(*found, scratch) : std::nullopt;
        if (!content)
            return false;
        column.resize(m_summary.shows);
        if (!column.empty()) // an empty one has no place to copy to
            std::memcpy(column.data(), content->data(), content->size());
        return true;
    }
    /// Whether numbers are the ends of pieces that lie one behind the other in so many bytes.
    static bool areEnds(const std::vector<std::uint32_t>& ends, std::uint64_t size);
    /// Gives back the beginning that was kept for the reading of columns.
    void forgetStart() { m_start.clear(); }

private:
    friend class ListFileWriter;
    ListFile() = default;
    bool readDirectory();
    std::optional<std::string_view> readAt(std::size_t offset, std::size_t size, QByteArray& scratch) const;

    std::shared_ptr<const ByteSource> m_bytes;
    Checksums m_checksums = Checksums::Verified;
    Summary m_summary;
    std::vector<Block> m_blocks;
    std::vector<std::size_t> m_offsets;
    QByteArray m_start; ///< a list's columns stand at its beginning: they come with the header in one read
};

/// Puts a list file together, block by block.
class ListFileWriter
{
public:
    void add(ListFile::Key key, std::uint32_t width, std::string_view bytes);
    template<typename Number>
    void addColumn(ListFile::Key key, const std::vector<Number>& column)
    {
        add(key, sizeof(Number),
            std::string_view(reinterpret_cast<const char*>(column.data()), column.size() * sizeof(Number)));
    }
    QByteArray finish(const ListFile::Summary& summary) const;

private:
    std::vector<ListFile::Block> m_blocks;
    QByteArray m_bytes;
};

/// Checksum of a block.
std::uint64_t listFileChecksum(std::string_view bytes);

} // namespace vidora
