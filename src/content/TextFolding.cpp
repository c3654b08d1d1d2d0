#include "content/TextFolding.h"

#include <QChar>

#include <memory>

namespace vidora {

namespace {

bool isHangulSyllable(char16_t unit)
{
    return unit >= 0xac00 && unit <= 0xd7a3;
}

char16_t withoutDiacritics(char16_t unit)
{
    if (QChar::combiningClass(unit) != 0)
        return droppedUnit;
    if (QChar::decompositionTag(unit) != QChar::Canonical || isHangulSyllable(unit))
        return unit;
    QString base = QString(QChar(unit)).normalized(QString::NormalizationForm_D);
    base.removeIf([](QChar part) { return QChar::combiningClass(part.unicode()) != 0; });
    if (base.isEmpty())
        return droppedUnit;
    return base.size() == 1 ? base.front().unicode() : unit;
}

char16_t withoutCase(char16_t unit)
{
    const char32_t folded = QChar::toCaseFolded(char32_t(unit));
    if (folded != unit)
        return char16_t(folded);
    // A letter whose full folding is a sequence comes back unchanged, though it may have a simple one (ẞ to ß).
    const char32_t lower = QChar::toLower(char32_t(unit));
    return QChar::toCaseFolded(lower) == lower ? char16_t(lower) : unit;
}

std::unique_ptr<const FoldingTable> makeTable(bool foldCase, bool dropDiacritics)
{
    auto table = std::make_unique<FoldingTable>();
    for (char32_t i = 0; i < table->size(); ++i) {
        auto unit = char16_t(i);
        if (!QChar::isSurrogate(i)) {
            if (dropDiacritics)
                unit = withoutDiacritics(unit);
            if (foldCase && unit != droppedUnit)
                unit = withoutCase(unit);
        }
        (*table)[i] = unit;
    }
    return table;
}

} // namespace

const FoldingTable& foldingTable(Folding folding)
{
    switch (folding) {
    case Folding::None: {
        static const auto table = makeTable(false, false);
        return *table;
    }
    case Folding::Case: {
        static const auto table = makeTable(true, false);
        return *table;
    }
    case Folding::Diacritics: {
        static const auto table = makeTable(false, true);
        return *table;
    }
    case Folding::CaseAndDiacritics:
        break;
    }
    static const auto table = makeTable(true, true);
    return *table;
}

QStringView composed(QStringView text, QString& storage)
{
    // Nothing below the combining marks changes or combines under NFC.
    constexpr char16_t firstMark = 0x300;
    for (const QChar unit : text) {
        if (unit.unicode() >= firstMark) {
            storage = text.toString().normalized(QString::NormalizationForm_C);
            return storage;
        }
    }
    return text;
}

FoldedText::FoldedText(QStringView text)
    : m_units(text.size(), Qt::Uninitialized)
{
    const FoldingTable& table = foldingTable(Folding::CaseAndDiacritics);
    QChar* out = m_units.data();
    qsizetype count = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = table[text[i].unicode()];
        if (unit == droppedUnit) {
            if (count == i) // the first one that goes: until here each unit stood at its own place
                for (qsizetype earlier = 0; earlier < i; ++earlier)
                    m_origins.push_back(earlier);
            continue;
        }
        if (count != i)
            m_origins.push_back(i);
        out[count++] = QChar(unit);
    }
    if (count != text.size())
        m_origins.push_back(text.size());
    m_units.truncate(count);
}

} // namespace vidora
