#include "platform/DispatchQueue.h"
#include "platform/Timer.h"
#include "platform/WaitingOrder.h"

#include <QCoreApplication>

#include <array>
#include <gmock/gmock.h>
#include <latch>
#include <stdexcept>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace vidora {
namespace {

using ::testing::ElementsAre;
using namespace std::chrono_literals;

using Queue = std::shared_ptr<DispatchQueue>;

// One of each kind on which `sync` and `async` must behave alike.
std::vector<Queue> queues()
{
    return {DispatchQueue::serial(QStringLiteral("serial")),
            DispatchQueue::serial(QStringLiteral("low"), QualityOfService::Background),
            DispatchQueue::concurrent(QStringLiteral("concurrent")),
            DispatchQueue::concurrent(QStringLiteral("concurrent low"), QualityOfService::Utility)};
}

void onThreads(int count, const std::function<void(int)>& work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(work, i);
    for (auto& thread : threads)
        thread.join();
}

// Blocks start in the order in which the pools get them: one that was started by mistake has run by then.
void letStartedBlocksRun()
{
    DispatchGroup group;
    for (const auto quality : {QualityOfService::Background, QualityOfService::Utility, QualityOfService::Default}) {
        for (int i = 0; i < 8; ++i)
            group.async(DispatchQueue::global(quality), [] {});
    }
    group.wait();
}

TEST(DispatchQueueTest, SerialQueueKeepsEachCallersOrderAndRunsOneAtATime)
{
    for (const auto quality : {QualityOfService::Background, QualityOfService::UserInitiated}) {
        const Queue queue = DispatchQueue::serial(QStringLiteral("order"), quality);
        std::vector<std::pair<int, int>> ran; // Unguarded: the queue is what guards it.
        onThreads(4, [&](int thread) {
            for (int i = 0; i < 300; ++i) {
                const auto block = [&ran, thread, i] { ran.emplace_back(thread, i); };
                i % 7 == 0 ? queue->sync(block) : queue->async(block);
            }
        });
        queue->sync([&] {
            std::array<int, 4> next{};
            for (const auto& [thread, i] : ran)
                EXPECT_EQ(i, next[std::size_t(thread)]++);
            EXPECT_EQ(ran.size(), 1200U);
        });
    }
}

TEST(DispatchQueueTest, BarriersRunAloneAndInOrderUnderLoad)
{
    const Queue queue = DispatchQueue::concurrent(QStringLiteral("barriers"));
    int first = 0;
    int second = 0;
    const auto write = [&] {
        ++first;
        ++second;
    };
    const auto read = [&] { EXPECT_EQ(first, second); };
    onThreads(4, [&](int) {
        for (int i = 0; i < 300; ++i) {
            queue->async(read);
            i % 2 == 0 ? queue->barrierAsync(write) : queue->barrierSync(write);
            queue->sync(read);
        }
    });
    queue->barrierAsync(write);
    queue->sync([&] { EXPECT_EQ(first, 1201); });
}

TEST(DispatchQueueTest, BarrierWaitsForThoseAheadAndHoldsBackThoseBehind)
{
    std::latch released(1);
    std::atomic<bool> wrote = false;
    std::atomic<bool> readBehind = false;
    const Queue queue = DispatchQueue::concurrent(QStringLiteral("barrier"));
    queue->async([&] {
        released.wait();
        EXPECT_FALSE(wrote);
    });
    queue->barrierAsync([&] {
        wrote = true;
        letStartedBlocksRun();
        EXPECT_FALSE(readBehind);
    });
    queue->async([&] { readBehind = wrote.load(); });
    letStartedBlocksRun();
    released.count_down();
    queue->barrierSync([&] { EXPECT_TRUE(readBehind); });
}

TEST(DispatchQueueTest, ConcurrentBlocksRunAtOnce)
{
    std::latch all(3);
    const Queue queue = DispatchQueue::concurrent(QStringLiteral("together"));
    queue->async([&] { all.arrive_and_wait(); });
    queue->async([&] { all.arrive_and_wait(); });
    queue->sync([&] { all.arrive_and_wait(); });
}

TEST(DispatchQueueTest, ExceptionsLeaveSyncAndTheQueueGoesOn)
{
    for (const Queue& queue : queues()) {
        EXPECT_THROW(queue->sync([] { throw std::runtime_error("read"); }), std::runtime_error);
        EXPECT_THROW(queue->barrierSync([] { throw std::range_error("write"); }), std::range_error);
        bool ran = false;
        queue->barrierSync([&] { ran = queue->isCurrent(); });
        EXPECT_TRUE(ran);
        EXPECT_FALSE(queue->isCurrent());
    }
}

TEST(DispatchQueueTest, LowClassesRunOnNicerThreads)
{
    const auto niceness = [] { return getpriority(PRIO_PROCESS, id_t(gettid())); };
    const int ours = niceness();
    const Queue low = DispatchQueue::serial(QStringLiteral("low"), QualityOfService::Background);
    int seenBelow = 0;
    std::vector<int> seen;
    low->sync([&] {
        seenBelow = niceness();
        // Threads that a nicer one asks for are not nicer themselves.
        DispatchGroup group;
        std::latch together(4);
        std::mutex mutex;
        for (int i = 0; i < 4; ++i) {
            group.async(DispatchQueue::global(QualityOfService::UserInteractive), [&] {
                together.arrive_and_wait();
                const std::lock_guard lock(mutex);
                seen.push_back(niceness());
            });
        }
        group.wait();
    });
    EXPECT_EQ(seenBelow, std::min(ours + 10, 19));
    EXPECT_THAT(seen, ElementsAre(ours, ours, ours, ours));
}

TEST(DispatchQueueTest, WaitingBlocksNeverStarveThoseTheyWaitFor)
{
    for (const auto quality : {QualityOfService::Background, QualityOfService::Default}) {
        std::vector<Queue> chain;
        for (int i = 0; i < 40; ++i)
            chain.push_back(DispatchQueue::serial(QString::number(i), quality));
        int depth = 0;
        std::function<void(std::size_t)> descend = [&](std::size_t level) {
            ++depth;
            if (level < chain.size())
                chain[level]->sync([&, level] { descend(level + 1); });
        };
        DispatchQueue::global(quality).sync([&] { descend(0); });
        EXPECT_EQ(depth, 41);

        // More groups waited for on the pool's threads than it has threads.
        std::atomic<int> inner = 0;
        DispatchGroup outer;
        for (int i = 0; i < 40; ++i) {
            outer.async(DispatchQueue::global(quality), [&inner, quality] {
                DispatchGroup group;
                group.async(DispatchQueue::global(quality), [&inner] { ++inner; });
                group.wait();
            });
        }
        outer.wait();
        EXPECT_EQ(inner, 40);
    }
}

TEST(DispatchQueueTest, SuspendedQueueStartsNothingUntilAsManyResumes)
{
    for (const Queue& queue : queues()) {
        std::atomic<int> ran = 0;
        queue->suspend();
        queue->suspend();
        queue->async([&] { ++ran; });
        queue->barrierAsync([&] { ++ran; });
        queue->resume();
        letStartedBlocksRun();
        EXPECT_EQ(ran, 0);
        queue->resume();
        queue->barrierSync([&] { EXPECT_EQ(ran, 2); });
    }
    // From within: the block that suspends ends, the next doesn't start.
    const Queue queue = DispatchQueue::serial(QStringLiteral("own"));
    queue->sync([&] {
        queue->async([&] { EXPECT_FALSE(queue->label().isEmpty()); });
        queue->suspend();
    });
    queue->resume();
    queue->sync([] {});
}

TEST(DispatchQueueTest, DestructionRunsWhatIsLeft)
{
    for (Queue& queue : queues()) {
        std::atomic<int> ran = 0;
        queue->suspend();
        for (int i = 0; i < 50; ++i)
            queue->async([&ran] { ++ran; });
        queue.reset();
        EXPECT_EQ(ran, 50);
    }
    // The last owner is a block of the queue itself; the block behind it runs all the same.
    std::latch released(1);
    bool ranBehind = false;
    Queue queue = DispatchQueue::serial(QStringLiteral("own end"));
    queue->async([owner = queue, &released] {
        released.wait();
        EXPECT_TRUE(owner->isCurrent());
    });
    queue->async([&ranBehind] { DispatchQueue::main().async([&ranBehind] { ranBehind = true; }); });
    queue.reset();
    released.count_down();
    DispatchQueue::runMain([&] { return ranBehind; });
}

TEST(DispatchGroupTest, WaitsForItsBlocksAndNotifiesOnceEmpty)
{
    const Queue queue = DispatchQueue::concurrent(QStringLiteral("group"));
    const Queue reports = DispatchQueue::serial(QStringLiteral("reports"));
    std::vector<int> reported;
    std::atomic<int> ran = 0;
    DispatchGroup group;
    group.notify(*reports, [&] { reported.push_back(0); }); // Empty already.
    group.enter();
    for (int i = 0; i < 20; ++i)
        group.async(*queue, [&] { ++ran; });
    group.notify(*reports, [&] { reported.push_back(ran); });
    {
        const Queue gone = DispatchQueue::serial(QStringLiteral("gone"));
        group.notify(*gone, [&] { ADD_FAILURE() << "put on a queue that is gone"; });
    }
    queue->barrierSync([] {});
    reports->sync([&] { EXPECT_THAT(reported, ElementsAre(0)); });
    queue->async([&] { group.leave(); });
    group.wait();
    // The notification is queued by the thread that emptied the group, behind the end of the wait.
    queue->barrierSync([] {});
    reports->sync([&] { EXPECT_THAT(reported, ElementsAre(0, 20)); });
}

TEST(TimerTest, AfterQueuesInOrderOfTimeAndForgetsQueuesThatAreGone)
{
    ManualTimer timer;
    const Queue queue = DispatchQueue::serial(QStringLiteral("timed"));
    std::vector<int> ran;
    const auto note = [&](int number) { return [&ran, number] { ran.push_back(number); }; };
    queue->after(300ms, note(3));
    queue->after(100ms, note(1));
    queue->after(100ms, note(2));
    queue->after(-5s, note(0));
    queue->after(200ms, [&, second = note(2)] {
        second();
        queue->after(50ms, note(25)); // Counts from the moment it is asked for.
    });
    DispatchQueue::serial(QStringLiteral("gone"))->after(1ms, [] { ADD_FAILURE(); });
    timer.advance(99ms);
    queue->sync([&] { EXPECT_THAT(ran, ElementsAre(0)); });
    timer.advance(101ms);
    queue->sync([&] { EXPECT_THAT(ran, ElementsAre(0, 1, 2, 2)); });
    timer.advance(1h);
    queue->sync([&] { EXPECT_THAT(ran, ElementsAre(0, 1, 2, 2, 25, 3)); });
    EXPECT_EQ(timer.pending(), 0U);
}

TEST(TimerTest, SystemTimerServesAnEarlierCallWhileItWaitsForALaterOne)
{
    bool called = false;
    DispatchQueue::main().after(24h, [] { ADD_FAILURE(); });
    DispatchQueue::main().after(1ms, [&] { called = true; });
    DispatchQueue::runMain([&] { return called; });
}

TEST(MainQueueTest, RunsBlocksOfAllThreadsInOrderOnTheMainThread)
{
    DispatchQueue& main = DispatchQueue::main();
    std::vector<int> ran;
    const auto note = [&](int number) {
        EXPECT_TRUE(main.isCurrent());
        ran.push_back(number);
    };
    main.async([&] {
        note(1);
        main.async([&] { note(3); });
        // A loop within a block, as a dialogue runs one, doesn't hold back the blocks behind it.
        DispatchQueue::runMain([&] { return ran.size() == 3; });
        note(4);
    });
    main.async([&] { note(2); });
    DispatchQueue::runMain([&] { return ran.size() == 4; });
    EXPECT_THAT(ran, ElementsAre(1, 2, 3, 4));

    const Queue queue = DispatchQueue::serial(QStringLiteral("other"));
    bool isOver = false;
    queue->async([&] {
        EXPECT_FALSE(main.isCurrent());
        main.sync([&] { note(5); });
        EXPECT_EQ(ran.size(), 5U);
        EXPECT_THROW(main.barrierSync([] { throw std::runtime_error("on the main thread"); }), std::runtime_error);
        main.async([&] { isOver = true; });
    });
    DispatchQueue::runMain([&] { return isOver; });
}

[[noreturn]] void changeApplicationObjects()
{
    std::vector<int> ran;
    DispatchQueue::main().async([&] { ran.push_back(1); });
    // The process ends by exit, so nobody destroys it again.
    QCoreApplication::instance()->~QCoreApplication();
    std::thread([&] { DispatchQueue::main().async([&] { ran.push_back(2); }); }).join();
    int count = 1;
    std::array<char, 7> name{"vidora"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    {
        const QCoreApplication second(count, arguments.data());
        DispatchQueue::runMain([&] { return ran.size() == 2; });
    }
    DispatchQueue::main().async([] { std::abort(); });
    std::exit(ran == std::vector{1, 2} ? 0 : 1);
}

TEST(MainQueueTest, KeepsBlocksUntilThereIsAnApplicationObjectAgain)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(changeApplicationObjects(), ::testing::ExitedWithCode(0), "");
}

TEST(WaitingOrderTest, ForbidsWaitingForEarlierQueuesAndForItself)
{
    // The pass, its load queue, the two queues of a store beside each other, and one without a place in the order.
    const int ranks[] = {1, 2, 3, 3, 0};
    // Row: the queue that runs the caller; column: the one it waits for.
    const std::array<const char*, 5> allowed = {"-++++", "--+++", "---++", "--+-+", "++++-"};
    for (int from = 0; from < 5; ++from) {
        for (int to = 0; to < 5; ++to) {
            const QueueFrame frame(&ranks[from], ranks[from]);
            const QueueFrame between(&allowed, 0);
            const bool fault = QueueFrame::faultOfWaitingFor(&ranks[to], ranks[to]) != nullptr;
            EXPECT_EQ(fault, allowed[std::size_t(from)][to] == '-') << from << " waits for " << to;
        }
    }
}

TEST(WaitingOrderTest, FollowsAWaitAcrossThreads)
{
    const Queue pass = DispatchQueue::serial(QStringLiteral("pass"), QualityOfService::Default, 1);
    const Queue load = DispatchQueue::serial(QStringLiteral("load"), QualityOfService::Background, 2);
    pass->sync([&] {
        const auto caller = std::this_thread::get_id();
        load->sync([&] {
            EXPECT_NE(std::this_thread::get_id(), caller);
            EXPECT_TRUE(pass->isCurrent());
        });
        EXPECT_FALSE(load->isCurrent());
    });
#ifndef NDEBUG
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(load->sync([&] { pass->sync([] {}); }), "pass: sync against the order");
    EXPECT_DEATH(pass->sync([&] { load->sync([&] { pass->sync([] {}); }); }), "queue that runs the caller");
    EXPECT_DEATH(DispatchQueue::main().sync([] {}), "main: sync onto the queue that runs the caller");
#endif
}

} // namespace
} // namespace vidora
