#include "content/TVListingsCategory.h"
#include "listings/BarrandovPopUps.h"
#include "listings/DateFormatter.h"
#include "listings/PageScanner.h"
#include "listings/Scanner.h"

#include <QSet>

#include <algorithm>
#include <numeric>

namespace vidora {

namespace {

constexpr QStringView headingMarker = u"<h3 class=\"program-channel__title program-channel__title--";

/// Escapes all that may not stand in an address (RFC 2396), a percent sign and a hash included: the path is given
/// unescaped. Nothing for a text that has no UTF-8 form.
std::optional<QString> withPercentEscapes(const QString& text)
{
    if (!text.isValidUtf16())
        return std::nullopt;
    return QString::fromLatin1(text.toUtf8().toPercentEncoding(";/?:@&=+$,-_.!~*'()"));
}

/// The channel's heading; its class has a short form of the name.
QString headingFor(const QString& name)
{
    const QStringList words = name.split(QLatin1Char(' '));
    QString slug = words[name.startsWith(QLatin1String("Barrandov ")) ? 1 : 0].toLower();
    if (name == QLatin1String("Barrandov Family"))
        slug = QStringLiteral("muzika");
    return headingMarker + slug + QLatin1String("\">") + name + QLatin1String("</h3>");
}

/// What a pop-up section tells, as it stands on the page.
struct Section
{
    std::optional<QStringView> date, repeat, image, title, perex, about;

    /// Whether both were cut out of the same places.
    bool isSameAs(const Section& other) const
    {
        const auto same = [](const std::optional<QStringView>& a, const std::optional<QStringView>& b) {
            return a.has_value() == b.has_value() && (!a || (a->data() == b->data() && a->size() == b->size()));
        };
        return same(date, other.date) && same(repeat, other.repeat) && same(image, other.image) &&
               same(title, other.title) && same(perex, other.perex) && same(about, other.about);
    }
};

/// Reads sections in the order of the page. A section has no end: each of its fields is the next one on the page.
class Sections
{
public:
    explicit Sections(const PageScanner& page)
        : m_date(page, u"<li><strong>Datum vysílání:</strong> ", u"</li")
        , m_repeat(page, u"<li><strong>Repríza:</strong> ", u"</li>")
        , m_image(page, u"<img src=\"", u"\"")
        , m_title(page, u"<h2 class=\"show-detail__title\">", u"</h2>")
        , m_perex(page, u"<p class=\"show-detail__perex\">", u"</p>")
        , m_about(page, u"<p class=\"show-detail__about\">", u"</p>")
    {
    }

    Section read(qsizetype from)
    {
        return {m_date.find(from),  m_repeat.find(from), m_image.find(from),
                m_title.find(from), m_perex.find(from),  m_about.find(from)};
    }

private:
    RememberedCut m_date, m_repeat, m_image, m_title, m_perex, m_about;
};

/// Reads the pages of Barrandov: blocks of links for each channel, and behind them the sections that the links open,
/// which hold the shows.
class BarrandovScanner
{
public:
    BarrandovScanner(const ScanInput& input, QStringView text, Drafts& drafts)
        : m_page(text)
        , m_items(input.items)
        , m_drafts(drafts)
        , m_origin(Endpoints::origin(input.endpoints.hosts.value(QStringLiteral("barrandov")), QLatin1String("https")))
        , m_headings(m_page.findAll(headingMarker, 0, m_page.size()))
        , m_popUps(m_page)
    {
    }

    void scan()
    {
        for (const ChannelItem& item : m_items)
            collect(item);
        std::vector<std::optional<ShowDraft>> shows = readSections();
        std::size_t next = 0;
        for (const ChannelItem& item : m_items) {
            DraftList list;
            for (; next < shows.size() && m_wanted[next].item == &item; ++next) {
                if (shows[next])
                    list.push_back(std::move(*shows[next]));
            }
            // A channel of which nothing was found has an empty list.
            m_drafts[item.channel] = std::move(list);
        }
    }

private:
    struct Wanted
    {
        const ChannelItem* item;
        qsizetype section;
    };

