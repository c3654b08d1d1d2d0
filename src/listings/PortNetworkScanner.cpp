#include "content/TVListingsCategory.h"
#include "listings/DateFormatter.h"
#include "listings/PageScanner.h"
#include "listings/Scanner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <string_view>

namespace vidora {

namespace {

std::optional<QString> text(const QJsonObject& show, const char* key)
{
    const QJsonValue value = show.value(QLatin1String(key));
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

/// What the channel writes where it has no title, and the one form in which it is kept.
struct Gap
{
    const char16_t* title;
    bool renamed;
};
constexpr Gap gaps[] = {
    {u"No information", false},   {u"Nincs információ", true}, {u"Není informace", true},
    {u"Nie je informácia", true}, {u"Nema sadržaja", false},   {u"Nema podataka", false},
};

const Gap* gapFor(QStringView title)
{
    const auto gap =
        std::find_if(std::begin(gaps), std::end(gaps), [title](const Gap& known) { return title == known.title; });
    return gap == std::end(gaps) ? nullptr : gap;
}

/// Channels whose short descriptions say nothing about the show.
bool keepsShortDescription(QStringView source)
{
    constexpr std::array<std::int64_t, 8> silent = {10058, 10109, 10132, 10192, 10193, 10194, 10306, 10316};
    return std::find(silent.begin(), silent.end(), leadingNumber(source)) == silent.end();
}

QString stringOf(std::string_view token)
{
    const QByteArray list = '[' + QByteArray(token.data(), static_cast<qsizetype>(token.size())) + ']';
    return QJsonDocument::fromJson(list).array().first().toString();
}

/// The keys of the top dictionary as they stand: the library's reader sorts them. Nothing for what that reader takes
/// although it is no JSON (RFC 8259): control characters and unknown escapes in strings, numbers with nothing in front
/// of the point or behind it.
std::optional<QStringList> topKeys(std::string_view json)
{
    const auto isDigit = [json](std::size_t at) { return at < json.size() && json[at] >= '0' && json[at] <= '9'; };
    QStringList keys;
    bool insideString = false;
    std::size_t stringAt = 0, stringEnd = 0, depth = 0;
    for (std::size_t i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (c == '"') {
            insideString = !insideString;
            (insideString ? stringAt : stringEnd) = insideString ? i : i + 1;
        } else if (insideString) {
            if (static_cast<unsigned char>(c) < 0x20)
                return std::nullopt;
            if (c == '\\' &&
                (++i == json.size() || std::string_view("\"\\/bfnrtu").find(json[i]) == std::string_view::npos))
                return std::nullopt;
        } else if (c == '.') {
            if (!isDigit(i - 1) || !isDigit(i + 1))
                return std::nullopt;
        } else if (c == '{' || c == '[') {
            ++depth;
        } else if (c == '}' || c == ']') {
            --depth;
        } else if (c == ':' && depth == 1) {
            keys.append(stringOf(json.substr(stringAt, stringEnd - stringAt)));
        }
    }
    keys.removeDuplicates();
    return keys;
}

/// The values of the top dictionary in the order of the document.
QList<QJsonObject> topValues(const QString& page)
{
    QByteArray json = page.toUtf8();
    // The library drops a U+FEFF at the front of a string, where it is a character like any other.
    json.replace("\"\xEF\xBB\xBF", "\"\\ufeff");
    const QJsonObject document = QJsonDocument::fromJson(json).object();
    const auto keys = topKeys({json.constData(), static_cast<std::size_t>(json.size())});
    QList<QJsonObject> values;
    for (const QString& key : keys.value_or(QStringList()))
        values.append(document.value(key).toObject());
    return values;
}

class Reader
{
public:
    Reader(const ChannelItem& item, const Endpoints& endpoints)
        : m_item(item)
        , m_origin(Endpoints::origin(endpoints.hosts.value(QStringLiteral("port")), QLatin1String("https")))
        , m_keepsShortDescription(keepsShortDescription(item.sourceId))
    {
    }

    void readChannel(const QJsonObject& channel)
    {
        for (const QJsonValue show : channel.value(QLatin1String("programs")).toArray())
            readShow(show.toObject());
    }

    DraftList& list() { return m_list; }

private:
    void readShow(const QJsonObject& show)
    {
        auto title = text(show, "title");
        if (!title)
            return;
        const Gap* gap = gapFor(*title);
        if (gap && m_list.empty())
            return;
        const auto start = date(show, "start_datetime");
        if (!start || (!m_list.empty() && m_list.back().entry->dateTime() == start))
            return;

        ShowDraft draft;
        TVEntry& entry = *draft.entry;
        entry.setIdentificator(gap && gap->renamed ? QStringLiteral("No information") : *title);
        entry.setDateTime(start);
        entry.setEndDateTime(date(show, "end_datetime"));
        entry.setSubtitle1(text(show, "episode_title"));
        entry.setInstantDescription1(shortDescription(show));
        entry.setUrl(filmUrl(show));
        entry.setPreviouslyShown(isRepeat(show));
        entry.setChannel(m_item.channel);
        entry.setSourceId(m_item.sourceId);
        draft.categories = categoryMaskForEntry(entry);
        m_list.push_back(std::move(draft));
    }

    std::optional<Instant> date(const QJsonObject& show, const char* key) const
    {
        const auto value = text(show, key);
        return value ? m_formatter.date(*value) : std::nullopt;
    }

    std::optional<QString> shortDescription(const QJsonObject& show) const
    {
        auto description = m_keepsShortDescription ? text(show, "short_description") : std::nullopt;
        if (description && description->size() >= 3 && description->startsWith(QLatin1Char('(')) &&
            description->endsWith(QLatin1Char(')')))
            description = description->mid(1, description->size() - 2);
        return description;
    }

    std::optional<URL> filmUrl(const QJsonObject& show) const
    {
        QString address = text(show, "film_url").value_or(QString());
        if (address.size() >= 2 && address.startsWith(QLatin1Char('/')))
            address.prepend(m_origin);
        return URL::fromText(address);
    }

    static bool isRepeat(const QJsonObject& show)
    {
        const QJsonValue value = show.value(QLatin1String("is_repeat"));
        return value.isBool() ? value.toBool() : value.isDouble() && value.toDouble() != 0;
    }

    const ChannelItem& m_item;
    QString m_origin;
    bool m_keepsShortDescription;
    DateFormatter m_formatter{QStringLiteral("yyyy-MM-dd'T'HH:mm:ssZZZZZ"), QTimeZone::utc()};
    DraftList m_list;
};

} // namespace

void scanPortNetwork(const ScanInput& input, Drafts& drafts)
{
    if (input.pages.isEmpty())
        throw RangeException("no page");
    const ChannelItem& item = input.items.at(0);
    Reader reader(item, input.endpoints);
    for (const QJsonObject& value : topValues(input.pages.first()))
        reader.readChannel(value.value(QLatin1String("channels")).toArray().first().toObject());
    if (!reader.list().empty())
        drafts[item.channel] = std::move(reader.list());
}

} // namespace vidora
