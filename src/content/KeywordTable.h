#pragma once

#include "content/TVListingsCategory.h"
#include "content/TextFolding.h"
#include "content/WordAutomaton.h"

#include <initializer_list>
#include <vector>

namespace vidora {

/// A table of words that stand for categories, all looked for in one pass over a text.
///
///     static const KeywordTable table{
///         {category::movies, {{u"film", Folding::Case}, u"telenovela"}},
///         {category::movies | category::dramas, {u"drama"}},
///     };
///     categories |= table.match(text);
///
/// Building one is slow next to a match: keep it in a static. Pure; any thread.
class KeywordTable
{
public:
    struct Word
    {
        Word(const char16_t* word, Folding fold = Folding::None) // implicit on purpose: most words have no option
            : text(word)
            , folding(fold)
        {
        }
        QStringView text;
        Folding folding;
    };
    struct Row
    {
        TVListingsCategory bits;
        std::initializer_list<Word> words;
    };

    /// The words' texts must outlive the constructor alone.
    KeywordTable(std::initializer_list<Row> rows);

    /// The bits of all rows of which at least one word is contained in the text, as a plain substring.
    TVListingsCategory match(QStringView text) const;

private:
    struct Pass
    {
        WordAutomaton automaton;
        std::vector<TVListingsCategory> bits; ///< of each word of the automaton
    };
    std::vector<Pass> m_passes; ///< one for each folding that occurs
};

} // namespace vidora
