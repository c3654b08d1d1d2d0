#pragma once

#include "content/ShowElement.h"
#include "store/TextArena.h"

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace vidora {

/// What the user searches for, folded once: case and diacritics are overlooked.
class SearchPattern
{
public:
    SearchPattern() = default;
    explicit SearchPattern(QStringView pattern);

    /// Nothing to look for is found nowhere.
    bool isEmpty() const { return m_units.isEmpty(); }
    /// Whether everything in which this is found holds the other pattern, too.
    bool contains(const SearchPattern& other) const { return m_units.contains(other.m_units); }

private:
    friend class FoldedShows;
    bool isIn(const ShowElement& show) const;

    QString m_units;
    std::vector<std::uint8_t> m_bytes;
    bool m_exact = false; ///< where the bytes are found, the units are
};

/// The texts of a list's shows in which a search looks, folded beforehand: a byte for each UTF-16 unit, all texts of
/// neighbouring shows in one stretch of memory, a zero between two texts. The byte is the folded unit itself if that is
/// ASCII. Other units share the bytes from 0x80 on; what is found by these is looked up in the show's own texts.
///
/// A show is searched in title, description, details and subtitle as they are shown, and in the texts of its
/// supplemental data. A match lies in one of them and covers whole letters with their marks.
class FoldedShows
{
public:
    /// Folds the texts on this thread and one of the global queue. Those of shows that are also in `previous` are taken
    /// from there, if both lists are in the order of their start times.
    FoldedShows(std::shared_ptr<const ShowList> shows, const FoldedShows* previous);

    const std::shared_ptr<const ShowList>& shows() const { return m_shows; }
    /// Index of the first show from `from` on in which the pattern is found; the count of shows where there is none.
    std::size_t find(const SearchPattern& pattern, std::size_t from) const;
    bool holds(std::size_t show, const SearchPattern& pattern) const;

private:
    struct Block
    {
        const std::uint8_t* bytes = nullptr;
        std::vector<std::uint32_t> begins; ///< of the texts of each show, and the end of the last
    };
    static constexpr std::size_t showsPerBlock = 256; ///< whose texts fit into a core's cache

    void fill(std::size_t block, const FoldedShows* previous, TextArena& arena);
    /// Where shows of another list stand in this one, as far as they do: both are in the order of their start times.
    std::vector<std::optional<std::size_t>> placesOf(ShowList::const_iterator first,
                                                     ShowList::const_iterator last) const;
    std::span<const std::uint8_t> textsOf(std::size_t show) const;

    std::shared_ptr<const ShowList> m_shows;
    std::vector<Block> m_blocks;
    std::array<TextArena, 2> m_arenas; ///< one for each thread that folds
};

} // namespace vidora
