#include "content/TVListingsCategory.h"
#include "listings/CinestarFields.h"
#include "listings/DateFormatter.h"
#include "listings/PageScanner.h"
#include "listings/Scanner.h"
#include "platform/DeviceSettings.h"

#include <algorithm>

namespace vidora {

namespace {

constexpr int pageCount = 7;
constexpr QStringView channelMarker = u"kanal-C";
constexpr QStringView genreMarker = u"zanr";

TVListingsCategory maskOfGenre(std::int64_t code)
{
    using namespace category;
    switch (code) {
    case 28:
        return movies | adventure;
    case 30:
        return movies | comedies;
    case 31:
        return movies | crime;
    case 32:
        return documentaries;
    case 33:
        return movies | dramas;
    case 34:
        return movies | horrors;
    case 36:
        return movies | scienceFiction;
    case 37:
        return movies | thrillers;
    case 38:
        return movies | westerns;
    case 41:
        return sports;
    default:
        return 0;
    }
}

/// The links of one channel on one page. A link that leads nowhere is looked at once.
class Links
{
public:
    Links(const PageScanner& page, const QString& schedulePage, qsizetype end)
        : m_page(page)
        , m_schedulePage(schedulePage)
        , m_end(end)
        , m_openings(page, u"href=\"", end)
    {
    }

    /// `from` never decreases.
    const std::optional<CinestarField<URL>>& find(qsizetype from)
    {
        const auto opening = m_openings.find(from);
        const qsizetype at = opening ? opening->at : m_end;
        if (at != m_at) {
            m_at = at;
            m_link = urlFromCinestarListings(m_page, at, m_end - at, m_schedulePage);
        }
        return m_link;
    }

private:
    const PageScanner& m_page;
    const QString& m_schedulePage;
    qsizetype m_end, m_at = -1;
    RememberedFind m_openings;
    std::optional<CinestarField<URL>> m_link;
};

struct Fields
{
    QString time, title;
    std::optional<URL> link;
    qsizetype end; ///< where the title ended
};

/// The day of a channel's shows on one page. It moves on at each time that is below the one just before, and stays
/// moved.
class ChannelDay
{
public:
    ChannelDay(Instant day, const WallClock& clock)
        : m_day(day)
        , m_clock(clock)
    {
    }

    Instant dateForTime(const QString& time)
    {
        if (m_lastTime && time < *m_lastTime)
            m_day += dayStep;
        m_lastTime = time;

        constexpr qsizetype hourSize = 2, minuteAt = 3;
        const PageScanner text(time);
        const std::int64_t seconds =
            number(text.slice(0, hourSize)) * 3600 + number(text.slice(minuteAt, time.size())) * 60;
        const std::int64_t utc = unixSeconds(m_day);
        const std::int64_t midnight = floorDivide(utc + m_clock.offsetAt(utc), daySeconds) * daySeconds;
        const std::int64_t local = midnight + seconds;
        return Instant(Seconds(local - m_clock.offsetAtLocal(local)));
    }

private:
    static std::int64_t number(QStringView text)
    {
        return std::clamp<std::int64_t>(leadingNumber(text), std::numeric_limits<std::int32_t>::min(),
                                        std::numeric_limits<std::int32_t>::max());
    }

    Instant m_day;
    const WallClock& m_clock;
    std::optional<QString> m_lastTime;
};

/// Reads the pages of Cinestar: seven consecutive days, the first not always today, each with a stretch for every
/// channel. The show that opens a stretch is laid out differently from the others.
class CinestarScanner
{
public:
    CinestarScanner(const ScanInput& input, Drafts& drafts)
        : m_input(input)
        , m_drafts(drafts)
    {
    }

    void scan()
    {
        if (m_input.pages.size() < pageCount)
            throw RangeException("fewer pages than days");
        const auto today = pageOfToday();
        if (!today)
            return;
        WallClock clock = clockOfPage(PageScanner(m_input.pages[0]));
        for (int number = 0; number < pageCount; ++number)
            readPage(PageScanner(m_input.pages[number]), m_input.now + (number - *today) * dayStep, clock);
    }

private:
    std::optional<int> pageOfToday() const
    {
        // The date is sought from a fixed distance behind the start of its tag.
        constexpr qsizetype distance = QStringView(u"\"date.*\">").size();
        const QString today = DateFormatter(QStringLiteral("dd.MM."), DeviceSettings::timeZone()).text(m_input.now);
        for (int number = 0; number < pageCount; ++number) {
            const PageScanner page(m_input.pages[number]);
            const auto tag = page.findExpression(u"\"date", 0, u"\">", 0, page.size());
            if (tag && page.find(today, tag->at + distance))
                return number;
        }
        return std::nullopt;
    }

