#pragma once

#include "core/PropertyList.h"
#include "core/VidoraAppDelegate.h"

#include <QTemporaryDir>

#include <map>
#include <mutex>
#include <vector>

namespace vidora::test {

/// The network seam in tests: answers from a table, and remembers what was asked for, in order.
class ScriptedSession final : public URLSession
{
public:
    struct Answer
    {
        int status = 200;
        QByteArray body;
        QByteArray contentType = "text/xml; charset=utf-8";
        QByteArray location;
    };

    void answer(const QString& url, Answer answer)
    {
        const std::lock_guard lock(m_mutex);
        m_answers[url] = std::move(answer);
    }

    QStringList takeRequests()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_requests, {});
    }

    URLResult perform(const URLRequest& request) override
    {
        const std::lock_guard lock(m_mutex);
        m_requests << request.url.text();
        const auto found = m_answers.find(request.url.text());
        if (found == m_answers.end())
            return {std::nullopt, std::nullopt, URLError{QStringLiteral("no route"), {}, {}}};
        URLResponse response;
        response.statusCode = found->second.status;
        response.headerFields.set("Content-Type", found->second.contentType);
        if (!found->second.location.isEmpty())
            response.headerFields.set("Location", found->second.location);
        return {found->second.body, response, std::nullopt};
    }

private:
    std::mutex m_mutex;
    std::map<QString, Answer> m_answers;
    QStringList m_requests;
};

/// Draws the numbers it was given, in turn, each taken modulo the bound.
class ScriptedRandom final : public Random
{
public:
    explicit ScriptedRandom(std::vector<std::uint32_t> numbers = {0})
        : m_numbers(std::move(numbers))
    {
    }
    std::uint32_t uniform(std::uint32_t bound) override { return m_numbers[m_next++ % m_numbers.size()] % bound; }

private:
    std::vector<std::uint32_t> m_numbers;
    std::atomic<std::size_t> m_next = 0;
};

/// Sleeps by moving the clock.
class ClockSleeper final : public Sleeper
{
public:
    explicit ClockSleeper(FixedClock& clock)
        : m_clock(clock)
    {
    }
    void sleep(Milliseconds duration) override { m_clock.advance(duration); }

private:
    FixedClock& m_clock;
};

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
        , sleeper(clock)
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
    ClockSleeper sleeper;
    ScriptedSession session;
    StandardFolders folders;
    Endpoints endpoints;
    EventStore* eventStore = nullptr; ///< outlives the device
    URLSession* network = nullptr;    ///< in place of the scripted one; outlives the device
    std::unique_ptr<VidoraAppDelegate> delegate;
    std::vector<ObjectId> failed;
};

} // namespace vidora::test
