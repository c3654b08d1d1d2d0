#include "content/ListingText.h"
#include "content/TVListingsCategory.h"
#include "listings/DateFormatter.h"
#include "listings/PageScanner.h"
#include "listings/Scanner.h"
#include "platform/DeviceSettings.h"

#include <QDateTime>

#include <array>

namespace vidora {

namespace {

constexpr int daysOfWeek = 7;

/// From Monday 0 to Sunday 6.
int weekday(Instant instant, const QTimeZone& zone)
{
    return QDateTime::fromMSecsSinceEpoch(unixMilliseconds(instant), zone).date().dayOfWeek() - 1;
}

QString capitalised(const QString& text)
{
    const QLocale locale = DeviceSettings::locale();
    return locale.toUpper(text.left(1)) + locale.toLower(text.mid(1));
}

/// Reads the page of Dolce Sport: one section for each day of the week, behind its tab.
class DolceSportScanner
{
public:
    DolceSportScanner(const ScanInput& input, Drafts& drafts)
        : m_page(input.pages.at(0))
        , m_today(input.clock.now())
        , m_item(input.items.at(0))
        , m_drafts(drafts)
    {
    }

    void scan()
    {
        if (!findSections())
            return;
        const int first = weekday(m_today, m_zone);
        for (int day = 0; day < daysOfWeek; ++day) {
            const Section& section = m_sections[static_cast<std::size_t>((day + first) % daysOfWeek)];
            readSection(m_today + day * dayStep, section);
        }
    }

private:
    struct Section
    {
        qsizetype from, to;
    };

    bool findSections()
    {
        qsizetype position = 0;
        for (Section& section : m_sections) {
            const auto tab = m_page.cut(u"data-ls-for=\"", u"\"", position, m_page.size());
            if (!tab)
                return false;
            const auto marker = m_page.find(QString(QLatin1String("id=\"") + tab->text), 0);
            if (!marker)
                return false;
            section = {marker->end, m_page.size()};
            if (&section != m_sections.data())
                (&section)[-1].to = marker->at;
            position = tab->close.end;
        }
        return true;
    }

    void readSection(Instant day, const Section& section)
    {
        // Tabs whose order differs from that of their sections leave nothing in between.
        for (qsizetype position = section.from; position < section.to;) {
            const auto item = m_page.cut(u"<li class=\"list-group-item\">", u"</li", position, section.to);
            if (!item)
                return;
            readItem(day, item->text);
            position = item->close.end;
        }
    }

    void readItem(Instant day, QStringView text)
    {
        const PageScanner item(text);
        const auto timeCut = item.cut(u" class=\"time\">", u"<", 0, item.size());
        const auto time = timeCut ? trimmedListingText(timeCut->text) : std::nullopt;
        const auto date = time ? showDate(day, *time) : std::nullopt;
        const auto nameCut = item.cut(u" class=\"name\">", u"<", 0, item.size());
        if (!date || !nameCut)
            return;

        const QString name = trimmedListingText(nameCut->text).value_or(QString());
        ShowDraft draft;
        draft.categories = name == QLatin1String("TELESHOPPING") ? 0 : category::sports;
        if (!name.isEmpty())
            draft.entry->setIdentificator(capitalised(name));
        draft.entry->setDateTime(date);
        draft.entry->setChannel(m_item.channel);
        m_drafts[m_item.channel].push_back(std::move(draft));
    }

    /// The provider's day begins at eight in the morning.
    std::optional<Instant> showDate(Instant day, const QString& time) const
    {
        const bool nextDay = time < QLatin1String("0800");
        return m_timeForm.date(QString(m_dayForm.text(nextDay ? day + dayStep : day) + time));
    }

    const QTimeZone m_zone{"Europe/Bucharest"};
    PageScanner m_page;
    Instant m_today;
    const ChannelItem& m_item;
    Drafts& m_drafts;
    DateFormatter m_dayForm{QStringLiteral("yyyyMMdd"), m_zone};
    DateFormatter m_timeForm{QStringLiteral("yyyyMMddHH:mm"), m_zone};
    std::array<Section, daysOfWeek> m_sections{};
};

} // namespace

void scanDolceSport(const ScanInput& input, Drafts& drafts)
{
    if (input.pages.isEmpty())
        throw RangeException("no page");
    DolceSportScanner(input, drafts).scan();
}

} // namespace vidora
