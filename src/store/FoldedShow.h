#pragma once

#include "content/ShowElement.h"
#include "store/ShowRecord.h"

#include <QByteArray>

#include <cstdint>
#include <string_view>
#include <vector>

namespace vidora {

// A show's texts in which a search looks, folded beforehand: a byte for each UTF-16 unit, a zero behind each text. The
// byte is the folded unit itself if that is ASCII, and Cyrillic letters are those that Latin spells them with. Other
// units share the bytes from 0x80 on; what is found by these is looked up in the show's own texts.
//
// A show is searched in title, description, details and subtitle as they are shown, and in the texts of its
// supplemental data; a title that is shown in Cyrillic also as its provider spelled it. A match lies in one of them and
// covers whole letters with their marks.

/// Appends the folded texts of a record.
void appendFoldedTexts(const ShowRecord& record, QByteArray& folded);

/// What the user searches for, folded once: case, diacritics and alphabet are overlooked. A value; any thread.
class SearchPattern
{
public:
    SearchPattern() = default;
    explicit SearchPattern(QStringView pattern);

    /// Nothing to look for is found nowhere.
    bool isEmpty() const { return m_units.isEmpty(); }
    /// Whether everything in which this is found holds the other pattern, too.
    bool contains(const SearchPattern& other) const { return m_units.contains(other.m_units); }
    /// What to look for in folded texts.
    const std::vector<std::uint8_t>& bytes() const { return m_bytes; }
    /// Where the bytes are found, the pattern is; else `isIn` tells.
    bool isExact() const { return m_exact; }
    bool isIn(const ShowElement& show) const;

private:
    QString m_units;
    std::vector<std::uint8_t> m_bytes;
    bool m_exact = false;
};

} // namespace vidora
