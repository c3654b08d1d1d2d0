#include "content/WordAutomaton.h"

#include <bit>

namespace vidora {

namespace {

std::vector<char16_t> foldedUnits(QStringView word, const FoldingTable& table)
{
    std::vector<char16_t> units;
    for (const QChar unit : word)
        if (const char16_t folded = table[unit.unicode()]; folded != droppedUnit)
            units.push_back(folded);
    return units;
}

} // namespace

/// States in the order in which the words bring them in; the root is state 0.
struct WordAutomaton::Trie
{
    struct Node
    {
        std::vector<State> next;
        std::vector<std::uint16_t> words;
    };

    explicit Trie(std::size_t classCount)
        : classes(classCount)
        , nodes(1, Node{std::vector<State>(classCount, 0), {}})
    {
    }

    void add(const std::vector<std::uint8_t>& word, std::uint16_t number)
    {
        std::size_t at = 0;
        for (const std::uint8_t unitClass : word) {
            if (nodes[at].next[unitClass] == 0) {
                nodes[at].next[unitClass] = State(nodes.size());
                nodes.push_back(Node{std::vector<State>(classes, 0), {}});
            }
            at = nodes[at].next[unitClass];
        }
        if (at != 0)
            nodes[at].words.push_back(number);
    }

    /// Fills the missing transitions, nearest states first, by those of the longest proper suffix that is a state.
    /// Returns the states in that order.
    std::vector<State> complete()
    {
        std::vector<State> order{0};
        std::vector<State> suffix(nodes.size(), 0);
        for (std::size_t i = 0; i < order.size(); ++i) {
            const State at = order[i];
            for (std::size_t unitClass = 0; unitClass < classes; ++unitClass) {
                State& next = nodes[at].next[unitClass];
                const State fallback = at == 0 ? State(0) : nodes[suffix[at]].next[unitClass];
                if (unitClass == droppedClass) {
                    next = at;
                } else if (next == 0) {
                    next = fallback;
                } else {
                    suffix[next] = fallback;
                    const auto& shorter = nodes[fallback].words;
                    nodes[next].words.insert(nodes[next].words.end(), shorter.begin(), shorter.end());
                    order.push_back(next);
                }
            }
        }
        return order;
    }

    std::size_t classes;
    std::vector<Node> nodes;
};

WordAutomaton::WordAutomaton(const std::vector<QStringView>& words, Folding folding)
    : m_classes(0x10000, otherClass)
{
    const FoldingTable& table = foldingTable(folding);
    std::uint8_t classes = droppedClass + 1;
    std::vector<std::uint8_t> classOfFolded(0x10000, otherClass);
    if (folding == Folding::Diacritics || folding == Folding::CaseAndDiacritics)
        classOfFolded[droppedUnit] = droppedClass;
    for (const QStringView word : words)
        for (const char16_t unit : foldedUnits(word, table))
            if (classOfFolded[unit] == otherClass)
                classOfFolded[unit] = classes++;
    for (std::size_t unit = 0; unit < m_classes.size(); ++unit)
        m_classes[unit] = classOfFolded[table[unit]];

    Trie trie(classes);
    for (const QStringView word : words) {
        std::vector<std::uint8_t> path;
        for (const char16_t unit : foldedUnits(word, table))
            path.push_back(classOfFolded[unit]);
        trie.add(path, std::uint16_t(m_lengths.size()));
        m_lengths.push_back(std::uint16_t(path.size()));
    }
    number(trie.complete(), trie);
}

std::pair<qsizetype, qsizetype> WordAutomaton::range(QStringView text, std::uint16_t word, qsizetype end) const
{
    qsizetype begin = end;
    for (int left = m_lengths[word]; left > 0;)
        left -= dropped(text[--begin]) ? 0 : 1;
    while (end < text.size() && dropped(text[end]))
        ++end;
    return {begin, end};
}

/// States near the root come first, since a text spends its time there, but those that end a word come last, so that
/// one comparison tells them apart.
void WordAutomaton::number(const std::vector<State>& order, const Trie& trie)
{
    std::vector<State> newNumber(order.size());
    std::vector<State> numbered;
    for (const bool hitting : {false, true}) {
        if (hitting)
            m_firstHitting = State(numbered.size());
        for (const State old : order) {
            if (trie.nodes[old].words.empty() == hitting)
                continue;
            newNumber[old] = State(numbered.size());
            numbered.push_back(old);
        }
    }

    m_shift = unsigned(std::bit_width(trie.classes - 1));
    m_next.assign(order.size() << m_shift, 0);
    m_hitsBegin.push_back(0);
    for (std::size_t state = 0; state < numbered.size(); ++state) {
        const Trie::Node& node = trie.nodes[numbered[state]];
        for (std::size_t unitClass = 0; unitClass < trie.classes; ++unitClass)
            m_next[(state << m_shift) + unitClass] = newNumber[node.next[unitClass]];
        if (state < m_firstHitting)
            continue;
        m_hits.insert(m_hits.end(), node.words.begin(), node.words.end());
        m_hitsBegin.push_back(std::uint32_t(m_hits.size()));
    }
}

} // namespace vidora
