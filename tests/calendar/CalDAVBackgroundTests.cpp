#include "CalDAVFixture.h"

#include <condition_variable>
#include <gtest/gtest.h>

namespace vidora {
namespace {

using namespace test;

/// A session that lets an answer through when it is told to.
class HeldSession final : public URLSession
{
public:
    explicit HeldSession(URLSession& session)
        : m_session(session)
    {
    }
    URLResult perform(const URLRequest& request) override
    {
        URLResult result = m_session.perform(request);
        std::unique_lock lock(m_mutex);
        if (m_holds && request.httpMethod == m_method) {
            m_isHolding = true;
            m_changed.notify_all();
            m_changed.wait(lock, [this] { return !m_holds; });
        }
        return result;
    }
    void hold(const char* method)
    {
        const std::lock_guard lock(m_mutex);
        m_method = method;
        m_holds = true;
        m_isHolding = false;
    }
    void waitUntilHeld()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isHolding; });
    }
    void release()
    {
        const std::lock_guard lock(m_mutex);
        m_holds = false;
        m_changed.notify_all();
    }

private:
    URLSession& m_session;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    QByteArray m_method;
    bool m_holds = false, m_isHolding = false;
};

TEST_F(CalDAVEventStoreTest, WaitsForNoServerAndLosesNoChangeMadeWhileItAnswers)
{
    HeldSession held(session);
    CalDAVEventStore store(home.filePath(QStringLiteral("a")), QStringLiteral("Work"),
                           {server.address(), QStringLiteral("ana"), QStringLiteral("s3cret")}, held, clock, random,
                           sleeper, FileLayer::system(), CalDAVEventStore::Exchange::InBackground);
    const auto settle = [&] {
        held.release();
        bool isOver = false;
        store.whenExchanged([&] { isOver = true; });
        DispatchQueue::runMain([&] { return isOver; });
        EXPECT_EQ(store.unsentChanges(), 0);
    };
    ASSERT_FALSE(store.refresh());
    held.hold("PUT");
    Event event = save(store, QStringLiteral("First"));
    held.waitUntilHeld();
    event.title = QStringLiteral("Second");
    EXPECT_FALSE(store.saveEvent(event, EventSpan::ThisEvent));
    EXPECT_EQ(all(store).at(0).title, QStringLiteral("Second"));
    EXPECT_EQ(titles(), (std::map<QString, int>{{QStringLiteral("First"), 1}}));
    settle();
    EXPECT_EQ(titles(), (std::map<QString, int>{{QStringLiteral("Second"), 1}}));

    held.hold("DELETE");
    EXPECT_FALSE(store.removeEvent(event, EventSpan::ThisEvent, true));
    held.waitUntilHeld();
    save(store, QStringLiteral("First")); // the same event again
    settle();
    EXPECT_EQ(titles(), (std::map<QString, int>{{QStringLiteral("First"), 1}}));
    EXPECT_EQ(all(store).size(), 1U);

    held.hold("REPORT"); // an answer that was overtaken by a change made here
    event = all(store).at(0);
    const QString path = server.calendar("tv") + event.eventIdentifier.mid(event.eventIdentifier.indexOf(u'/'));
    writeRaw(path, readRaw(path).replace("LOCATION:Lipa 1", "LOCATION:Theirs\r\nCOMMENT:popcorn"));
    clock.advance(Seconds(3600));
    store.refreshSourcesIfNecessary();
    held.waitUntilHeld();
    event.title = QStringLiteral("Ours");
    EXPECT_FALSE(store.saveEvent(event, EventSpan::ThisEvent));
    std::atomic<int> told = 0;
    store.setChangeObserver([&] { ++told; });
    settle();
    EXPECT_EQ(titles(), (std::map<QString, int>{{QStringLiteral("Ours"), 1}}));
    EXPECT_TRUE(readRaw(path).contains("COMMENT:popcorn"));
    EXPECT_EQ(all(store).at(0).title, QStringLiteral("Ours"));
    EXPECT_EQ(all(store).at(0).location, QStringLiteral("Theirs"));
    EXPECT_EQ(told, 1) << "who reads looks again";
}

} // namespace
} // namespace vidora
