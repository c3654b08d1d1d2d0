#include "store/FoldedTexts.h"

#include "store/FoldedShow.h"

namespace vidora {

FoldedTexts::FoldedTexts(const ShowTable& table)
    : m_table(table)
    , m_file(table.file())
    , m_block(table.isForThisDevice() ? m_file->block(key) : nullptr)
    , m_endsSize(table.end() * sizeof(std::uint32_t))
{
}

std::optional<std::string_view> FoldedTexts::all(QByteArray& scratch)
{
    if (!m_block) {
        if (!m_isKnown && !fold())
            return std::nullopt;
        return viewOf(m_folded);
    }
    // What has been checked is not checked again: other bytes would be found or not found, and no worse.
    auto bytes = m_isKnown ? m_file->bytes().read(m_file->offset(*m_block), m_block->size, scratch)
                           : m_file->read(*m_block, scratch);
    if (bytes && bytes->size() >= m_endsSize) {
        if (!m_isKnown) {
            m_ends.resize(m_table.end());
            if (!m_ends.empty())
                std::memcpy(m_ends.data(), bytes->data(), m_endsSize);
            m_isKnown = ListFile::areEnds(m_ends, bytes->size() - m_endsSize);
        }
        if (m_isKnown)
            return bytes->substr(m_endsSize);
    }
    m_table.markDamaged();
    return std::nullopt;
}

bool FoldedTexts::fold()
{
    QByteArray scratch;
    const auto records = m_file->read(*m_file->block(ShowTable::recordsKey), scratch);
    if (!records) {
        m_table.markDamaged();
        return false;
    }
    m_ends.reserve(m_table.end());
    for (ShowTable::Row row = 0; row < m_table.end(); ++row) {
        const auto [begin, end] = m_table.recordOf(row);
        appendFoldedTexts(ShowRecord(records->substr(begin, end - begin)), m_folded);
        m_ends.push_back(static_cast<std::uint32_t>(m_folded.size()));
    }
    m_isKnown = true;
    return true;
}

std::optional<std::string_view> FoldedTexts::ofRow(ShowTable::Row row, QByteArray& scratch) const
{
    const std::size_t begin = row == 0 ? 0 : m_ends[row - 1];
    const std::size_t size = m_ends[row] - begin;
    if (!m_block)
        return std::string_view(m_folded.constData() + begin, size);
    return m_file->bytes().read(m_file->offset(*m_block) + m_endsSize + begin, size, scratch);
}

bool FoldedTexts::add(ListFileWriter& writer)
{
    QByteArray scratch;
    const auto texts = all(scratch);
    if (!texts)
        return false;
    QByteArray bytes(reinterpret_cast<const char*>(m_ends.data()), static_cast<qsizetype>(m_endsSize));
    bytes.append(texts->data(), static_cast<qsizetype>(texts->size()));
    writer.add(key, 0, viewOf(bytes));
    return true;
}

} // namespace vidora
