#pragma once

#include "store/ShowTable.h"

namespace vidora {

/// The folded texts of a table's shows (see FoldedShow.h), one behind the other: those in its file where there are any
/// for this device's alphabet, else folded at the first use and kept in memory. For one thread at a time.
class FoldedTexts
{
public:
    /// Of the block in the file: the end of each row's texts, four bytes each, and the texts.
    static constexpr ListFile::Key key = ListFile::key("fold");

    explicit FoldedTexts(const ShowTable& table);

    /// All texts. The first time checks those of the file. Nothing where they are lost, which marks the table damaged.
    std::optional<std::string_view> all(QByteArray& scratch);
    /// The texts of one row, after `all`.
    std::optional<std::string_view> ofRow(ShowTable::Row row, QByteArray& scratch) const;
    /// Where the texts of each row end, after `all`.
    const std::vector<std::uint32_t>& ends() const { return m_ends; }
    /// Adds them to a file as a block; false where they are lost.
    bool add(ListFileWriter& writer);

private:
    bool fold();

    const ShowTable& m_table;
    const std::shared_ptr<const ListFile> m_file;
    const ListFile::Block* const m_block; ///< null: they are in memory
    const std::size_t m_endsSize;
    std::vector<std::uint32_t> m_ends;
    QByteArray m_folded;
    bool m_isKnown = false;
};

} // namespace vidora
