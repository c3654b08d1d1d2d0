#pragma once

#include <QString>

#include <array>
#include <vector>

namespace vidora {

/// What a search for words overlooks.
enum class Folding
{
    None,              ///< canonically equivalent spellings only
    Case,              ///< and case
    Diacritics,        ///< and diacritics
    CaseAndDiacritics, ///< and both
};

/// One folded unit for each UTF-16 unit, so that folding costs one look-up a unit. The same in every locale.
///
/// Case is Unicode's simple case folding. Where diacritics are overlooked, a unit becomes the base letter of its
/// canonical decomposition and marks of a combining class other than 0 are dropped. Letters without a decomposition (đ,
/// ł, ß), ligatures, Hangul syllables and surrogates stay themselves.
using FoldingTable = std::array<char16_t, 0x10000>;
const FoldingTable& foldingTable(Folding folding);

/// Stands in a FoldingTable for a unit that is dropped. Itself a combining mark, so that no unit folds to it.
constexpr char16_t droppedUnit = u'\u0301';

/// The text in the form in which combining marks and their letters are one unit wherever Unicode has one (NFC), without
/// a copy where it is so already. `storage` keeps the copy, if any.
QStringView composed(QStringView text, QString& storage);

/// A text folded by both case and diacritics that knows where each of its units came from.
class FoldedText
{
public:
    explicit FoldedText(QStringView text);

    QStringView units() const { return m_units; }
    /// Position in the original text of a folded position from 0 to size. As the end of a match it lies behind the
    /// marks of the match's last letter.
    qsizetype origin(qsizetype position) const { return m_origins.empty() ? position : m_origins[size_t(position)]; }

private:
    QString m_units;
    std::vector<qsizetype> m_origins; ///< empty where nothing was dropped
};

} // namespace vidora
