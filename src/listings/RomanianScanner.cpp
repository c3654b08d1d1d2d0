#include "listings/PageScanner.h"
#include "listings/Scanner.h"

#include <algorithm>
#include <cmath>

namespace vidora {

namespace {

constexpr QStringView timeOpening = u"data-time=\"";
constexpr QStringView titleOpening = u"<h3>";
constexpr QStringView linkHead = u" href=\"/";

bool isDigit(QChar unit)
{
    return unit >= QLatin1Char('0') && unit <= QLatin1Char('9');
}

qsizetype digitsEnd(QStringView text, qsizetype at)
{
    return std::find_if_not(text.begin() + at, text.end(), isDigit) - text.begin();
}

qsizetype signEnd(QStringView text, qsizetype at)
{
    return at < text.size() && (text[at] == QLatin1Char('-') || text[at] == QLatin1Char('+')) ? at + 1 : at;
}

/// The decimal number at the front of a text, behind blanks; 0 where there is none.
double leadingDecimal(QStringView text)
{
    text =
        text.mid(std::find_if_not(text.begin(), text.end(), [](QChar unit) { return unit.isSpace(); }) - text.begin());
    const qsizetype start = signEnd(text, 0);
    qsizetype end = digitsEnd(text, start);
    qsizetype digits = end - start;
    if (end < text.size() && text[end] == QLatin1Char('.')) {
        const qsizetype fraction = digitsEnd(text, end + 1);
        digits += fraction - end - 1;
        end = fraction;
    }
    if (digits == 0)
        return 0;
    if (end < text.size() && text[end].toLower() == QLatin1Char('e')) {
        const qsizetype exponent = signEnd(text, end + 1);
        if (const qsizetype last = digitsEnd(text, exponent); last > exponent)
            end = last;
    }
    return text.left(end).toDouble();
}

/// The moment that a count of seconds since 1970 stands for; counts beyond all calendars stay at the end of the range.
Instant momentOf(QStringView seconds)
{
    constexpr double limit = 1e15, millisecondsPerSecond = 1000;
    const double count = std::clamp(leadingDecimal(seconds), -limit, limit);
    return instantFromUnixMilliseconds(std::llround(count * millisecondsPerSecond));
}

/// Reads the Romanian pages, which have one channel and the full moment of each show.
class RomanianScanner
{
public:
    RomanianScanner(const ScanInput& input, Drafts& drafts)
        : m_item(input.items.at(0))
        , m_origin(Endpoints::origin(input.endpoints.romania.host, QLatin1String("http")))
        , m_drafts(drafts)
    {
    }

    void scan(QStringView text)
    {
        const PageScanner page(text);
        RememberedExpression links(page, linkHead, 1, u"\"");
        m_linkAt = -1;
        for (qsizetype position = 0; position < page.size();) {
            const auto time = page.cut(timeOpening, u"\"", position, page.size());
            if (!time)
                return;
            const auto title = page.cut(titleOpening, u"<", time->close.at, page.size());
            if (!title)
                return;
            position = title->close.at;
            append(momentOf(time->text), title->text, linkFrom(page, links, position));
        }
    }

private:
    /// The next link, also where it belongs to a later show: shows have no bounds here.
    const std::optional<URL>& linkFrom(const PageScanner& page, RememberedExpression& links, qsizetype from)
    {
        const auto link = links.find(from);
        if (!link)
            return m_noLink;
        // Shows that share a link share its text.
        if (const qsizetype start = link->at + linkHead.size() - 1; start != m_linkAt) {
            m_linkAt = start;
            const auto end = page.find(u"\"", start);
            m_link = end ? URL::fromText(QString(m_origin + page.slice(start, end->at))) : std::nullopt;
        }
        return m_link;
    }

    void append(Instant date, QStringView title, const std::optional<URL>& url)
    {
        ShowDraft draft;
        TVEntry& entry = *draft.entry;
        entry.setDateTime(date);
        entry.setIdentificator(title.toString());
        entry.setUrl(url);
        entry.setChannel(m_item.channel);
        entry.setSourceId(m_item.sourceId);
        draft.categories = 0;
        m_drafts[m_item.channel].push_back(std::move(draft));
    }

    const ChannelItem& m_item;
    QString m_origin;
    Drafts& m_drafts;
    qsizetype m_linkAt = -1;
    const std::optional<URL> m_noLink;
    std::optional<URL> m_link;
};

} // namespace

void scanRomania(const ScanInput& input, Drafts& drafts)
{
    RomanianScanner scanner(input, drafts);
    for (const QString& page : input.pages)
        scanner.scan(page);
}

} // namespace vidora
