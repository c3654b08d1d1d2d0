#include "core/ChannelCatalogue.h"

#include "core/PropertyList.h"
#include "core/SupportedChannelTypes.h"
#include "platform/AtomicFile.h"
#include "platform/Log.h"

#include <QCborMap>
#include <QCborValue>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <unordered_set>

namespace vidora {

namespace {

constexpr QLatin1String channelsKey("Channels"), sourceKey("Source"), pathKey("Path");
constexpr qint64 maximumFileSize = 16 * 1024 * 1024;

struct Icon
{
    QString region;
    QString name;
};

std::optional<Icon> splitIcon(const ChannelDictionary& channel)
{
    const QString icon = channel.icon().value_or(QString());
    const qsizetype slash = icon.indexOf(QLatin1Char('/'));
    if (slash < 0 || slash == icon.size() - 1)
        return std::nullopt;
    return Icon{icon.left(slash), icon.mid(slash + 1)};
}

bool isSupported(const std::optional<QString>& language, const QString& region)
{
    const auto& pairs = SupportedChannelTypes::sharedInstance().pairs();
    return language && std::any_of(pairs.begin(), pairs.end(), [&](const SupportedChannelTypesPair& pair) {
               return pair.region == region && pair.language == *language;
           });
}

int rank(const ChannelDictionary& channel, bool regionIsHome)
{
    const bool languageIsHome = channel.language() == SupportedChannelTypes::sharedInstance().home().language;
    return (languageIsHome ? 1 : 0) + (regionIsHome ? 1 : 0);
}

ObjectId idOf(const ChannelDictionary& channel)
{
    return ObjectId::initWithHex(channel.location().value_or(QString()));
}

class ChannelFilter
{
public:
    explicit ChannelFilter(const IconTest& hasIcon)
        : m_hasIcon(hasIcon)
    {
    }

    void offer(const ChannelDictionary& channel)
    {
        const auto icon = splitIcon(channel);
        if (!channel.location() || !icon || !m_hasIcon(icon->name))
            return;
        if (!isSupported(channel.language(), icon->region) || channel.title().value_or(QString()).isEmpty())
            return;
        const ObjectId id = idOf(channel);
        if (m_ids.insert(id).second)
            m_kept.push_back(channel);
        else
            replace(id, channel, rank(channel, icon->region == home().region));
    }

    std::vector<ChannelDictionary> take() { return std::move(m_kept); }

private:
    static const SupportedChannelTypesPair& home() { return SupportedChannelTypes::sharedInstance().home(); }

    void replace(const ObjectId& id, const ChannelDictionary& channel, int newRank)
    {
        if (newRank == 0)
            return;
        const auto old = std::find_if(m_kept.begin(), m_kept.end(), [&](const auto& kept) { return idOf(kept) == id; });
        const QString oldIcon = old->icon().value_or(QString());
        if (rank(*old, oldIcon.startsWith(home().region)) >= newRank)
            return;
        m_kept.erase(old);
        m_kept.push_back(channel);
    }

