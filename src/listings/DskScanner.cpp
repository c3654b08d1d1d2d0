#include "content/TVListingsCategory.h"
#include "listings/DateFormatter.h"
#include "listings/PageScanner.h"
#include "listings/Scanner.h"

namespace vidora {

namespace {

/// Reads the pages of DSK: fifteen tabs, one a day, each with a stretch for every channel.
class DskScanner
{
public:
    DskScanner(const ScanInput& input, QStringView text, Drafts& drafts)
        : m_page(text)
        , m_input(input)
        , m_drafts(drafts)
    {
    }

    void scan()
    {
        constexpr int tabs = 15;
        for (int tab = 0; tab < tabs; ++tab) {
            try {
                scanTab(tab);
            } catch (const std::exception&) {
                // A broken tab costs what it had left, and the next one is read.
            }
        }
    }

private:
    void scanTab(int tab)
    {
        const auto marker =
            m_page.find(QString(QLatin1String("id=\"tabs-") + QString::number(tab) + QLatin1Char('"')), 0);
        if (!marker)
            return;
        const Instant day = m_input.now + tab * dayStep;
        for (const ChannelItem& item : m_input.items)
            scanChannel(item, day, marker->end);
    }

    void scanChannel(const ChannelItem& item, Instant day, qsizetype from)
    {
        const QStringView code = PageScanner(item.sourceId).slice(4, item.sourceId.size());
        const auto logo = m_page.find(QString(QLatin1String("alt=\"") + code + QLatin1Char('"')), from);
        if (!logo)
            return;
        const auto end = m_page.find(u"http", logo->end);
        if (!end)
            return;
        DraftList shows = readStretch(item, day, logo->end, end->at);
        // The channel's list is that of the last tab which has one.
        if (!shows.empty())
            m_drafts[item.channel] = std::move(shows);
    }

    DraftList readStretch(const ChannelItem& item, Instant day, qsizetype from, qsizetype to)
    {
        DraftList shows;
        while (from < to) {
            const auto opening = m_page.find(u"<span><strong>", from, to);
            if (!opening)
                break;
            const QStringView time = m_page.units(opening->end, 5);
            const auto title = m_page.cut(u"<strong>", u"<", opening->end, to);
            if (!title)
                break;
            const auto description = m_page.cut(u"<br />", u"<", title->close.at, to);
            if (!description)
                break;

            ShowDraft draft;
            TVEntry& entry = *draft.entry;
            entry.setDateTime(date(day, time));
            entry.setIdentificator(title->text.toString());
            entry.setInstantDescription1(description->text.toString());
            entry.setChannel(item.channel);
            entry.setSourceId(item.sourceId);
            draft.categories = categoryMaskForEntry(entry);
            shows.push_back(std::move(draft));
            from = description->close.at;
        }
        return shows;
    }

    /// The day and its offset from the tab, the time from the show; the day ends at three in the morning.
    std::optional<Instant> date(Instant day, QStringView time) const
    {
        constexpr int timeAt = 9, firstHour = 3;
        const bool nextDay = leadingNumber(time.first(2)) < firstHour;
        QString text = m_form.text(nextDay ? day + dayStep : day);
        text.replace(timeAt, time.size(), time.data(), time.size());
        return m_form.date(text);
    }

    PageScanner m_page;
    const ScanInput& m_input;
    Drafts& m_drafts;
    DateFormatter m_form{QStringLiteral("yyyyMMdd'T'HH:mmZZZZZ"), QTimeZone("Europe/Bratislava")};
};

} // namespace

void scanDsk(const ScanInput& input, Drafts& drafts)
{
    const QString text = input.pages.join(QString());
    DskScanner(input, text, drafts).scan();
}

} // namespace vidora
