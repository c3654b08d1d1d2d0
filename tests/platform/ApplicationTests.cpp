#include "platform/Application.h"
#include "platform/HomeLock.h"
#include "platform/Timer.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <thread>

namespace vidora {
namespace {

using ::testing::ElementsAre;
using namespace std::chrono_literals;

TEST(ApplicationTest, QuitWaitsForTasksThatEndOnOtherThreads)
{
    ManualTimer timer;
    Application application;
    EXPECT_TRUE(application.finishBackgroundTasks());

    const auto forbid = [] { ADD_FAILURE() << "expired"; };
    const auto first = application.beginBackgroundTask(QStringLiteral("first"), forbid);
    const auto second = application.beginBackgroundTask(QStringLiteral("second"), {});
    EXPECT_NE(first, Application::backgroundTaskInvalid);
    EXPECT_NE(first, second);
    std::atomic<bool> worked = false;
    const auto queue = DispatchQueue::serial(QStringLiteral("work"));
    queue->async([&] {
        application.endBackgroundTask(second);
        // While the process waits for the tasks, their blocks on the main queue still run.
        DispatchQueue::main().sync([&] { worked = true; });
        application.endBackgroundTask(first);
        application.endBackgroundTask(first);
        application.endBackgroundTask(Application::backgroundTaskInvalid);
    });
    EXPECT_TRUE(application.finishBackgroundTasks());
    EXPECT_TRUE(worked);
    timer.advance(1min);
}

TEST(ApplicationTest, ExpirationHandlersRunOnceWhenTheGracePeriodIsOver)
{
    ManualTimer timer;
    Application application(10s);
    std::vector<int> order;
    DispatchQueue& main = DispatchQueue::main();
    const auto ended = application.beginBackgroundTask(QStringLiteral("ended"), [&] { order.push_back(0); });
    Application::BackgroundTaskIdentifier slow = Application::backgroundTaskInvalid;
    // As an update pass does it: the handler leaves the end of the task to a block of the main queue.
    slow = application.beginBackgroundTask(QStringLiteral("slow"), [&] {
        order.push_back(1);
        main.async([&] {
            order.push_back(2);
            application.endBackgroundTask(slow);
        });
    });
    application.beginBackgroundTask(QStringLiteral("without handler"), {});
    main.async([&] {
        application.endBackgroundTask(ended);
        timer.advance(9s);
        main.async([&] {
            EXPECT_TRUE(order.empty());
            timer.advance(1s);
        });
    });
    EXPECT_FALSE(application.finishBackgroundTasks());
    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST(HomeLockTest, OneHolderAtATime)
{
    const QTemporaryDir folder;
    const QString home = folder.filePath(QStringLiteral("new/home"));
    auto first = std::make_unique<HomeLock>(home);
    ASSERT_EQ(first->outcome(), HomeLock::Outcome::First);
    EXPECT_EQ(HomeLock(folder.path()).outcome(), HomeLock::Outcome::First);

    HomeLock second(home);
    EXPECT_EQ(second.outcome(), HomeLock::Outcome::Second);
    EXPECT_EQ(second.holder(), ::getpid());
    std::thread waiting([&] { second.waitForTurn(); });
    first.reset();
    waiting.join();
    EXPECT_EQ(second.outcome(), HomeLock::Outcome::First);
    EXPECT_EQ(HomeLock(home).outcome(), HomeLock::Outcome::Second);

    HomeLock nowhere(QStringLiteral("/dev/null/home"));
    EXPECT_EQ(nowhere.outcome(), HomeLock::Outcome::Unavailable);
    EXPECT_EQ(nowhere.holder(), std::nullopt);
    nowhere.waitForTurn();
}

} // namespace
} // namespace vidora
