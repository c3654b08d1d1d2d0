#pragma once

#include "content/TextFolding.h"

#include <QStringView>

#include <cstdint>
#include <utility>
#include <vector>

namespace vidora {

/// Finds every occurrence of a fixed set of words in one pass over a text, whatever their number (Aho and Corasick,
/// "Efficient string matching", 1975). The text is folded on the way. Built once, then read by any thread.
class WordAutomaton
{
public:
    /// Words are numbered in the order given. One that is given twice, or folds to the same units as another, is
    /// reported under each of its numbers; one that folds to nothing is never found. At most 250 different folded units
    /// and 65,000 units in all.
    WordAutomaton(const std::vector<QStringView>& words, Folding folding);

    /// Calls `hit(word, end)` for the occurrences of the words, in the order of their ends; `end` is the position
    /// behind the last letter. The combining marks behind that letter, where they are overlooked, report it again.
    template<typename Hit>
    void scan(QStringView text, Hit&& hit) const
    {
        const char16_t* units = text.utf16();
        const qsizetype size = text.size();
        State state = 0;
        for (qsizetype i = 0; i < size; ++i) {
            state = m_next[(std::size_t(state) << m_shift) + m_classes[units[i]]];
            if (state >= m_firstHitting) [[unlikely]] {
                const std::size_t hitting = std::size_t(state - m_firstHitting);
                for (auto word = m_hitsBegin[hitting]; word < m_hitsBegin[hitting + 1]; ++word)
                    hit(m_hits[word], i + 1);
            }
        }
    }

    /// Where the occurrence of a word that `scan` reported begins and ends in the text, the marks of its last letter
    /// included.
    std::pair<qsizetype, qsizetype> range(QStringView text, std::uint16_t word, qsizetype end) const;

private:
    using State = std::uint16_t;
    struct Trie;
    void number(const std::vector<State>& order, const Trie& trie);

    bool dropped(QChar unit) const { return m_classes[unit.unicode()] == droppedClass; }
    static constexpr std::uint8_t otherClass = 0;   ///< units that occur in no word
    static constexpr std::uint8_t droppedClass = 1; ///< units that leave every state as it is

    std::vector<std::uint8_t> m_classes; ///< of each UTF-16 unit
    unsigned m_shift = 0;                ///< a state has 1 << m_shift transitions, one a class
    std::vector<State> m_next;
    State m_firstHitting = 0; ///< states from here on end a word
    std::vector<std::uint32_t> m_hitsBegin;
    std::vector<std::uint16_t> m_hits;
    std::vector<std::uint16_t> m_lengths; ///< of each word, in folded units
};

} // namespace vidora
