#include "TestPictures.h"
#include "app/window/ShowPictureLoader.h"
#include "app/window/WindowImages.h"
#include "support/TestDevice.h"

#include <QtTest/QTest>

#include <atomic>
#include <future>
#include <gmock/gmock.h>
#include <thread>

namespace vidora {
namespace {

class ShowPictureTest : public ::testing::Test
{
protected:
    ShowPictureTest()
    {
        device.setCatalogue({});
        device.launch();
        loader = std::make_shared<ShowPictureLoader>(*device.delegate, 99.0, 2.0);
        device.delegate->tabBarController().alertPresented = [this](const Alert&) { ++alerts; };
        device.clock.advance(Seconds(61)); // behind the quiet time of the start
    }
    ~ShowPictureTest() override { loader->stop(); }

    URL serve(const char* name, const QByteArray& body, const char* type = "image/png")
    {
        const QString address = QStringLiteral("http://pictures.example/") + QString::fromLatin1(name);
        device.session.answer(address, {200, body, type, {}});
        return *URL::fromText(address);
    }
    QSize sizeOf(const std::optional<ShowImage>& image) const
    {
        return image ? loader->shelf()->get(image->source.section(QLatin1Char('/'), -1)).size() : QSize();
    }
    /// On the threads on which it may be called.
    std::optional<ShowImage> image100(const URL& url, bool load = true)
    {
        std::optional<ShowImage> image;
        const auto queue = DispatchQueue::serial(QStringLiteral("test"));
        queue->sync([&] { image = loader->image100AtURL(url, load); });
        test::settle();
        return image;
    }