    static WallClock clockOfPage(const PageScanner& page)
    {
        const auto language = page.cut(u" lang=\"", u"\"", 0, page.size());
        if (!language)
            return WallClock(DeviceSettings::timeZone());
        return WallClock(QTimeZone(language->text.startsWith(u"hr") ? "Europe/Zagreb" : "Europe/Belgrade"));
    }

    void readPage(const PageScanner& page, Instant day, const WallClock& clock)
    {
        const auto channels = page.findAll(channelMarker, 0, page.size());
        for (const ChannelItem& item : m_input.items) {
            try {
                if (!readChannel(page, channels, item, ChannelDay(day, clock)))
                    return;
            } catch (const std::exception&) {
                // A broken channel costs what it had left on this page.
            }
        }
    }

    /// False when the page does not have the channel: those behind it are not read on this page either.
    bool readChannel(const PageScanner& page, const std::vector<PageScanner::Match>& channels, const ChannelItem& item,
                     ChannelDay day)
    {
        constexpr qsizetype prefixSize = 12;
        const QString code = PageScanner(item.sourceId).slice(prefixSize, item.sourceId.size()) + QLatin1Char('\'');
        auto channel = std::find_if(channels.begin(), channels.end(), [&](const PageScanner::Match& match) {
            return page.slice(match.end, page.size()).startsWith(code);
        });
        if (channel == channels.end())
            return false;
        const qsizetype start = channel->end + code.size();
        while (channel != channels.end() && channel->at < start)
            ++channel;
        readStretch(page, item, day, start, channel == channels.end() ? page.size() : channel->at);
        return true;
    }

    void readStretch(const PageScanner& page, const ChannelItem& item, ChannelDay& day, qsizetype start, qsizetype end)
    {
        Links links(page, m_input.endpoints.cinestar.schedulePage, end);
        RememberedFind genres(page, genreMarker, end);
        bool first = true;
        while (start < end) {
            const auto genre = genres.find(start);
            const auto mask = genre ? maskOfGenre(leadingNumber(page.units(genre->end, 2))) : 0;
            const auto fields = first ? readFirst(page, links, start, end) : readNext(page, links, start, end);
            if (!fields)
                return;
            first = false;
            start = fields->end;
            append(item, *fields, day.dateForTime(fields->time), mask);
        }
    }

    static std::optional<Fields> readFirst(const PageScanner& page, Links& links, qsizetype start, qsizetype end)
    {
        const auto link = links.find(start);
        const qsizetype titleFrom = link ? link->position : start;
        const auto title = titleFromCinestarListings(page, titleFrom, end - titleFrom, u"fit-text'> ");
        if (!title)
            return std::nullopt;
        const auto time = timeFromCinestarListings(page, title->position, end - title->position);
        if (!time)
            return std::nullopt;
        return Fields{time->value, title->value, link ? std::optional(link->value) : std::nullopt, title->position};
    }

    static std::optional<Fields> readNext(const PageScanner& page, Links& links, qsizetype start, qsizetype end)
    {
        const auto time = timeFromCinestarListings(page, start, end - start);
        if (!time)
            return std::nullopt;
        const auto link = links.find(time->position);
        const qsizetype titleFrom = link ? link->position : time->position;
        const auto title = titleFromCinestarListings(page, titleFrom, end - titleFrom, u"<h4 class='title'>");
        if (!title)
            return std::nullopt;
        return Fields{time->value, title->value, link ? std::optional(link->value) : std::nullopt, title->position};
    }

    void append(const ChannelItem& item, const Fields& fields, Instant date, TVListingsCategory mask)
    {
        ShowDraft draft;
        TVEntry& entry = *draft.entry;
        entry.setUrl(fields.link);
        entry.setIdentificator(fields.title);
        entry.setDateTime(date);
        entry.setChannel(item.channel);
        entry.setSourceId(item.sourceId);
        draft.categories = mask;
        m_drafts[item.channel].push_back(std::move(draft));
    }

    const ScanInput& m_input;
    Drafts& m_drafts;
};

} // namespace

void scanCinestar(const ScanInput& input, Drafts& drafts)
{
    CinestarScanner(input, drafts).scan();
}

} // namespace vidora
