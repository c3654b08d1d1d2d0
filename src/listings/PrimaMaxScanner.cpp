#include "content/ListingText.h"
#include "content/TVListingsCategory.h"
#include "listings/PageScanner.h"
#include "listings/RollingDay.h"
#include "listings/Scanner.h"
#include "platform/Log.h"

#include <algorithm>
#include <vector>

namespace vidora {

namespace {

constexpr QStringView tabMarker = u"class=\"tab tab-active\"";
constexpr QStringView rowMarker = u"<div class=\"row\">";
constexpr QStringView timeMarker = u"<time>";
constexpr QStringView titleOpening = u"<h3 class=\"broadcast-title broadcast-title-xs\">";
constexpr QStringView titleClosing = u"</h3>";
constexpr QStringView descriptionOpening = u"<p class=\"m-top broadcast-description\">";
constexpr QStringView imageOpening = u"<img src=\"";

/// Title without the anchor around it and without the number of the part in brackets, which goes into the details.
void readTitle(QStringView text, TVEntry& entry)
{
    const qsizetype tagEnd = text.lastIndexOf(QLatin1Char('>'));
    if (tagEnd >= 0 && tagEnd + 1 < text.size())
        text = text.mid(tagEnd + 1);
    auto title = trimmedListingText(text);
    if (!title)
        return;
    const qsizetype bracket = title->lastIndexOf(QLatin1String(" ("));
    if (bracket >= 0 && title->indexOf(QLatin1Char(')')) == title->size() - 1) {
        const qsizetype part = bracket + 2;
        entry.setInstantDetails1(QString(QLatin1String("ep. ") + title->mid(part, title->size() - 1 - part)));
        title->truncate(bracket);
    }
    entry.setIdentificator(*title);
}

struct Credit
{
    enum class Kind
    {
        Genre,
        Cast,
        Director,
        Dropped
    };
    Kind kind;
    QStringView key;
    qsizetype at;
};

/// The key words that introduce credits, in the order in which they stand.
std::vector<Credit> creditsIn(const QString& text)
{
    std::vector<Credit> credits = {
        {Credit::Kind::Genre, u".. ", -1},
        {Credit::Kind::Dropped, u"… ", -1},
        {Credit::Kind::Cast, u" Dále Hrají ", -1},
        {Credit::Kind::Director, u" Režie ", -1},
    };
    for (Credit& credit : credits) {
        credit.at = text.indexOf(credit.key, 0, Qt::CaseInsensitive);
        if (credit.at < 0 && credit.kind == Credit::Kind::Cast) {
            credit = {Credit::Kind::Dropped, u" Hrají ", -1};
            credit.at = text.indexOf(credit.key, 0, Qt::CaseInsensitive);
        }
    }
    std::erase_if(credits, [](const Credit& credit) { return credit.at < 0; });
    std::stable_sort(credits.begin(), credits.end(), [](const Credit& a, const Credit& b) { return a.at < b.at; });
    return credits;
}

void keepCredit(const Credit& credit, const QString& text, TVEntry& entry, TVEntrySupplementalData& extra)
{
    switch (credit.kind) {
    case Credit::Kind::Genre: {
        const auto& details = entry.instantDetails();
        const bool hasDetails = details && !details->isEmpty();
        entry.setInstantDetails1(hasDetails ? QString(*details + QLatin1String(", ") + text) : text);
        break;
    }
    case Credit::Kind::Cast:
        extra.roles = AttributedText(text);
        break;
    case Credit::Kind::Director:
        extra.directedBy = text;
        break;
    case Credit::Kind::Dropped:
        break;
    }
}

/// Takes the credits out of a description; what stands in front of them is the synopsis.
void readDescription(const QString& text, TVEntry& entry, TVEntrySupplementalData& extra)
{
    const std::vector<Credit> credits = creditsIn(text);
    for (std::size_t i = 0; i < credits.size(); ++i) {
        const qsizetype start = credits[i].at + credits[i].key.size();
        const qsizetype end = i + 1 < credits.size() ? credits[i + 1].at : text.size();
        // Two keys may share the blank between them.
        if (start < end)
            keepCredit(credits[i], text.mid(start, end - start), entry, extra);
    }
    QString synopsis = credits.empty() ? text : text.left(credits.front().at);
    if (!synopsis.isEmpty() && !synopsis.endsWith(QLatin1Char('.')))
        synopsis += QLatin1Char('.');
    extra.description = AttributedText(synopsis);
}

/// Reads the pages of Prima Max: a section for each day, whose shows stand in one row.
class PrimaMaxScanner
{
public:
    PrimaMaxScanner(const ScanInput& input, QStringView text, Drafts& drafts)
        : m_page(text)
        , m_now(input.now)
        , m_item(input.items.at(0))
        , m_drafts(drafts)
    {
    }

