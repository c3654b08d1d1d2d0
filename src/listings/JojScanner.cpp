#include "content/TVListingsCategory.h"
#include "listings/PageScanner.h"
#include "listings/RollingDay.h"
#include "listings/Scanner.h"

namespace vidora {

namespace {

/// Reads the pages of JOJ Cinema: seven sections, each behind the tab of its day.
class JojScanner
{
public:
    JojScanner(const ScanInput& input, QStringView text, Drafts& drafts)
        : m_page(text)
        , m_now(input.now)
        , m_item(input.items.at(0))
        , m_origin(Endpoints::origin(input.endpoints.hosts.value(QStringLiteral("joj")), QLatin1String("http")))
        , m_drafts(drafts)
    {
    }

    void scan()
    {
        constexpr int days = 7;
        for (int day = -1; day < days - 1; ++day) {
            if (!scanSection(m_now + day * dayStep))
                return;
        }
    }

private:
    bool scanSection(Instant day)
    {
        const QString tab = QLatin1String("day=") + m_dayForm.text(day) + QLatin1String("\" class=\"active\"");
        const auto active = m_page.find(tab, m_position);
        if (!active)
            return false;
        const auto first = m_page.find(u" class=\"item\"", active->end);
        if (!first)
            return false;
        const auto next = m_page.find(u" href=\"?day=", first->end);
        const qsizetype end = next ? next->at : m_page.size();
        m_position = end;

        RollingDay rollingDay(day, m_dayForm);
        for (qsizetype block = first->end; block < end;) {
            const auto time = m_page.find(u"class=\"time\">", block, end);
            if (!time)
                break;
            const auto following = m_page.find(u"class=\"time\">", time->end, end);
            const qsizetype blockEnd = following ? following->at : end;
            readShow(rollingDay, block, time->end, blockEnd);
            block = blockEnd;
        }
        return true;
    }

    void readShow(RollingDay& day, qsizetype block, qsizetype timeAt, qsizetype end)
    {
        const QStringView time = m_page.units(timeAt, 5);
        const auto date = m_timeForm.date(QString(day.textForTime(time) + QLatin1Char(' ') + time));
        const auto link = m_page.cut(u"<a href=\"", u"\" title=\"", block, end);
        if (!link)
            return;
        const auto titleEnd = m_page.find(u"\"", link->close.end, end);
        if (!titleEnd)
            return;

        ShowDraft draft;
        TVEntry& entry = *draft.entry;
        entry.setDateTime(date);
        entry.setUrl(URL::fromText(QString(m_origin + link->text)));
        entry.setIdentificator(m_page.slice(link->close.end, titleEnd->at).toString());
        entry.setChannel(m_item.channel);
        entry.setSourceId(m_item.sourceId);
        draft.categories = categoryMaskForEntry(entry);
        if (const auto image = m_page.cut(u"<img src=\"", u"\"", block, end)) {
            draft.extra = std::make_shared<TVEntrySupplementalData>();
            draft.pictures = Pictures{*URL::fromText(QString(m_origin + image->text))};
        }
        m_drafts[m_item.channel].push_back(std::move(draft));
    }

    PageScanner m_page;
    Instant m_now;
    const ChannelItem& m_item;
    QString m_origin;
    Drafts& m_drafts;
    DateFormatter m_dayForm{QStringLiteral("d-M-yyyy"), QTimeZone("Europe/Bratislava")};
    DateFormatter m_timeForm{QStringLiteral("d-M-yyyy HH:mm"), QTimeZone("Europe/Bratislava")};
    qsizetype m_position = 0;
};

} // namespace

void scanJoj(const ScanInput& input, Drafts& drafts)
{
    const QString text = input.pages.join(QString());
    JojScanner(input, text, drafts).scan();
}

} // namespace vidora
