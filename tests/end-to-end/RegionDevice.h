#pragma once

#include "platform/NetworkURLSession.h"
#include "support/SampleRegion.h"
#include "support/TestDevice.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

namespace vidora::test {

/// A channel with these sources, in this language.
struct SourcedChannel
{
    QString title;
    QStringList sources;
    QString language;

    ObjectId id() const
    {
        return ObjectId::initWithData(
            QCryptographicHash::hash(title.toUtf8(), QCryptographicHash::Sha256).left(ObjectId::length));
    }
};

/// A device whose network is real HTTP, to the sample region in this process. Clock, chance and waiting are the test's.
class RegionDevice
{
public:
    /// `calendars` makes the user's calendars, on this device's clock.
    using Calendars = std::function<std::unique_ptr<EventStore>(const Clock&)>;

    explicit RegionDevice(const std::vector<SourcedChannel>& channels, const Calendars& calendars = {})
        : m_channels(channels)
        , m_endpoints(region.endpoints())
        , m_calendars(calendars ? calendars(region.clock) : nullptr)
    {
        const auto folders = StandardFolders::under(m_folder.path());
        folders.make();
        QVariantList records;
        for (const SourcedChannel& channel : channels) {
            QVariantMap record{{QStringLiteral("Location"), channel.id().hex()},
                               {QStringLiteral("Title"), channel.title},
                               {QStringLiteral("Icon"), QStringLiteral("Other/icon.svg")},
                               {QStringLiteral("Language"), channel.language}};
            for (qsizetype i = 0; i < channel.sources.size(); ++i)
                record.insert(QStringLiteral("Location%1").arg(i + 1), channel.sources[i]);
            records.append(record);
        }
        write(QStringLiteral("icon.svg"), "<svg/>");
        write(QStringLiteral("Data.plist"), writePropertyList(QVariantMap{{QStringLiteral("Channels"), records}}));
        delegate = std::make_unique<VidoraAppDelegate>(Environment{
            folders, m_folder.filePath(QStringLiteral("Data.plist")), m_folder.path(), m_endpoints,
            QStringLiteral("vidora"), region.clock, m_random, sleeper, m_network, false, false, m_calendars.get()});
        delegate->applicationDidFinishLaunching();
        settle();
        ChannelIds ids;
        for (const SourcedChannel& channel : channels)
            ids.push_back(channel.id());
        delegate->channels().setSelected(ids);
    }

    /// The titles of the channels for which nothing came.
    QStringList update(std::initializer_list<const char*> faults = {})
    {
        region::Faults read;
        for (const char* fault : faults)
            read.push_back(region::Fault::fromText(fault).value());
        region.server.setFaults(read);
        region.server.clearRequests();
        sleeper.takeSlept();
        QStringList titles;
        for (const ObjectId& id : runPass(*delegate))
            for (const SourcedChannel& channel : m_channels)
                if (channel.id() == id)
                    titles << channel.title;
        return titles;
    }

    /// Fetches all channels anew after a while, from what the provider has changed, and lets the calendar follow.
    void updateLater(std::initializer_list<const char*> changes, Milliseconds pause = Seconds(120))
    {
        region::Changes read;
        for (const char* change : changes)
            read.push_back(region::Change::fromText(change).value());
        region.server.setChanges(read);
        region.clock.advance(pause);
        delegate->applicationDidReceiveMemoryWarning(); // the answers of before are forgotten
        for (const SourcedChannel& channel : m_channels)
            delegate->channels().channelWithChannelId(channel.id())->expire();
        EXPECT_EQ(update(), QStringList());
        settleCalendar();
    }

    void settleCalendar()
    {
        bool idle = false;
        DispatchQueue::main().async([&] { delegate->alarmEngine().whenIdle([&] { idle = true; }); });
        DispatchQueue::runMain([&] { return idle; });
    }

    ShowList shows(const SourcedChannel& channel) { return *listOf(*delegate, channel.id()); }

    /// What the pass asked the region for: all addresses, or those that begin so.
    std::vector<std::string> requests(const std::string& prefix = {}) const
    {
        std::vector<std::string> found = region.server.requests();
        std::erase_if(found, [&](const std::string& request) { return request.rfind(prefix, 0) != 0; });
        return found;
    }

private:
    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }

    const std::vector<SourcedChannel> m_channels;
    QTemporaryDir m_folder;
    ScriptedRandom m_random;
    NetworkURLSession m_network;

public:
    SampleRegion region;

private:
    const Endpoints m_endpoints;
    const std::unique_ptr<EventStore> m_calendars;

public:
    ScriptedSleeper sleeper;
    std::unique_ptr<VidoraAppDelegate> delegate;
};

} // namespace vidora::test