    void scan()
    {
        constexpr int days = 14;
        for (int day = 0; day < days; ++day) {
            if (!scanSection(m_now + day * dayStep))
                return;
        }
    }

private:
    bool scanSection(Instant day)
    {
        const auto tab = m_page.find(tabMarker, m_position);
        if (!tab) {
            Log::line(QLatin1String("dayKey ") + tabMarker + QLatin1String(" not found"));
            return false;
        }
        const auto row = m_page.find(rowMarker, tab->end);
        if (!row) {
            Log::line(QStringLiteral("class item not found"));
            return false;
        }
        const auto next = m_page.find(tabMarker, row->end);
        m_position = next ? next->at : m_page.size();
        readRows(day, row->end, m_position);
        return true;
    }

    void readRows(Instant day, qsizetype start, qsizetype end)
    {
        RollingDay rollingDay(day, m_dayForm);
        RememberedFind rows(m_page, rowMarker, end);
        RememberedCut titles(m_page, titleOpening, titleClosing, end);
        RememberedCut descriptions(m_page, descriptionOpening, u"<", end);
        RememberedCut images(m_page, imageOpening, u"\"", end);
        while (start < end) {
            const auto row = rows.find(start);
            const qsizetype rowEnd = row ? row->end : end;
            const auto time = m_page.find(timeMarker, start, rowEnd);
            if (!time)
                break;
            const auto following = m_page.find(timeMarker, time->end, rowEnd);
            const auto date = showDate(rollingDay, m_page.units(time->end, 5));
            const auto title = titles.find(start, rowEnd);
            const auto description = title ? descriptions.find(start, rowEnd) : std::nullopt;
            if (description)
                readShow(date, *title, *description, images.find(start, rowEnd));
            start = following ? following->at : end;
        }
    }

    std::optional<Instant> showDate(RollingDay& day, QStringView time) const
    {
        return m_timeForm.date(QString(day.textForTime(time) + QLatin1Char('T') + time));
    }

    void readShow(std::optional<Instant> date, QStringView title, QStringView description,
                  std::optional<QStringView> image)
    {
        ShowDraft draft;
        TVEntry& entry = *draft.entry;
        entry.setDateTime(date);
        readTitle(title, entry);
        draft.extra = std::make_shared<TVEntrySupplementalData>();
        if (const auto text = trimmedListingText(description))
            readDescription(*text, entry, *draft.extra);
        if (!entry.identificator() || entry.identificator()->isEmpty())
            return;
        entry.setChannel(m_item.channel);
        entry.setSourceId(m_item.sourceId);
        draft.categories = categoryMaskForEntry(entry);
        if (const auto picture = URL::fromText(image.value_or(QStringView())))
            draft.pictures = Pictures{*picture};
        m_drafts[m_item.channel].push_back(std::move(draft));
    }

    PageScanner m_page;
    Instant m_now;
    const ChannelItem& m_item;
    Drafts& m_drafts;
    DateFormatter m_dayForm{QStringLiteral("yyyy-MM-dd"), QTimeZone("Europe/Prague")};
    DateFormatter m_timeForm{QStringLiteral("yyyy-MM-dd'T'HH:mm"), QTimeZone("Europe/Prague")};
    qsizetype m_position = 0;
};

} // namespace

void scanPrimaMax(const ScanInput& input, Drafts& drafts)
{
    const QString text = input.pages.join(QString());
    PrimaMaxScanner(input, text, drafts).scan();
}

} // namespace vidora
