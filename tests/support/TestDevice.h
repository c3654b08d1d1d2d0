#pragma once

#include "core/PropertyList.h"
#include "core/VidoraAppDelegate.h"
#include "support/Seams.h"

#include <QTemporaryDir>

namespace vidora::test {

/// Runs an update pass to its end. The channels for which nothing came.
inline std::vector<ObjectId> runPass(VidoraAppDelegate& delegate)
{
    struct End final : UpdateObserver
    {
        void passStarted(std::size_t) override {}
        void fetching(const std::vector<ObjectId>&) override {}
        void delivered(const std::unordered_map<ObjectId, ShowList>&) override {}
        void passEnded(std::size_t, const std::vector<ObjectId>& missing) override { failed = missing; }
        std::optional<std::vector<ObjectId>> failed;
    } end;
    delegate.setUpdateObserver(&end);
    delegate.checkAndUpdateAllChannels();
    DispatchQueue::runMain([&] { return end.failed.has_value(); });
    delegate.setUpdateObserver(nullptr);
    return *end.failed;
}

/// What the store has of a channel, without what is over.
inline SharedShowList listOf(VidoraAppDelegate& delegate, const ObjectId& channel)
{
    SharedShowList result;
    delegate.listings().cachedListForChannel(channel, QualityOfService::Default,
                                             [&](SharedShowList list) { result = std::move(list); });
    DispatchQueue::runMain([&] { return result != nullptr; });
    return result;
}

/// Runs what is on the main queue by now.
inline void settle()
{
    bool settled = false;
    DispatchQueue::main().async([&] { settled = true; });
    DispatchQueue::runMain([&] { return settled; });
}

struct TestChannel
{
    QString id;
    QString title;
    QStringList sources;
    QString stream = {};
};

/// A device in a folder of its own, with a scripted network and a clock that stands still. May be started again and
/// again on the same folder.
class TestDevice
{
public:
    explicit TestDevice(const QString& now = QStringLiteral("2026-11-22T12:00:00Z"))
        : clock(*instantFromIsoText(now))
        , folders(StandardFolders::under(m_folder.path()))
    {
        folders.make();
        write(QStringLiteral("/icon.svg"), "<svg/>");
        endpoints = Endpoints::fromJson(R"({"r": {"bases": ["http://a.example", "http://b.example"]},
            "n": {"host": "n.example"}, "s": {"host": "s.example"}, "tvpc": {"address": "http://tvpc.example/guide.xml"},
            "port": {"host": "port.example"}, "weekly": {"host": "weekly.example", "word": "word"},
            "cz.nova": {"host": "nova.example"}, "dolce-sport": {"host": "dolce.example"}})",
                                        {});
    }

    void setCatalogue(const std::vector<TestChannel>& channels)
    {
        QVariantList records;
        for (const TestChannel& channel : channels) {
            QVariantMap record{{QStringLiteral("Location"), channel.id},
                               {QStringLiteral("Title"), channel.title},
                               {QStringLiteral("Icon"), QStringLiteral("Serbian/icon.svg")},
                               {QStringLiteral("Language"), QStringLiteral("sr")}};
            for (qsizetype i = 0; i < channel.sources.size(); ++i)
                record.insert(QStringLiteral("Location%1").arg(i + 1), channel.sources[i]);
            if (!channel.stream.isEmpty())
                record.insert(QStringLiteral("Stream"), channel.stream);
            records.append(record);
        }
        QFile::remove(folders.caches + QStringLiteral("/5b65e9d23afbe36684bdfe2c.plist"));
        write(QStringLiteral("/Data.plist"), writePropertyList(QVariantMap{{QStringLiteral("Channels"), records}}));
    }

    /// Launches, and runs the blocks that the launch queued.
    VidoraAppDelegate& launch()
    {
        delegate.reset();
        delegate = std::make_unique<VidoraAppDelegate>(Environment{
            folders, m_folder.filePath(QStringLiteral("Data.plist")), m_folder.path(), endpoints,
            QStringLiteral("vidora"), clock, random, sleeper, network ? *network : session, false, false, eventStore});
        delegate->applicationDidFinishLaunching();
        settle();
        return *delegate;
    }

    void select(const std::vector<TestChannel>& channels)
    {
        ChannelIds ids;
        for (const TestChannel& channel : channels)
            ids.push_back(ObjectId::initWithHex(channel.id));
        delegate->channels().setSelected(ids);
    }

    /// Runs a pass to its end.
    void update() { failed = runPass(*delegate); }

    /// Commits everything and ends, as at the end of a process.
    void quit()
    {
        delegate->applicationDidEnterBackground();
        delegate->applicationWillTerminate();
        delegate.reset();
    }

    QStringList titles(const TestChannel& channel)
    {
        const SharedShowList list = listOf(*delegate, ObjectId::initWithHex(channel.id));
        QStringList titles;
        for (const Show& show : *list)
            titles << show->entry->title().value_or(QString());
        return titles;
    }

    void write(const QString& path, const QByteArray& bytes) const
    {
        QFile file(m_folder.path() + path);
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }

private:
    QTemporaryDir m_folder;

public:
    FixedClock clock;
    ScriptedRandom random;
    ScriptedSleeper sleeper{[this](Milliseconds pause) { clock.advance(pause); }};
    ScriptedSession session;
    StandardFolders folders;
    Endpoints endpoints;
    EventStore* eventStore = nullptr; ///< outlives the device
    URLSession* network = nullptr;    ///< in place of the scripted one; outlives the device
    std::unique_ptr<VidoraAppDelegate> delegate;
    std::vector<ObjectId> failed;
};

} // namespace vidora::test