    const IconTest& m_hasIcon;
    std::vector<ChannelDictionary> m_kept;
    std::unordered_set<ObjectId> m_ids;
};

std::vector<ChannelDictionary> channelsOfList(const QVariant& list)
{
    std::vector<ChannelDictionary> channels;
    for (const QVariant& channel : list.toList()) {
        if (channel.typeId() == QMetaType::QVariantMap)
            channels.emplace_back(channel.toMap());
    }
    return channels;
}

bool cacheIsYoungest(const CatalogueFiles& files)
{
    const QFileInfo cache(files.filteredCache);
    if (!cache.exists())
        return false;
    const auto isYounger = [&](const QString& path) {
        const QFileInfo other(path);
        return !other.exists() || cache.lastModified() > other.lastModified();
    };
    return isYounger(files.catalogue) && isYounger(files.iconFolder);
}

/// What a cache was made of. Dates alone don't tell: a guide that is removed leaves the built-in catalogue, and a file
/// from a backup is older than what it replaces.
QCborMap sourceOf(const CatalogueFiles& files, const QByteArray& catalogue)
{
    const auto date = [](const QString& path) { return QFileInfo(path).lastModified().toMSecsSinceEpoch(); };
    return {{pathKey, files.catalogue},
            {QLatin1String("Size"), catalogue.size()},
            {QLatin1String("Date"), date(files.catalogue)},
            {QLatin1String("Digest"), QCryptographicHash::hash(catalogue, QCryptographicHash::Sha256)},
            {QLatin1String("Icons"), files.iconFolder},
            {QLatin1String("IconsDate"), date(files.iconFolder)}};
}

/// Empty for a cache that can't be read.
QCborMap readCache(const QString& path)
{
    QCborParserError error;
    const QCborValue archive =
        QCborValue::fromCbor(AtomicFile::read(path, maximumFileSize).value_or(QByteArray()), &error);
    return error.error == QCborError::NoError ? archive.toMap() : QCborMap();
}

void writeCache(const QString& path, const QCborMap& source, const std::vector<ChannelDictionary>& channels)
{
    QVariantList list;
    for (const ChannelDictionary& channel : channels)
        list.append(channel.keys());
    QCborMap archive;
    archive.insert(sourceKey, source);
    archive.insert(channelsKey, QCborValue::fromVariant(list));
    if (AtomicFile::write(path, archive.toCborValue().toCbor(), AtomicFile::Access::Everyone).failed())
        Log::line(QStringLiteral("catalogue: the filtered channels could not be kept"));
}

std::vector<ChannelDictionary> servedChannels(const CatalogueFiles& files, const IconTest& hasIcon)
{
    const QCborMap cache = readCache(files.filteredCache);
    const QCborMap cachedSource = cache.value(sourceKey).toMap();
    const auto cached = [&] { return channelsOfList(cache.value(channelsKey).toVariant()); };
    const auto bytes = AtomicFile::read(files.catalogue, maximumFileSize);
    if (!bytes) {
        Log::line(QStringLiteral("catalogue: %1 can't be read").arg(files.catalogue));
        return cachedSource.value(pathKey) == files.catalogue ? cached() : std::vector<ChannelDictionary>();
    }
    const QCborMap source = sourceOf(files, *bytes);
    if (cacheIsYoungest(files) && cachedSource == source)
        return cached();
    auto channels = filteredChannels(channelsOfPropertyList(*bytes), hasIcon);
    if (!files.readOnly)
        writeCache(files.filteredCache, source, channels);
    return channels;
}

} // namespace

std::optional<QString> ChannelDictionary::text(QLatin1String key) const
{
    const QVariant value = m_keys.value(key);
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

std::optional<QString> ChannelDictionary::iconFileName() const
{
    const auto icon = splitIcon(*this);
    return icon ? std::optional(icon->name) : std::nullopt;
}

std::vector<QString> ChannelDictionary::sources() const
{
    std::vector<QString> result;
    for (int number = 1; number <= 7; ++number) {
        const QByteArray key = "Location" + QByteArray::number(number);
        const auto source = text(QLatin1String(key));
        if (!source)
            break;
        result.push_back(*source);
    }
    return result;
}

std::vector<ChannelDictionary> filteredChannels(const std::vector<ChannelDictionary>& channels, const IconTest& hasIcon)
{
    ChannelFilter filter(hasIcon);
    for (const ChannelDictionary& channel : channels)
        filter.offer(channel);
    return filter.take();
}

std::vector<ChannelDictionary> channelsOfPropertyList(const QByteArray& bytes)
{
    const auto root = readPropertyList(bytes);
    if (!root)
        return {};
    return channelsOfList(root->toMap().value(channelsKey));
}

ChannelData loadChannelData(const CatalogueFiles& files, const IconTest& hasIcon)
{
    const std::vector<ChannelDictionary> channels = servedChannels(files, hasIcon);
    ChannelData data;
    data.reserve(channels.size());
    for (const ChannelDictionary& channel : channels)
        data.insert_or_assign(idOf(channel), channel);
    return data;
}

} // namespace vidora
