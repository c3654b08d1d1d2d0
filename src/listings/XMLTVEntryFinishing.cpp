#include "listings/XMLTVEntryFinishing.h"

#include "content/ListingText.h"
#include "listings/XMLTVKeywords.h"
#include "platform/Log.h"

#include <algorithm>

namespace vidora {
namespace {

bool isLineEnd(QChar c)
{
    return (c >= u'\n' && c <= u'\r') || c == u'\u0085' || c == u'\u2028' || c == u'\u2029';
}

/// A sub-title while its bracket groups are taken out: what stands ahead of the gap is done with, what stands behind it
/// is still to be searched. So each character moves once, however many groups there are.
class BracketGroups
{
public:
    explicit BracketGroups(QString& text)
        : m_text(text)
        , m_end(text.size())
    {
    }

    /// Calls `use` with each group, brackets included, and leaves the text without them.
    template<typename Use>
    void takeOut(Use&& use)
    {
        while (moveToGroup()) {
            const qsizetype open = m_behind;
            const QStringView line = QStringView{m_text}.mid(open, lineEnd(open) - open);
            const qsizetype close = open + line.lastIndexOf(u']') + 1;
            use(QStringView{m_text}.mid(open, close - open));
            m_behind = close;
            trim();
        }
        m_text = m_text.mid(m_begin, m_ahead - m_begin) + m_text.mid(m_behind, m_end - m_behind);
    }

private:
    qsizetype lineEnd(qsizetype position) const
    {
        while (position < m_end && !isLineEnd(m_text.at(position)))
            ++position;
        return position;
    }

    /// Moves the gap to the next "[" that a "]" follows in its line; to the end when there is none.
    bool moveToGroup()
    {
        while (m_behind < m_end) {
            const qsizetype end = lineEnd(m_behind);
            const QStringView line = QStringView{m_text}.mid(m_behind, end - m_behind);
            const qsizetype open = line.indexOf(u'[');
            const bool found = open >= 0 && line.lastIndexOf(u']') > open;
            moveGap(found ? open : std::min(line.size() + 1, m_end - m_behind));
            if (found)
                return true;
        }
        return false;
    }

    void moveGap(qsizetype length)
    {
        QChar* characters = m_text.data();
        if (m_ahead != m_behind)
            std::copy(characters + m_behind, characters + m_behind + length, characters + m_ahead);
        m_ahead += length;
        m_behind += length;
    }

    qsizetype size() const { return m_ahead - m_begin + m_end - m_behind; }
    QChar at(qsizetype index) const
    {
        const qsizetype done = m_ahead - m_begin;
        return m_text.at(index < done ? m_begin + index : m_behind + index - done);
    }
    bool startsWith(QStringView prefix) const
    {
        if (prefix.size() > size())
            return false;
        for (qsizetype i = 0; i < prefix.size(); ++i) {
            if (at(i) != prefix[i])
                return false;
        }
        return true;
    }
    void dropFront(qsizetype length)
    {
        const qsizetype done = std::min(length, m_ahead - m_begin);
        m_begin += done;
        m_behind += length - done;
    }
    void dropLast()
    {
        if (m_behind < m_end)
            --m_end;
        else
            --m_ahead;
    }

    /// Takes the punctuation away that a removed group leaves at the front.
    void trim()
    {
        if (startsWith(u". (") && at(size() - 1) == u')') {
            dropFront(3);
            dropLast();
        }
        for (const QStringView prefix :
             {QStringView{u" . "}, QStringView{u", "}, QStringView{u" "}, QStringView{u". "}}) {
            if (startsWith(prefix)) {
                dropFront(prefix.size());
                break;
            }
        }
    }

