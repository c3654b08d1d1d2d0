#include "content/TVListingsCategory.h"
#include "listings/DateFormatter.h"
#include "listings/PageScanner.h"
#include "listings/Scanner.h"

#include <algorithm>
#include <iterator>

namespace vidora {

namespace {

constexpr QStringView logoMarker = u"class=\"channels-logo\">";
constexpr QStringView showMarker = u"<li class=\"channels-content-show\"";

struct Genre
{
    QStringView key;
    TVListingsCategory mask;
};

/// The first that is found counts.
constexpr Genre genres[] = {
    {u"- seriál", category::series},          {u"- zprávy", category::news},
    {u"- zábava", category::entertainment},   {u"- film", category::movies},
    {u"- dokument", category::documentaries}, {u"- sport", category::sports},
};

/// Reads the pages of Nova: a block for each channel, behind its logo, with the shows as list items. Markers are found
/// in canonically equivalent forms as well.
class NovaScanner
{
public:
    NovaScanner(const ScanInput& input, Drafts& drafts)
        : m_items(input.items)
        , m_drafts(drafts)
    {
    }

    void scan(QStringView text)
    {
        const PageScanner page(text);
        const auto first = page.findPlain(logoMarker, 0, page.size());
        qsizetype next = first ? first->end : page.size();
        while (next < page.size()) {
            const qsizetype start = next;
            const auto logo = page.findPlain(logoMarker, start, page.size());
            next = logo ? logo->end : page.size();
            const auto nameEnd = page.findPlain(u"<", start, next);
            if (!nameEnd)
                return;
            if (const ChannelItem* item = itemFor(page.slice(start, nameEnd->at)))
                readBlock(page, *item, start, next);
        }
    }

private:
    const ChannelItem* itemFor(QStringView logo) const
    {
        constexpr qsizetype prefixSize = 8;
        for (const ChannelItem& item : m_items) {
            if (PageScanner(item.sourceId).slice(prefixSize, item.sourceId.size()) == logo)
                return &item;
        }
        return nullptr;
    }

    void readBlock(const PageScanner& page, const ChannelItem& item, qsizetype from, qsizetype to)
    {
        while (from < to) {
            const auto opening = page.findPlain(showMarker, from, to);
            if (!opening)
                return;
            const auto closing = page.findPlain(u"</li>", opening->end, to);
            if (!closing || !readShow(page, item, opening->end, closing->at))
                return;
            from = closing->at;
        }
    }

    bool readShow(const PageScanner& page, const ChannelItem& item, qsizetype from, qsizetype to)
    {
        const auto begin = field(page, u"data-begin=\"", from, to);
        const auto title = field(page, u"<span class=\"title\">", from, to);
        if (!begin || !title)
            return false;
        const auto end = field(page, u"data-end=\"", from, to);
        const auto description = field(page, u"<span class=\"description\">", from, to);

        ShowDraft draft;
        TVEntry& entry = *draft.entry;
        entry.setIdentificator(title->toString());
        entry.setDateTime(m_form.date(*begin));
        if (end)
            entry.setEndDateTime(m_form.date(*end));
        entry.setChannel(item.channel);
        draft.categories = mask(page, from, to);
        if (description) {
            draft.extra = std::make_shared<TVEntrySupplementalData>();
            draft.extra->description = AttributedText(description->toString());
        }
        m_drafts[item.channel].push_back(std::move(draft));
        return true;
    }

    /// What stands behind the marker: up to the next tag, or, for an attribute, up to its closing quote.
    static std::optional<QStringView> field(const PageScanner& page, QStringView marker, qsizetype from, qsizetype to)
    {
        const auto opening = page.findPlain(marker, from, to);
        if (!opening)
            return std::nullopt;
        const QStringView last = marker.last(1);
        const auto closing = page.findPlain(last == u">" ? QStringView(u"<") : last, opening->end, to);
        return closing ? std::optional(page.slice(opening->end, closing->at)) : std::nullopt;
    }

    /// All keys begin with a dash and a blank, of which there are few.
    static TVListingsCategory mask(const PageScanner& page, qsizetype from, qsizetype to)
    {
        const Genre* first = std::end(genres);
        for (auto dash = page.find(u"- ", from, to); dash; dash = page.find(u"- ", dash->end, to)) {
            // A key in its decomposed form has a mark for every letter at most.
            for (const Genre* genre = std::begin(genres); genre != first; ++genre) {
                const qsizetype end = std::min(to, dash->at + 2 * genre->key.size());
                const auto key = page.findPlain(genre->key, dash->at, end);
                if (key && key->at == dash->at) {
                    first = genre;
                    break;
                }
            }
        }
        return first == std::end(genres) ? 0 : first->mask;
    }

    const ChannelItems& m_items;
    Drafts& m_drafts;
    DateFormatter m_form{QStringLiteral("yyyy-MM-dd HH:mm:ss"), QTimeZone("Europe/Prague")};
};

} // namespace

void scanNova(const ScanInput& input, Drafts& drafts)
{
    NovaScanner scanner(input, drafts);
    for (const QString& page : input.pages)
        scanner.scan(page);
}

} // namespace vidora
