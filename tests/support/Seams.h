#pragma once

#include "platform/AtomicFile.h"
#include "platform/Clock.h"
#include "platform/URLSession.h"

#include <QStringList>

#include <cerrno>
#include <deque>
#include <map>
#include <random>

// What stands between the program and the world, as tests have it: chance, waiting, files, the network. One of each.
namespace vidora::test {

/// Draws the numbers it was given, in turn and again and again, or those that follow from a seed; each modulo the
/// bound.
class ScriptedRandom final : public Random
{
public:
    explicit ScriptedRandom(std::vector<std::uint32_t> numbers = {0})
        : m_numbers(std::move(numbers))
    {
    }
    static ScriptedRandom seeded(unsigned seed) { return ScriptedRandom({}, seed); }

    std::uint32_t uniform(std::uint32_t bound) override
    {
        const std::lock_guard lock(m_mutex);
        m_bounds.push_back(bound);
        const std::uint64_t drawn = m_numbers.empty() ? m_engine() : m_numbers[m_next++ % m_numbers.size()];
        return static_cast<std::uint32_t>(drawn % bound);
    }
    /// What was asked for, in order.
    std::vector<std::uint32_t> bounds() const
    {
        const std::lock_guard lock(m_mutex);
        return m_bounds;
    }

private:
    ScriptedRandom(std::vector<std::uint32_t> numbers, unsigned seed)
        : m_numbers(std::move(numbers))
        , m_engine(seed)
    {
    }

    mutable std::mutex m_mutex;
    const std::vector<std::uint32_t> m_numbers;
    std::size_t m_next = 0;
    std::mt19937_64 m_engine;
    std::vector<std::uint32_t> m_bounds;
};

/// Waits for nothing, remembers what it was asked for, and lets something happen while the program believes it waits.
class ScriptedSleeper final : public Sleeper
{
public:
    explicit ScriptedSleeper(std::function<void(Milliseconds)> whileAsleep = {})
        : onSleep(std::move(whileAsleep))
    {
    }
    void sleep(Milliseconds duration) override
    {
        {
            const std::lock_guard lock(m_mutex);
            m_slept.push_back(duration);
        }
        if (onSleep)
            onSleep(duration);
    }
    std::vector<Milliseconds> slept() const
    {
        const std::lock_guard lock(m_mutex);
        return m_slept;
    }
    std::vector<Milliseconds> takeSlept()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_slept, {});
    }

    std::function<void(Milliseconds)> onSleep; ///< set while nothing sleeps

private:
    mutable std::mutex m_mutex;
    std::vector<Milliseconds> m_slept;
};

/// Does what the system does but for the given step, counted from 0; with `kills` everything is lost from there on, as
/// by a kill. A write that fails leaves half of its bytes behind.
class FaultyFileLayer final : public FileLayer
{
public:
    explicit FaultyFileLayer(int step = -1, bool killsThere = false)
        : failingStep(step)
        , kills(killsThere)
    {
    }
    bool failed() const { return failingStep >= 0 && steps > failingStep; }

    int create(const QString& path, unsigned mode, int& descriptor) override
    {
        return failsNow() ? ENOSPC : system().create(path, mode, descriptor);
    }
    int write(int descriptor, QByteArrayView bytes) override
    {
        if (!failsNow())
            return system().write(descriptor, bytes);
        system().write(descriptor, bytes.first(bytes.size() / 2));
        return ENOSPC;
    }
    int sync(int descriptor) override { return failsNow() ? EIO : system().sync(descriptor); }
    int close(int descriptor) override
    {
        const int result = system().close(descriptor);
        return failsNow() ? EIO : result;
    }
    int rename(const QString& from, const QString& to) override { return failsNow() ? EIO : system().rename(from, to); }
    int syncFolder(const QString& folder) override { return failsNow() ? EIO : system().syncFolder(folder); }
    int remove(const QString& path) override { return failsNow() ? EIO : system().remove(path); }

    int failingStep; ///< below 0: none
    bool kills;
    bool killed = false;
    int steps = 0;

private:
    bool failsNow()
    {
        const bool fails = steps++ == failingStep;
        killed = killed || (fails && kills);
        return fails || killed;
    }
};

/// The network: answers from a table of addresses, or what is set to come next, and remembers what was asked for.
class ScriptedSession final : public URLSession
{
public:
    struct Answer
    {
        int status = 200;
        QByteArray body = {};
        QByteArray contentType = "text/xml; charset=utf-8";
        QByteArray location = {};
    };
    using Reply = std::function<URLResult(const URLRequest&)>;

    /// To this address, as often as it is asked for.
    void answer(const QString& url, Answer answer)
    {
        const std::lock_guard lock(m_mutex);
        m_answers[url] = std::move(answer);
    }
    /// Once, to the next request without such a reply of its own, ahead of the table. Runs on the request's thread.
    void replyNext(Reply reply)
    {
        const std::lock_guard lock(m_mutex);
        m_replies.push_back(std::move(reply));
    }
    QStringList takeRequests()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_requests, {});
    }

    URLResult perform(const URLRequest& request) override
    {
        if (onRequest)
            onRequest(request);
        const Reply reply = begin(request);
        return reply ? reply(request) : fromTable(request.url.text());
    }

    /// Happens ahead of each answer, on the thread that asks. Set while nothing is asked.
    std::function<void(const URLRequest&)> onRequest;

    static URLResult noRoute(const QString& reason = {})
    {
        return {std::nullopt, std::nullopt, URLError{QStringLiteral("no route"), reason, {}}};
    }

private:
    Reply begin(const URLRequest& request)
    {
        const std::lock_guard lock(m_mutex);
        m_requests << request.url.text();
        if (m_replies.empty())
            return {};
        Reply reply = std::move(m_replies.front());
        m_replies.pop_front();
        return reply;
    }
    URLResult fromTable(const QString& url)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_answers.find(url);
        if (found == m_answers.end())
            return noRoute();
        URLResponse response;
        response.statusCode = found->second.status;
        response.headerFields.set("Content-Type", found->second.contentType);
        if (!found->second.location.isEmpty())
            response.headerFields.set("Location", found->second.location);
        return {found->second.body, response, std::nullopt};
    }

    std::mutex m_mutex;
    std::map<QString, Answer> m_answers;
    std::deque<Reply> m_replies;
    QStringList m_requests;
};

} // namespace vidora::test