    QString& m_text;
    qsizetype m_begin = 0, m_ahead = 0, m_behind = 0;
    qsizetype m_end;
};

TVListingsCategory takeOutBracketGroups(QString& subtitle)
{
    TVListingsCategory categories = 0;
    if (!subtitle.contains(u'['))
        return categories;
    BracketGroups{subtitle}.takeOut([&](QStringView group) {
        const TVListingsCategory found = bracketGroupKeywords().match(group);
        categories |= found;
        if (!found && Log::enabled())
            Log::line(QStringLiteral("[UNPARSED CATEGORIES]=") + group);
    });
    return categories;
}

/// Trims a character from both ends and counts how often.
qsizetype trimAll(QStringView& text, QChar character)
{
    const qsizetype size = text.size();
    while (text.startsWith(character))
        text = text.mid(1);
    while (text.endsWith(character))
        text.chop(1);
    return size - text.size();
}

/// Balanced parentheses around a text go, unbalanced ones stay.
QString withoutParentheses(const QString& text)
{
    const QStringView trimmed = QStringView{text}.trimmed();
    QStringView inner = trimmed;
    const qsizetype opening = trimAll(inner, u'(');
    inner = inner.trimmed();
    const qsizetype closing = opening > 0 ? trimAll(inner, u')') : 0;
    inner = inner.trimmed();
    if (inner.size() == 1 && (inner[0] < u'0' || inner[0] > u'9'))
        inner = {};
    const bool isBalanced = opening == closing && !inner.contains(u'(') && !inner.contains(u')');
    return isBalanced ? QString{inner.data(), inner.size()} : trimmed.toString();
}

struct SubtitleMeaning
{
    TVListingsCategory categories = 0;
    bool isGenre = false;
};

/// Genre words in the sub-title, and channel names in the title that stand for a subject.
SubtitleMeaning meaningOfSubtitle(const std::optional<QString>& subtitle, const QString& title)
{
    SubtitleMeaning meaning;
    if (subtitle)
        meaning.categories = subtitleGenreKeywords().match(*subtitle);
    meaning.isGenre = meaning.categories != 0;
    if (title.contains(QLatin1String("Discovery")) || title.contains(QLatin1String("Geo")) ||
        title.contains(QLatin1String("Viasat"))) {
        meaning.categories |= category::documentaries;
        meaning.isGenre = subtitle.has_value();
    }
    if (subtitle && subtitle->contains(QLatin1String("sport"))) {
        meaning.categories |= category::sports;
        meaning.isGenre = true;
    }
    if (subtitle && subtitle->contains(QLatin1String("glazba"))) {
        meaning.categories |= category::music;
        meaning.isGenre = true;
    }
    return meaning;
}

TVListingsCategory finishSubtitle(TVEntry& entry, std::optional<QString> subtitle, const QString& title)
{
    TVListingsCategory categories = subtitle ? takeOutBracketGroups(*subtitle) : 0;
    const SubtitleMeaning meaning = meaningOfSubtitle(subtitle, title);
    categories |= meaning.categories;
    if (subtitle)
        subtitle = withoutParentheses(*subtitle);
    if (meaning.isGenre)
        entry.setInstantDetails1(std::move(subtitle));
    else if (subtitle && !subtitle->isEmpty())
        entry.setSubtitle1(std::move(subtitle));
    return categories;
}

TVListingsCategory categoryOfInstantDescription(const QString& text)
{
    TVListingsCategory categories = 0;
    if (text.contains(QLatin1String("film")))
        categories |= category::movies;
    if (text.contains(QLatin1String("za djecu")))
        categories |= category::children;
    if (text.contains(QLatin1String("serija")))
        categories |= category::series;
    if (text.contains(QLatin1String("dokumentarna")))
        categories |= category::documentaries;
    return categories;
}

/// The title's second half, and the marks of repeats and of parts in the title.
TVListingsCategory finishTitle(TVEntry& entry, const QString& title, const std::optional<QString>& description)
{
    TVListingsCategory categories = 0;
    std::optional<QString> second = showInstantDescription(title);
    if (second)
        categories |= categoryOfInstantDescription(*second);
    if (title.contains(QLatin1String("(R)")) || title.contains(QLatin1String("[Repris]")))
        entry.setPreviouslyShown(true);
    if (second && second->contains(u'(') && second->contains(u'/') && second->contains(u')'))
        categories |= category::series;
    else if (description && description->contains(QLatin1String("Uloge: ")))
        categories |= category::movies;
    entry.setInstantDescription1(std::move(second));
    entry.setIdentificator(showTitle(title));
    return categories;
}

} // namespace

bool isPlaceholderTitle(QStringView title)
{
    return title == QLatin1String("NEMA INFORMACIJA") || title == QLatin1String("Nema informacija o programu");
}

ExtendedTVEntry finishEntry(XMLTVProgramme programme, const QString& creditsHost)
{
    ExtendedTVEntry entry;
    TVListingsCategory categories = programme.categories;
    const QString title = std::move(programme.title).value_or(QString{});
    if (title.contains(QLatin1String("Sezonul")) || title.contains(QLatin1String("Episodul")))
        categories |= category::series;
    categories |= finishSubtitle(*entry.basic, std::move(programme.subtitle), title);

    TVEntrySupplementalData& extra = *entry.extra;
    extra.description = std::move(programme.description);
    extra.roles = std::move(programme.roles);
    extra.directedBy = std::move(programme.directedBy);
    descriptionCleanUp(extra, creditsHost);
    std::optional<QString> description;
    if (extra.description)
        description = extra.description->string();
    if (description)
        categories |= descriptionKeywords().match(*description);

    entry.basic->setPreviouslyShown(programme.previouslyShown);
    categories |= finishTitle(*entry.basic, title, description);
    if (extra.roles)
        categories |= category::movies;
    if (programme.category)
        categories |= categoryFromText(*programme.category);
    if (categories & category::series)
        categories &= ~category::movies;

    entry.categories = categories;
    entry.icon = std::move(programme.icon);
    entry.basic->setSourceId(std::move(programme.sourceId));
    entry.basic->setDateTime(programme.start);
    entry.basic->setEndDateTime(programme.stop);
    return entry;
}

} // namespace vidora
