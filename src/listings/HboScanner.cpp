#include "content/TVListingsCategory.h"
#include "listings/DateFormatter.h"
#include "listings/ListingSources.h"
#include "listings/PageScanner.h"
#include "listings/Scanner.h"
#include "platform/DeviceSettings.h"

#include <algorithm>

namespace vidora {

namespace {

constexpr QStringView documentOpening = u"<html";
constexpr QStringView documentClosing = u"</html>";
constexpr QStringView channelMarker = u"<div class=\"channel\">";
constexpr QStringView logoMarker = u"logo_index_";
constexpr QStringView linkOpening = u"<a href=\"";
constexpr QStringView timeMarker = u"class=\"time\">";
constexpr QStringView titleOpening = u"class=\"title\">";

QString countryOf(const QString& sourceId)
{
    constexpr qsizetype codeAt = 5, codeSize = 2;
    return PageScanner(sourceId).units(codeAt, codeSize).toString();
}

/// Reads the pages of HBO: a document for each day, which holds a block for every channel of the country.
class HboScanner
{
public:
    HboScanner(const ScanInput& input, QStringView text, Drafts& drafts)
        : m_page(text)
        , m_input(input)
        , m_drafts(drafts)
        , m_country(countryOf(input.items.at(0).sourceId))
        , m_origin(Endpoints::origin(input.endpoints.hboHosts.value(m_country), QLatin1String("https")))
        , m_form(QStringLiteral("dd-MM-yyyy HH:mm"), timeZoneForServer(m_country).value_or(DeviceSettings::timeZone()))
    {
    }

    void scan()
    {
        constexpr int documents = 23;
        qsizetype position = 0;
        for (int document = 0; document < documents; ++document) {
            const auto opening = m_page.find(documentOpening, position);
            if (!opening)
                return;
            const auto closing = m_page.find(documentClosing, position);
            const qsizetype end = closing ? closing->at : m_page.size();
            position = closing ? closing->end : m_page.size();
            readDocument(opening->end, end, m_input.now + (document - 1) * dayStep);
        }
    }

private:
    void readDocument(qsizetype start, qsizetype end, Instant day)
    {
        const auto firstChannel = m_page.find(channelMarker, start, end);
        if (!firstChannel)
            return;
        const auto logos = m_page.findAll(logoMarker, firstChannel->end, end);
        for (const ChannelItem& item : m_input.items) {
            // The channel's logo stands in the third part of the id; an id without one ends the reading.
            const QStringList parts = item.sourceId.split(QLatin1Char('.'));
            if (parts.size() < 3)
                throw RangeException("source id without a logo");
            const QString& name = parts[2];
            const auto logo = std::find_if(logos.begin(), logos.end(), [&](const PageScanner::Match& match) {
                return m_page.slice(match.end, end).startsWith(name);
            });
            if (logo == logos.end())
                continue;
            const qsizetype block = logo->end + name.size();
            const auto next = m_page.find(channelMarker, block, end);
            readBlock(item, day, block, next ? next->at : end);
        }
    }

    void readBlock(const ChannelItem& item, Instant day, qsizetype position, qsizetype end)
    {
        while (position < end) {
            const auto link = m_page.cut(linkOpening, u"\"", position, end);
            if (!link)
                return;
            const auto time = m_page.find(timeMarker, link->open.end, end);
            if (!time)
                return;
            if (m_page.find(u"past", link->close.at, time->at)) {
                position = time->at;
                continue;
            }
            const auto timeEnd = m_page.find(u"<", time->end, end);
            if (!timeEnd)
                return;
            const auto title = m_page.cut(titleOpening, u"<", timeEnd->at, end);
            if (!title)
                return;
            append(item, showDate(day, m_page.slice(time->end, timeEnd->at)), title->text, link->text);
            position = title->open.end;
        }
    }

    /// The provider's day begins at six in the morning.
    std::optional<Instant> showDate(Instant day, QStringView time) const
    {
        constexpr qsizetype timeAt = 11, timeSize = 5;
        QString text = m_form.text(time < QStringView(u"06:00") ? day + dayStep : day);
        return m_form.date(text.replace(timeAt, timeSize, time.data(), time.size()));
    }

    void append(const ChannelItem& item, std::optional<Instant> date, QStringView title, QStringView link)
    {
        constexpr QStringView episode = u", ep.";
        ShowDraft draft;
        TVEntry& entry = *draft.entry;
        entry.setDateTime(date);
        if (const qsizetype at = title.lastIndexOf(episode); at >= 0) {
            entry.setInstantDetails1(title.mid(at + 2).toString());
            title.truncate(at);
        }
        entry.setIdentificator(title.toString());
        entry.setUrl(URL::fromText(QString(m_origin + link)));
        entry.setChannel(item.channel);
        entry.setSourceId(item.sourceId);
        draft.categories = categoryMaskForEntry(entry);
        m_drafts[item.channel].push_back(std::move(draft));
    }

    PageScanner m_page;
    const ScanInput& m_input;
    Drafts& m_drafts;
    QString m_country, m_origin;
    DateFormatter m_form;
};

} // namespace

void scanHbo(const ScanInput& input, Drafts& drafts)
{
    const QString text = input.pages.join(QString());
    HboScanner(input, text, drafts).scan();
}

} // namespace vidora
