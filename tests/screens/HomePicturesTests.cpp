#include "platform/Timer.h"
#include "screens/HomePictures.h"
#include "support/TestDevice.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

/// Counts what is asked for; answers when a test says so.
struct CountingPictures final : ShowPictures
{
    std::optional<ShowImage> image100AtURL(const URL&, bool) override { return std::nullopt; }
    void asyncLoadOfShowImageAtURL(const URL&, Received received) override
    {
        ++asked;
        answer = std::move(received);
    }
    void imageAtURL(const URL&, const QSize&, std::function<void(const std::optional<ShowImage>&)>) override {}
    int asked = 0;
    Received answer;
};

struct OneRow final : PicturedRows
{
    const ShowList* entriesOf(const ObjectId&) const override { return nullptr; }
    void setDetailedEntries(const ObjectId&, const ShowList&) override {}
    void reloadShow(const ObjectId&, const QString&) override { ++reloads; }
    int reloads = 0;
};

TEST(HomePictures, AreAskedForOnceAListAndAgainForANewOne)
{
    test::TestDevice device;
    device.setCatalogue({});
    device.launch();
    const auto pictures = std::make_shared<CountingPictures>();
    device.delegate->setShowServices({nullptr, pictures, nullptr});
    const auto channel = ObjectId::initWithHex(u"58f4ded60befe78cb3360001");
    ShowDraft draft;
    draft.entry->setIdentificator(QStringLiteral("News"));
    draft.categories = 0;
    draft.extra = std::make_shared<TVEntrySupplementalData>();
    draft.pictures = {*URL::fromText(u"http://p.example/1.png")};
    const Show show = std::move(draft).publish();
    OneRow rows;
    HomePictures home(*device.delegate, rows);
    ManualTimer timer;
    const auto display = [&] {
        home.displayed(channel, show);
        timer.advance(Milliseconds(200));
        test::settle();
    };
    display();
    display();
    EXPECT_EQ(pictures->asked, 1) << "one that fails is not asked for every minute";
    pictures->answer({QStringLiteral("image://pictures/1"), 99});
    EXPECT_EQ(rows.reloads, 1);
    display();
    EXPECT_EQ(pictures->asked, 1);

    home.forget(channel);
    EXPECT_FALSE(home.imageOf(channel, show));
    display();
    EXPECT_EQ(pictures->asked, 2);
}

} // namespace
} // namespace vidora
