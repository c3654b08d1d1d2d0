#include "store/ListFile.h"

#include <algorithm>
#include <xxhash.h>

namespace vidora {

namespace {

struct Header
{
    std::uint64_t magic;
    std::uint32_t version;
    std::uint32_t blocks;
    ListFile::Summary summary;
    std::uint32_t unused;
    std::uint64_t checksum; ///< of the header with this field 0, and of the directory
};
static_assert(sizeof(Header) == 40 && sizeof(ListFile::Block) == 24, "no gaps: what lies in a file is all there is");

constexpr std::uint64_t magic = 0x7473'694c'6f64'6956; // "VidoList"
constexpr std::uint32_t version = 1;
constexpr std::uint32_t maximumBlocks = 256;
constexpr std::size_t usualStart = 32 * 1024;

std::uint64_t checksumOf(Header header, std::string_view directory)
{
    header.checksum = 0;
    return listFileChecksum({reinterpret_cast<const char*>(&header), sizeof header}) ^ listFileChecksum(directory);
}

} // namespace

std::uint64_t listFileChecksum(std::string_view bytes)
{
    return XXH3_64bits(bytes.data(), bytes.size());
}

std::optional<ListFile> ListFile::open(std::shared_ptr<const ByteSource> bytes, Checksums checksums)
{
    ListFile file;
    file.m_bytes = std::move(bytes);
    file.m_checksums = checksums;
    return file.readDirectory() ? std::optional(std::move(file)) : std::nullopt;
}

bool ListFile::readDirectory()
{
    static thread_local QByteArray scratch; // lists are opened by the hundred
    const auto start = m_bytes->read(0, std::min(m_bytes->size(), usualStart), scratch);
    if (!start || start->size() < sizeof(Header))
        return false;
    if (start->data() == scratch.constData())
        m_start = scratch;
    Header header{};
    std::memcpy(&header, start->data(), sizeof header);
    if (header.magic != magic || header.version != version || header.blocks > maximumBlocks ||
        header.summary.shows > maximumShows || header.summary.first > header.summary.shows)
        return false;
    const std::size_t directorySize = header.blocks * sizeof(Block);
    if (start->size() - sizeof header < directorySize)
        return false;
    const std::string_view directory = start->substr(sizeof header, directorySize);
    if (m_checksums == Checksums::Verified && header.checksum != checksumOf(header, directory))
        return false;

    m_summary = header.summary;
    m_blocks.resize(header.blocks);
    if (!m_blocks.empty())
        std::memcpy(m_blocks.data(), directory.data(), directorySize);
    std::size_t offset = sizeof header + directorySize;
    for (const Block& block : m_blocks) {
        if (block.size > m_bytes->size() - offset ||
            (block.width != 0 && block.size != std::uint64_t(block.width) * m_summary.shows))
            return false;
        m_offsets.push_back(offset);
        offset += block.size;
    }
    return offset == m_bytes->size();
}

const ListFile::Block* ListFile::block(Key key) const
{
    const auto found = std::ranges::find(m_blocks, key, &Block::key);
    return found == m_blocks.end() ? nullptr : &*found;
}

std::size_t ListFile::offset(const Block& block) const
{
    return m_offsets[static_cast<std::size_t>(&block - m_blocks.data())];
}

std::optional<std::string_view> ListFile::readAt(std::size_t offset, std::size_t size, QByteArray& scratch) const
{
    const auto startSize = static_cast<std::size_t>(m_start.size());
    if (offset <= startSize && size <= startSize - offset)
        return std::string_view(m_start.constData() + offset, size);
    return m_bytes->read(offset, size, scratch);
}

std::optional<std::string_view> ListFile::read(const Block& block, QByteArray& scratch) const
{
    const auto content = readAt(offset(block), block.size, scratch);
    if (!content || (m_checksums == Checksums::Verified && listFileChecksum(*content) != block.checksum))
        return std::nullopt;
    return content;
}

bool ListFile::areEnds(const std::vector<std::uint32_t>& ends, std::uint64_t size)
{
    return std::ranges::is_sorted(ends) && (ends.empty() || ends.back() <= size);
}

void ListFileWriter::add(ListFile::Key key, std::uint32_t width, std::string_view bytes)
{
    m_blocks.push_back({key, width, bytes.size(), listFileChecksum(bytes)});
    m_bytes.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QByteArray ListFileWriter::finish(const ListFile::Summary& summary) const
{
    Header header{magic, version, static_cast<std::uint32_t>(m_blocks.size()), summary, 0, 0};
    const std::string_view directory(reinterpret_cast<const char*>(m_blocks.data()),
                                     m_blocks.size() * sizeof(ListFile::Block));
    header.checksum = checksumOf(header, directory);
    QByteArray file;
    file.reserve(static_cast<qsizetype>(sizeof header + directory.size()) + m_bytes.size());
    file.append(reinterpret_cast<const char*>(&header), sizeof header);
    file.append(directory.data(), static_cast<qsizetype>(directory.size()));
    file.append(m_bytes);
    return file;
}

} // namespace vidora