    /// Collects the sections of all blocks of a channel.
    void collect(const ChannelItem& item)
    {
        constexpr qsizetype prefixSize = 10;
        const QString heading =
            headingFor(PageScanner(item.sourceId).slice(prefixSize, item.sourceId.size()).toString());
        m_popUps.restart();
        for (auto place = m_headings.begin(); place != m_headings.end();) {
            if (!m_page.slice(place->at, m_page.size()).startsWith(heading)) {
                ++place;
                continue;
            }
            const qsizetype start = place->at + heading.size();
            place = std::find_if(place, m_headings.end(),
                                 [start](const PageScanner::Match& match) { return match.at >= start; });
            // A block ends at the next heading; the last one of the pages is not read.
            if (place != m_headings.end())
                collectBlock(item, start, place->at);
        }
    }

    void collectBlock(const ChannelItem& item, qsizetype position, qsizetype end)
    {
        QSet<QStringView> known;
        std::vector<QStringView> codes;
        while (const auto code = m_page.cut(u"<a href=\"#modal", u"\"", position, end)) {
            if (!known.contains(code->text)) {
                known.insert(code->text);
                codes.push_back(code->text);
            }
            position = code->close.at;
        }
        m_popUps.pass(position);
        for (const QStringView code : codes) {
            if (const auto section = m_popUps.find(code))
                m_wanted.push_back({&item, *section});
        }
    }

    /// The show of each wanted section, in the order of `m_wanted`; nothing where a section lacks a required field.
    std::vector<std::optional<ShowDraft>> readSections() const
    {
        std::vector<std::size_t> inPage(m_wanted.size());
        std::iota(inPage.begin(), inPage.end(), std::size_t(0));
        std::stable_sort(inPage.begin(), inPage.end(),
                         [this](std::size_t a, std::size_t b) { return m_wanted[a].section < m_wanted[b].section; });
        std::vector<std::optional<ShowDraft>> shows(m_wanted.size());
        Sections sections(m_page);
        Section last;
        const std::optional<ShowDraft>* lastShow = nullptr;
        const ChannelItem* lastItem = nullptr;
        for (const std::size_t i : inPage) {
            const Section section = sections.read(m_wanted[i].section);
            if (lastItem == m_wanted[i].item && section.isSameAs(last))
                shows[i] = copyOf(*lastShow);
            else if (section.date && section.title)
                shows[i] = show(section, *m_wanted[i].item);
            last = section;
            lastShow = &shows[i];
            lastItem = m_wanted[i].item;
        }
        return shows;
    }

    /// Sections may overlap; their shows then share their texts.
    static std::optional<ShowDraft> copyOf(const std::optional<ShowDraft>& show)
    {
        std::optional<ShowDraft> copy = show;
        if (copy)
            copy->entry = std::make_shared<TVEntry>(*show->entry);
        return copy;
    }

    ShowDraft show(const Section& section, const ChannelItem& item) const
    {
        ShowDraft draft;
        TVEntry& entry = *draft.entry;
        entry.setDateTime(m_form.date(*section.date));
        entry.setPreviouslyShown(section.repeat && *section.repeat != u"NE");
        entry.setIdentificator(section.title->toString());
        entry.setChannel(item.channel);
        entry.setSourceId(item.sourceId);
        draft.categories = categoryMaskForEntry(entry);
        if (section.image)
            draft.pictures = pictures(*section.image);
        if (section.perex || section.about || draft.pictures)
            draft.extra = std::make_shared<TVEntrySupplementalData>();
        if (section.perex)
            draft.extra->details = section.perex->toString();
        if (section.about)
            draft.extra->description = AttributedText(section.about->toString());
        return draft;
    }

    std::optional<Pictures> pictures(QStringView path) const
    {
        const auto escaped = withPercentEscapes(m_origin + path);
        const auto url = escaped ? URL::fromText(*escaped) : std::nullopt;
        return url ? std::optional(Pictures{*url}) : std::nullopt;
    }

    PageScanner m_page;
    const ChannelItems& m_items;
    Drafts& m_drafts;
    QString m_origin;
    DateFormatter m_form{QStringLiteral("dd.MM.yyyy HH:mm"), QTimeZone("Europe/Prague")};
    std::vector<PageScanner::Match> m_headings;
    BarrandovPopUps m_popUps;
    std::vector<Wanted> m_wanted;
};

} // namespace

void scanBarrandov(const ScanInput& input, Drafts& drafts)
{
    const QString text = input.pages.join(QString());
    BarrandovScanner(input, text, drafts).scan();
}

} // namespace vidora
