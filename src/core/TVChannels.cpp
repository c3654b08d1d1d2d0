#include "core/TVChannels.h"

#include "platform/AtomicFile.h"
#include "platform/Log.h"

#include <QCborArray>
#include <QCborValue>

#include <algorithm>
#include <unordered_set>

namespace vidora {

namespace {

// A selection is a few hundred ids; a file beyond this size is none.
constexpr qint64 maximumFileSize = 1024 * 1024;

QByteArray archived(const ChannelIds& selection)
{
    QCborArray array;
    for (const ObjectId& id : selection)
        array.append(id.data());
    return array.toCborValue().toCbor();
}

std::optional<ChannelIds> unarchived(const QByteArray& bytes)
{
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(bytes, &error);
    if (error.error != QCborError::NoError || !value.isArray())
        return std::nullopt;
    ChannelIds selection;
    for (const QCborValue& item : value.toArray()) {
        if (!item.isByteArray())
            return std::nullopt;
        selection.push_back(ObjectId::initWithData(item.toByteArray()));
    }
    return selection;
}

} // namespace

TVChannels::TVChannels(QString documentsFolder, ChannelAging aging, const ChannelData& channelData,
                       KeyValueStore& keyValueStore)
    : m_path(documentsFolder + QLatin1String("/selectedChannels.plist"))
    , m_aging(std::move(aging))
    , m_channelData(channelData)
    , m_keyValueStore(keyValueStore)
    , m_queue(DispatchQueue::concurrent(QStringLiteral("selected")))
{
}

TVChannels::~TVChannels()
{
    waitForWrites();
}

ChannelIds TVChannels::selected()
{
    std::optional<ChannelIds> loaded;
    m_queue->sync([&] { loaded = m_selection; });
    if (loaded)
        return *loaded;

    const auto stored = readFile();
    if (!stored) {
        Log::line(QStringLiteral("TVChannels: selectedChannels returned nil"));
        return {};
    }
    Log::line(QStringLiteral("TVChannels: channelArray.count=%1").arg(stored->size()));
    m_mainBlocks.async([this, selection = *stored] {
        m_queue->barrierAsync([this, selection] {
            if (!m_selection) // a selection made meanwhile is newer than the file
                rebuild(selection);
        });
    });
    return *stored;
}

void TVChannels::setSelected(const ChannelIds& selection)
{
    Log::line(QStringLiteral("TVChannels: newSelectedCount=%1").arg(selection.size()));
    bool changed = false;
    m_queue->barrierSync([&] {
        changed = m_selection != selection;
        if (changed)
            rebuild(selection);
    });
    if (changed)
        m_queue->barrierAsync([this, selection] { write(selection); });
}

std::shared_ptr<TVChannel> TVChannels::channelWithChannelId(const ObjectId& id) const
{
    std::shared_ptr<TVChannel> channel;
    m_queue->sync([&] {
        const auto found = m_channels.find(id);
        if (found != m_channels.end())
            channel = found->second;
    });
    return channel;
}

void TVChannels::waitForWrites() const
{
    m_queue->barrierSync([] {});
}

std::optional<ChannelIds> TVChannels::readFile() const
{
    const auto bytes = AtomicFile::read(m_path, maximumFileSize);
    return bytes ? unarchived(*bytes) : std::nullopt;
}

void TVChannels::write(const ChannelIds& selection) const
{
    // What the file does not hold must not reach the other devices either.
    if (AtomicFile::write(m_path, archived(selection), AtomicFile::Access::OwnerOnly).failed()) {
        Log::line(QStringLiteral("TVChannels: the selection could not be written"));
        return;
    }
    QCborArray ids;
    for (const ObjectId& id : selection)
        ids.append(id.data());
    m_keyValueStore.setObject(ids, keyInStore);
}

void TVChannels::rebuild(ChannelIds selection)
{
    const std::unordered_set<ObjectId> wanted(selection.begin(), selection.end());
    std::erase_if(m_channels, [&](const auto& item) { return !wanted.contains(item.first); });
    std::erase_if(selection, [&](const ObjectId& id) {
        if (m_channels.contains(id))
            return false;
        const auto channel = m_channelData.find(id);
        if (channel == m_channelData.end())
            return true;
        if (auto object = make(id, channel->second))
            m_channels.emplace(id, std::move(object));
        return false;
    });
    m_selection = std::move(selection);
}

std::shared_ptr<TVChannel> TVChannels::make(const ObjectId& id, const ChannelDictionary& channel) const
{
    const auto title = channel.title();
    const auto language = channel.language();
    const auto icon = channel.icon();
    if (!title || !language || !icon)
        return nullptr;
    Log::line(QStringLiteral("channelID=%1 put").arg(id.hex()));
    return std::make_shared<TVChannel>(m_aging, id, *title, *language, *icon, channel.stream().has_value());
}

} // namespace vidora
