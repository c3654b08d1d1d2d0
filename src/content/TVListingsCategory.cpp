#include "content/TVListingsCategory.h"

#include "content/CategoryKeywords.h"
#include "content/KeywordTable.h"

#include <algorithm>
#include <array>
#include <bitset>

namespace vidora {

namespace {

bool isAsciiLetter(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

/// Not alike on both sides: any character outside ASCII behind an occurrence speaks against it, ahead of it only a
/// letter.
bool standsAlone(QStringView text, qsizetype begin, qsizetype end)
{
    constexpr char16_t firstBeyondAscii = 0x80;
    if (begin > 0) {
        const QChar ahead = text[begin - 1];
        if (ahead.unicode() < firstBeyondAscii ? isAsciiLetter(ahead.unicode()) : ahead.isLetter())
            return false;
    }
    if (end == text.size())
        return true;
    const char16_t behind = text[end].unicode();
    return behind < firstBeyondAscii && !isAsciiLetter(behind);
}

/// All keywords of the general classifier in one automaton.
class CategoryScanner
{
public:
    static const CategoryScanner& instance()
    {
        static const CategoryScanner scanner;
        return scanner;
    }

    Finding::Set findings(QStringView text) const
    {
        std::bitset<maximumWords> met;
        Finding::Set found = 0;
        m_automaton.scan(text, [&](std::uint16_t word, qsizetype end) {
            if (met[word]) // only the first occurrence counts, wherever it stands
                return;
            met[word] = true;
            const auto [from, to] = m_automaton.range(text, word, end);
            if (m_findings[word] == Finding::sport || standsAlone(text, from, to))
                found |= m_findings[word];
        });
        return found;
    }

private:
    static constexpr std::size_t maximumWords = 512;

    CategoryScanner()
        : m_automaton(takeWords(), Folding::CaseAndDiacritics)
    {
        Q_ASSERT(m_findings.size() <= maximumWords);
    }

    std::vector<QStringView> takeWords()
    {
        std::vector<QStringView> words;
        for (const CategoryKeywords& row : categoryKeywords) {
            for (const char16_t* word : row.words) {
                words.push_back(word);
                m_findings.push_back(row.findings);
            }
        }
        return words;
    }

    std::vector<Finding::Set> m_findings; ///< of each word; ahead of the automaton, whose making fills it
    WordAutomaton m_automaton;
};

/// Channels of one provider that have a fixed subject.
TVListingsCategory seedForSourceId(const TVEntry::Text& sourceId)
{
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    if (!sourceId || sourceId->isEmpty() || sourceId->size() > 4 || !isDigit(sourceId->front()))
        return 0;
    const auto end = std::find_if_not(sourceId->begin(), sourceId->end(), isDigit);
    switch (QStringView(sourceId->begin(), end).toInt()) {
    case 41:
    case 77:
        return category::children;
    case 36:
    case 37:
    case 58:
    case 94:
    case 98:
    case 102:
    case 161:
    case 211:
        return category::sports;
    case 22:
        return category::music;
    case 63:
        return category::entertainment;
    case 14:
    case 65:
    case 66:
    case 83:
    case 85:
    case 141:
    case 174:
    case 182:
        return category::documentaries;
    case 89:
        return category::series;
    default:
        return 0;
    }
}

/// The findings of the three texts, in the order in which they are asked.
struct Findings
{
    Finding::Set details, title, description;

    std::array<Finding::Set, 3> inOrder() const { return {details, title, description}; }
    Finding::Set anywhere() const { return details | title | description; }
};

void addKeywords(TVListingsCategory& mask, Finding::Set found)
{
    mask |= Finding::earlyBits(found);
    if (found & Finding::opera && !(found & Finding::soapOpera))
        mask |= category::music;
    if (found & Finding::sport || (found & Finding::marathon && !(found & Finding::filmMarathon)))
        mask |= category::sports;
    if (found & Finding::seriesFilm)
        mask = (mask & ~category::filmOrSeries) | category::series;
    mask |= Finding::lateBits(found);
}

void correctTitles(TVListingsCategory& mask, const Findings& found)
{
    if (found.title & Finding::alwaysSeries)
        mask = (mask & ~category::filmOrSeries) | category::series;
    if (found.title & Finding::neverFilm)
        mask &= ~category::film;
    if (!(mask & (category::film | category::children)))
        return;
    if (found.anywhere() & Finding::southPark)
        mask &= ~category::children;
    if (found.anywhere() & Finding::reportage)
        mask &= ~category::film;
}

/// Abbreviations so short that they count only where nothing better was found.
void addFallbacks(TVListingsCategory& mask, const Findings& found)
{
    if (mask & category::filmOrSeries)
        return;
    if (found.anywhere() & Finding::story)
        mask |= category::children;
    const Findings letters{found.details, found.title & ~Finding::filmLetter, found.description};
    for (const Finding::Set text : letters.inOrder()) {
        if (text & Finding::filmLetter)
            mask |= category::movies;
        else if (text & Finding::seriesLetter)
            mask |= category::series;
        else
            continue;
        return;
    }
}

void resolve(TVListingsCategory& mask)
{
    using namespace category;
    struct Rule
    {
        TVListingsCategory first, second, cleared;
    };
    static constexpr Rule rules[] = {
        {series, crime, crime},
        {series, dramas, dramas},
        {series, comedies, comedies},
        {sports, series, series},
        {sports, film, sports},
        {series, entertainment, entertainment},
        {entertainment, film, entertainment},
        {series, film, film},
        {documentaries, film, film},
        {children, film, film},
        {children, series, series},
        {children, sports, sports},
        {documentaries, series, series},
        {scienceFiction, fantasy, fantasy},
        {sports, entertainment, entertainment},
    };
    for (const Rule& rule : rules)
        if (mask & rule.first && mask & rule.second)
            mask &= ~rule.cleared;
}

struct Label
{
    TVListingsCategory category;
    const char* text;
};

} // namespace

QString textForCategory(std::int32_t category)
{
    using namespace category;
    static constexpr Label lists[] = {{all, QT_TRANSLATE_NOOP("vidora", "All Shows")},
                                      {film, QT_TRANSLATE_NOOP("vidora", "Feature Films")},
                                      {evening, QT_TRANSLATE_NOOP("vidora", "Evening Shows")},
                                      {popular, QT_TRANSLATE_NOOP("vidora", "Most Watched")}};
    static constexpr Label bits[] = {{documentaries, QT_TRANSLATE_NOOP("vidora", "Documentaries")},
                                     {children, QT_TRANSLATE_NOOP("vidora", "For Children")},
                                     {news, QT_TRANSLATE_NOOP("vidora", "News")},
                                     {entertainment, QT_TRANSLATE_NOOP("vidora", "Entertainment")},
                                     {music, QT_TRANSLATE_NOOP("vidora", "Music")},
                                     {sports, QT_TRANSLATE_NOOP("vidora", "Sports")},
                                     {comedies, QT_TRANSLATE_NOOP("vidora", "Comedies")},
                                     {adventure, QT_TRANSLATE_NOOP("vidora", "Adventure")},
                                     {crime, QT_TRANSLATE_NOOP("vidora", "Crime")},
                                     {westerns, QT_TRANSLATE_NOOP("vidora", "Westerns")},
                                     {dramas, QT_TRANSLATE_NOOP("vidora", "Dramas")},
                                     {thrillers, QT_TRANSLATE_NOOP("vidora", "Thrillers")},
                                     {scienceFiction, QT_TRANSLATE_NOOP("vidora", "SF")},
                                     {fantasy, QT_TRANSLATE_NOOP("vidora", "Fantasy")},
                                     {horrors, QT_TRANSLATE_NOOP("vidora", "Horrors")},
                                     {movies, QT_TRANSLATE_NOOP("vidora", "Movies")},
                                     {series, QT_TRANSLATE_NOOP("vidora", "TV Series")}};
    const auto mask = TVListingsCategory(category);
    for (const Label& label : lists)
        if (mask == label.category)
            return QString::fromLatin1(label.text);
    for (const Label& label : bits)
        if (mask & label.category)
            return QString::fromLatin1(label.text);
    return QStringLiteral("All Shows");
}

TVListingsCategory categoryMaskForEntry(const TVEntry& entry)
{
    return categoryMaskForTexts(entry.sourceId(), entry.instantDetails1(), entry.identificator(),
                                entry.instantDescription1());
}

TVListingsCategory categoryMaskForTexts(const TVEntry::Text& sourceId, const TVEntry::Text& instantDetails1,
                                        const TVEntry::Text& identificator, const TVEntry::Text& instantDescription1)
{
    const CategoryScanner& scanner = CategoryScanner::instance();
    const auto findings = [&](const TVEntry::Text& text) { return text ? scanner.findings(*text) : 0; };
    const Findings found{findings(instantDetails1), findings(identificator), findings(instantDescription1)};

    TVListingsCategory mask = seedForSourceId(sourceId);
    for (const Finding::Set text : found.inOrder())
        addKeywords(mask, text);
    correctTitles(mask, found);
    addFallbacks(mask, found);
    resolve(mask);
    return mask;
}

bool entryTextHasWord(QStringView text, QStringView word)
{
    const FoldedText foldedText(text);
    const FoldedText foldedWord(word);
    if (foldedWord.units().isEmpty())
        return false;
    const qsizetype at = foldedText.units().indexOf(foldedWord.units());
    return at >= 0 && standsAlone(text, foldedText.origin(at), foldedText.origin(at + foldedWord.units().size()));
}

TVListingsCategory categoryFromText(QStringView text)
{
    using namespace category;
    constexpr auto i = Folding::Case;
    constexpr TVListingsCategory fantasyWord = 0x80000000; // no category: fantasy, where it isn't science fiction
    static const KeywordTable table{
        {movies, {{u"film", i}, {u"akcija", i}, {u"igrani", i}}},
        {movies | adventure, {{u"pustolovni film", i}, {u"avantura", i}}},
        {series, {{u"serij", i}}},
        {sports, {{u"sport", i}}},
        {music, {{u"glazb", i}}},
        {movies | crime, {{u"kriminalistički", i}}},
        {movies | westerns, {{u"vestern", i}}},
        {movies | dramas, {{u"drama", i}}},
        {movies | scienceFiction, {u"SF", {u"znanstvena fantastika", i}}},
        {fantasyWord, {{u"fantastika", i}}},
        {documentaries,
         {{u"doku", i},
          {u"gospodarstvo", i},
          {u"obrazovanje", i},
          {u"znanost", i},
          {u"kultura", i},
          {u"umjetnost", i},
          {u"religija", i},
          {u"reportage", i}}},
        {entertainment, {{u"show", i}, {u"magazin", i}, {u"lifestyle", i}, {u"reality", i}, {u"zabav", i}}},
        {movies | comedies, {{u"komedija", i}}},
        {news, {{u"informativn", i}, {u"aktualnost", i}, {u"intervju", i}, {u"vijesti", i}}},
    };
    const TVListingsCategory found = table.match(text);
    if (!(found & fantasyWord))
        return found;
    return (found & scienceFiction ? found : found | movies | fantasy) & ~fantasyWord;
}

} // namespace vidora
