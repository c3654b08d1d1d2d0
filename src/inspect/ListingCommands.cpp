#include "core/ChannelCatalogue.h"
#include "inspect/Inspector.h"
#include "listings/ListingParser.h"
#include "listings/ListingSources.h"
#include "listings/ShowJson.h"
#include "listings/XMLTVToEntries.h"
#include "platform/AtomicFile.h"
#include "store/TVStationIcons.h"

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

namespace vidora::inspect {

namespace {

constexpr qint64 largestFile = 1024LL * 1024 * 1024;

QByteArray contentsOf(const QString& path)
{
    const auto bytes = AtomicFile::read(path, largestFile);
    if (!bytes)
        throw UnusableRequest(QStringLiteral("%1 can't be read").arg(path));
    return *bytes;
}

/// Gives the numbers of the request in turn, in place of chance.
class PickedRandom final : public Random
{
public:
    explicit PickedRandom(const QJsonArray& picks)
        : m_picks(picks)
    {
    }

    std::uint32_t uniform(std::uint32_t bound) override
    {
        if (m_picks.isEmpty())
            return m_chance.uniform(bound);
        const QJsonValue pick = m_picks.at(m_next++ % m_picks.size());
        return static_cast<std::uint32_t>(pick.toInteger()) % bound;
    }

private:
    const QJsonArray m_picks;
    qsizetype m_next = 0;
    SystemRandom m_chance;
};

/// Notes which lists would have gone to the store.
class StoredChannels final : public ListingReceiver
{
public:
    void storeList(const ObjectId& channel, std::shared_ptr<const ShowList>) override
    {
        m_channels.append(channel.hex());
    }
    void addToSaveSchedule(const ObjectId&) override {}
    void listingsStored() override {}
    const QJsonArray& channels() const { return m_channels; }

private:
    QJsonArray m_channels;
};

QJsonObject type(const Request& request, const Surroundings& surroundings)
{
    const QString sourceId = request.text("sourceId");
    return {{QStringLiteral("type"), static_cast<qint64>(listingsTypeForSourceId(sourceId, surroundings.endpoints))},
            {QStringLiteral("portNetwork"), sourceIdUsedByPortNetwork(sourceId)}};
}

QJsonObject urls(const Request& request, const Surroundings& surroundings)
{
    PickedRandom random(request.list("pick"));
    const auto found = urlsForSourceId(request.text("sourceId"), request.instant("now"),
                                       request.optionalText("language"), surroundings.endpoints, random);
    if (!found)
        return {{QStringLiteral("urls"), QJsonValue()}};
    QJsonArray texts;
    for (const URL& url : *found)
        texts.append(url.text());
    return {{QStringLiteral("urls"), texts}};
}

QJsonValue plistValue(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap: {
        QJsonObject object;
        const QVariantMap map = value.toMap();
        for (auto item = map.begin(); item != map.end(); ++item)
            object.insert(item.key(), plistValue(item.value()));
        return object;
    }
    case QMetaType::QVariantList: {
        QJsonArray array;
        for (const QVariant& item : value.toList())
            array.append(plistValue(item));
        return array;
    }
    case QMetaType::QDateTime:
        return isoText(instantFromUnixMilliseconds(value.toDateTime().toMSecsSinceEpoch()));
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray().toBase64());
    default:
        return QJsonValue::fromVariant(value);
    }
}

QJsonObject catalogue(const Request& request, const Surroundings& surroundings)
{
    const TVStationIcons icons(surroundings.iconFolder);
    const auto channels = channelsOfPropertyList(contentsOf(request.text("file")));
    QJsonArray records;
    for (const ChannelDictionary& channel :
         filteredChannels(channels, [&](const QString& name) { return icons.iconNamed(name).has_value(); }))
        records.append(plistValue(channel.keys()));
    return {{QStringLiteral("channels"), records}};
}

ChannelItem channelItem(const QJsonValue& value)
{
    if (value.isString()) { // the one-shot form HEX,SOURCEID,LANGUAGE; a source id may hold commas, a language may not
        const QString text = value.toString();
        const qsizetype first = text.indexOf(QLatin1Char(','));
        const qsizetype last = text.lastIndexOf(QLatin1Char(','));
        if (first < 0 || last == first)
            throw UnusableRequest(QStringLiteral("an item is HEX,SOURCEID,LANGUAGE"));
        return {ObjectId::initWithHex(text.left(first)), text.mid(first + 1, last - first - 1), text.mid(last + 1)};
    }
    const Request item(value.toObject());
    return {item.id("channel"), item.text("sourceId"), item.optionalText("language")};
}

Page pageOfFile(const QString& path)
{
    const Page::Container container = path.endsWith(QLatin1String(".xz"))   ? Page::Container::Xz
                                      : path.endsWith(QLatin1String(".gz")) ? Page::Container::Gzip
                                                                            : Page::Container::None;
    return Page::fromBytes(contentsOf(path), container, "UTF-8");
}

QJsonObject parse(const Request& request, const Surroundings& surroundings)
{
    ChannelItems items;
    for (const QJsonValue& item : request.list("items"))
        items.push_back(channelItem(item));
    Pages pages;
    for (const QString& path : request.texts("pages"))
        pages.push_back(pageOfFile(path));
    for (const QString& text : request.texts("pageTexts"))
        pages.push_back(Page::fromText(text));
    const auto type = static_cast<std::uint32_t>(request.wholeNumber("type"));
    const Instant now = request.instant("now");

    StoredChannels stored;
    ListingParser parser(surroundings.clock, surroundings.endpoints, stored);
    const auto result = parser.netList(items, pages, now, type);
    return {{QStringLiteral("channels"), listsToJson(result)}, {QStringLiteral("stored"), stored.channels()}};
}

QJsonObject xmltvDateCommand(const Request& request, const Surroundings&)
{
    const auto date = xmltvDate(request.text("text"));
    return {{QStringLiteral("date"), date ? QJsonValue(isoText(*date)) : QJsonValue()}};
}

} // namespace

const CommandTable& listingCommands()
{
    static const CommandTable commands{
        {QStringLiteral("type"), type},
        {QStringLiteral("urls"), urls},
        {QStringLiteral("catalogue"), catalogue},
        {QStringLiteral("parse"), parse},
        {QStringLiteral("xmltv-date"), xmltvDateCommand},
    };
    return commands;
}

} // namespace vidora::inspect