    test::TestDevice device;
    std::shared_ptr<ShowPictureLoader> loader;
    int alerts = 0;
};

TEST_F(ShowPictureTest, FetchesOnceAndFitsWithoutEnlarging)
{
    const URL large = serve("large.png", test::png(800, 400)), small = serve("small.png", test::png(40, 60));
    EXPECT_FALSE(image100(large, false)) << "not in the cache";
    EXPECT_EQ(alerts, 0);
    const auto first = image100(large);
    EXPECT_EQ(sizeOf(first), QSize(198, 99));
    EXPECT_EQ(first->width, 99);
    EXPECT_EQ(sizeOf(image100(large, false)), QSize(198, 99));
    EXPECT_EQ(sizeOf(image100(small)), QSize(40, 60));
    EXPECT_EQ(device.session.takeRequests(), (QStringList{large.text(), small.text()}));

    std::optional<ShowImage> enlarged;
    loader->imageAtURL(small, QSize(100, 120), [&](const auto& image) { enlarged = image; });
    DispatchQueue::runMain([&] { return enlarged.has_value(); });
    EXPECT_EQ(sizeOf(enlarged), QSize(160, 240));
    EXPECT_TRUE(device.session.takeRequests().isEmpty());
}

TEST_F(ShowPictureTest, KeepsAPictureWhileItIsHeldAndEmptiesTheCacheAtAWarning)
{
    const URL url = serve("show.png", test::png(300, 300));
    std::optional<ShowImage> image;
    loader->asyncLoadOfShowImageAtURL(url, [&](const ShowImage& received) { image = received; });
    DispatchQueue::runMain([&] { return image.has_value(); });
    device.delegate->applicationDidReceiveMemoryWarning();
    EXPECT_EQ(sizeOf(image), QSize(198, 198)) << "a row shows it";
    EXPECT_FALSE(image100(url, false)) << "the cache is empty";
    const ShowImage gone{image->source, 0};
    image.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sizeOf(gone).isEmpty(); }, 60'000)) << "nobody holds it";
}

TEST_F(ShowPictureTest, HostilePicturesShowNothing)
{
    const QByteArray whole = test::png(300, 300);
    for (const QByteArray& body : {whole.left(whole.size() / 2), whole.left(20), QByteArray("<html>404</html>"),
                                   QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"),
                                   test::pngClaiming(30'000, 30'000)}) {
        const URL url = serve("hostile.png", body);
        EXPECT_FALSE(image100(url)) << body.left(30).toStdString();
        int answers = 0;
        loader->imageAtURL(url, QSize(50, 50), [&](const auto& image) {
            EXPECT_FALSE(image);
            ++answers;
        });
        DispatchQueue::runMain([&] { return answers == 1; });
        device.delegate->applicationDidReceiveMemoryWarning();
    }
    EXPECT_EQ(alerts, 0) << "somebody answered";
}

TEST_F(ShowPictureTest, OnlyAPictureThatSomebodyWaitsForTellsOfAMissingHost)
{
    const URL dead = *URL::fromText(u"http://nowhere.example/show.png");
    EXPECT_FALSE(image100(dead));
    EXPECT_EQ(alerts, 0) << "those of rows fail quietly";
    loader->imageAtURL(dead, QSize(50, 50), [](const auto&) {});
    DispatchQueue::runMain([&] { return alerts == 1; });
}

/// Answers only when it is asked to end, with a whole picture all the same: the one that was nearly there.
class LastMomentSession final : public URLSession
{
public:
    URLResult perform(const URLRequest& request) override
    {
        hasBegun = true;
        DispatchQueue::main().async([] {});
        while (!*request.cancelled)
            std::this_thread::yield();
        return {test::png(300, 300), URLResponse{200, {}, false}, std::nullopt};
    }
    std::atomic<bool> hasBegun = false;
};

TEST_F(ShowPictureTest, BringsNothingAnyMoreOnceStopped)
{
    const URL url = *URL::fromText(u"http://pictures.example/show.png");
    LastMomentSession session;
    loader->stop();
    device.network = &session;
    device.launch();
    loader = std::make_shared<ShowPictureLoader>(*device.delegate, 99.0, 2.0);
    bool received = false;
    // Goes with the last that might still call back.
    const auto watch = [](bool& isOver) {
        return std::shared_ptr<void>(nullptr,
                                     [&isOver](void*) { DispatchQueue::main().async([&] { isOver = true; }); });
    };
    bool isOver = false, secondIsOver = false;
    loader->asyncLoadOfShowImageAtURL(url, [&received, held = watch(isOver)](const ShowImage&) { received = true; });
    DispatchQueue::runMain([&] { return session.hasBegun.load(); });
    loader->stop();
    device.delegate.reset(); // what still waits for its turn must not touch it
    loader->asyncLoadOfShowImageAtURL(url,
                                      [&received, held = watch(secondIsOver)](const ShowImage&) { received = true; });
    DispatchQueue::runMain([&] { return isOver && secondIsOver; });
    EXPECT_FALSE(received);
}

TEST_F(ShowPictureTest, AnEndWhileAPictureLoadsWaitsForItsRequestAndNoLonger)
{
    const URL url = serve("show.png", test::png(30, 30));
    for (int attempt = 0; attempt < 5; ++attempt) {
        auto asked = std::make_shared<std::promise<void>>(), stopped = std::make_shared<std::promise<void>>();
        device.session.onRequest = [asked](const URLRequest& request) {
            asked->set_value();
            while (!*request.cancelled)
                std::this_thread::yield();
            for (int i = 0; i < 300; ++i) // time for the other to wait for this
                std::this_thread::yield();
        };
        const auto ended = std::make_shared<ShowPictureLoader>(*device.delegate, 99.0, 2.0);
        ended->asyncLoadOfShowImageAtURL(url, [](const ShowImage&) { ADD_FAILURE() << "received at the end"; });
        asked->get_future().wait();
        std::thread([ended, stopped] {
            ended->stop();
            stopped->set_value();
        }).detach();
        ASSERT_EQ(stopped->get_future().wait_for(std::chrono::seconds(60)), std::future_status::ready) << "it hangs";
        device.delegate->applicationDidReceiveMemoryWarning(); // the next attempt asks again
    }
}

} // namespace
} // namespace vidora
