#include "content/KeywordTable.h"

namespace vidora {

KeywordTable::KeywordTable(std::initializer_list<Row> rows)
{
    for (const Folding folding : {Folding::None, Folding::Case, Folding::Diacritics, Folding::CaseAndDiacritics}) {
        std::vector<QStringView> words;
        std::vector<TVListingsCategory> bits;
        for (const Row& row : rows) {
            for (const Word& word : row.words) {
                if (word.folding != folding)
                    continue;
                words.push_back(word.text);
                bits.push_back(row.bits);
            }
        }
        if (!words.empty())
            m_passes.push_back({WordAutomaton(words, folding), std::move(bits)});
    }
}

TVListingsCategory KeywordTable::match(QStringView text) const
{
    QString storage;
    text = composed(text, storage);
    TVListingsCategory found = 0;
    for (const Pass& pass : m_passes)
        pass.automaton.scan(text, [&](std::uint16_t word, qsizetype) { found |= pass.bits[word]; });
    return found;
}

} // namespace vidora
