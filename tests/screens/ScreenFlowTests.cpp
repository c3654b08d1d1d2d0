#include "ScreensFixture.h"
#include "platform/Timer.h"
#include "screens/ChannelGroups.h"
#include "screens/ChannelViewController.h"
#include "screens/DetailViewController.h"
#include "screens/RichText.h"
#include "screens/StoreKitHelper.h"

namespace vidora {
namespace {

struct TestPlayer final : StreamPlayer
{
    Status status() const override { return state; }
    void play() override { playing = true; }
    void pause() override { playing = false; }
    void seekToStart() override { ++rewinds; }
    Status state = Status::Unknown;
    bool playing = false;
    int rewinds = 0;
};

class ScreenFlowTest : public test::ScreensTest
{
protected:
    ~ScreenFlowTest() override
    {
        tabs.reset();
        device.delegate.reset(); // ahead of the calendars
    }
    void startStreams()
    {
        start({channel(1, QStringLiteral("One"), QStringLiteral("http://s.example/live one.m3u8")),
               channel(2, QStringLiteral("Two"))});
        tabs->stream().playerWithURL = [this](const URL& url) {
            played << url.text();
            return player = std::make_shared<TestPlayer>();
        };
        tabs->alertPresented = [this](Alert alert) { alerts.push_back(std::move(alert)); };
    }
    void wait(Seconds duration)
    {
        timer.advance(duration);
        test::settle();
    }

    MemoryEventStore calendars{{{QStringLiteral("home"), QStringLiteral("Home"), QStringLiteral("Here"), {}, true}}};
    ManualTimer timer;
    QStringList played;
    std::shared_ptr<TestPlayer> player;
    std::vector<Alert> alerts;
};

TEST_F(ScreenFlowTest, AStreamThatNeverStartsIsClosedAndTheUserTold)
{
    startStreams();
    home().selectRow({1, 0});
    EXPECT_FALSE(player) << "neither shows nor a stream: nothing happens";
    home().selectRow({0, 0});
    ASSERT_TRUE(player);
    EXPECT_EQ(played, QStringList{QStringLiteral("http://s.example/live%20one.m3u8")});
    EXPECT_EQ(tabs->stream().title(), QStringLiteral("One"));
    wait(Seconds(24));
    EXPECT_TRUE(tabs->stream().player());
    wait(Seconds(1));
    EXPECT_FALSE(tabs->stream().player());
    EXPECT_FALSE(player->playing);
    ASSERT_EQ(alerts.size(), 1U);
    EXPECT_EQ(alerts[0].title, QStringLiteral("Alert"));

    home().accessoryTapped({0, 0});
    alerts[0].actions.at(0).handler();
    EXPECT_FALSE(tabs->stream().player()) << "the answer closes what was opened meanwhile";
}

TEST_F(ScreenFlowTest, RowsShowFavouritesAndAlarmsAsTheyAreSet)
{
    device.eventStore = &calendars;
    broadcast(1, {QStringLiteral("News"), QStringLiteral("Film"), QStringLiteral("Sport")});
    start({channel(1, QStringLiteral("One"))});
    device.update();
    DispatchQueue::runMain([&] { return home().numberOfRowsInSection(0) > 3; });
    VidoraAppDelegate& delegate = *device.delegate;
    delegate.defaults().setObject(true, QStringLiteral("colorizedShows"));
    delegate.setup();
    delegate.alarmEngine().addFavorite(QStringLiteral("Film"));
    delegate.alarmEngine().addFavorite(QStringLiteral("Sport"));
    delegate.alarmEngine().setAlarmForTitle(QStringLiteral("Film"), 10, std::nullopt, true);
    const auto colourOf = [&](std::size_t row) {
        return home().rowAt({0, row}).text.runs().front().attributes.givenColour;
    };
    DispatchQueue::runMain([&] { return colourOf(2) == colour::alarmRed; });
    EXPECT_EQ(colourOf(1), colour::onAirGreen);
    EXPECT_EQ(colourOf(3), colour::favouriteOrange);
    DispatchQueue::runMain([&] { return tabs->tabs()[3].badge == QStringLiteral("1"); });
    delegate.alarmEngine().removeFavorite(QStringLiteral("Film"));
    DispatchQueue::runMain([&] { return colourOf(2) == colour::secondaryLabel && !tabs->tabs()[3].badge; });
}

TEST_F(ScreenFlowTest, OnlyTheStreamThatWasAskedForIsChecked)
{
    startStreams();
    home().accessoryTapped({0, 0});
    const auto first = player;
    wait(Seconds(20));
    home().accessoryTapped({0, 0});
    EXPECT_EQ(first->rewinds, 1);
    wait(Seconds(10)); // the first one's check
    EXPECT_EQ(tabs->stream().player(), player);
    player->state = StreamPlayer::Status::ReadyToPlay;
    wait(Seconds(60));
    EXPECT_TRUE(player->playing);
    EXPECT_TRUE(alerts.empty());

    player->pause();
    device.delegate->applicationDidEnterBackground();
    wait(Seconds(1));
    EXPECT_TRUE(player->playing) << "sound goes on behind other windows";
}

TEST_F(ScreenFlowTest, TabsFollowTheSizeOfTheWindow)
{
    device.eventStore = &calendars;
    broadcast(1, {QStringLiteral("News"), QStringLiteral("Film")});
    start({channel(1, QStringLiteral("One"))});
    device.update();
    device.delegate->alarmEngine().addFavorite(QStringLiteral("Film"));
    device.delegate->alarmEngine().setAlarmForTitle(QStringLiteral("Film"), 10, std::nullopt, true);
    const auto badgeOf = [this](std::size_t index) { return tabs->tabs()[index].badge.value_or(QString()); };
    DispatchQueue::runMain([&] { return badgeOf(3) == QStringLiteral("1"); });
    tabs->selectTab(3);
    tabs->setPad(true);
    ASSERT_EQ(tabs->tabs().size(), 6U);
    EXPECT_EQ(tabs->tabs()[tabs->selectedIndex()].name, QStringLiteral("schedule"));
    EXPECT_EQ(badgeOf(4), QStringLiteral("1"));
    EXPECT_EQ(badgeOf(3), QString());
    tabs->selectTab(1);
    DispatchQueue::runMain([this] { return home().hasContent(); });
    tabs->setPad(false);
    EXPECT_EQ(tabs->selectedIndex(), 0U);
    EXPECT_EQ(visible<RootViewController>().get(), &home());
}

TEST_F(ScreenFlowTest, BackLeadsToWhereOneCameFrom)
{
    broadcast(1, {QStringLiteral("News"), QStringLiteral("Film")});
    start({channel(1, QStringLiteral("One"))});
    device.update();
    home().selectRow({0, 0});
    const auto week = awaited<ChannelViewController>();
    week->selectRow({0, 1});
    EXPECT_EQ(visible<DetailViewController>()->title(), QStringLiteral("Film"));
    tabs->back();
    EXPECT_EQ(visible<ChannelViewController>(), week);
    tabs->back();
    EXPECT_EQ(visible<RootViewController>().get(), &home());
    tabs->back();
    EXPECT_EQ(visible<RootViewController>().get(), &home()) << "a tab keeps its first screen";
}

TEST_F(ScreenFlowTest, AnAddressLeadsToItsShow)
{
    broadcast(1, {QStringLiteral("News")});
    start({channel(1, QStringLiteral("One"))});
    device.update();
    const auto url = home().sections()[0].entries[0]->entry->urlDigestWithScheme(QStringLiteral("vidora"));
    tabs->openURL(*URL::fromText(u"vidora://c0123"));
    tabs->openURL(*url);
    EXPECT_EQ(awaited<DetailViewController>()->title(), QStringLiteral("News"));
    EXPECT_EQ(tabs->visibleStack().size(), 2U) << "an unknown address changes nothing";
    tabs->selectTab(0);
    EXPECT_EQ(visible<RootViewController>().get(), &home()) << "the selected tab goes back to its beginning";
    EXPECT_EQ(home().swipeActions({0, 1}).at(0).title, QStringLiteral("News"));
}

TEST_F(ScreenFlowTest, NoListArrivesWhileTheHomeScreenIsMadeAnew)
{
    start({channel(1, QStringLiteral("One"))});
    bool parsed = false;
    home().selectedChannelsChanged();
    device.delegate->loadQueue().async([&] { DispatchQueue::main().async([&] { parsed = true; }); });
    device.delegate->loadSchedulesQueue().sync([] {});
    EXPECT_FALSE(parsed);
    DispatchQueue::runMain([&] { return parsed; });

    home().selectedChannelsChanged();
    tabs.reset(); // the screens go while the answer is on its way: loading must go on, and the device must end
    parsed = false;
    device.delegate->loadQueue().async([&] { DispatchQueue::main().async([&] { parsed = true; }); });
    DispatchQueue::runMain([&] { return parsed; });
}

TEST_F(ScreenFlowTest, HostileTitlesAreText)
{
    const QString longTitle(10'000, QLatin1Char('x'));
    const QString turned = QStringLiteral("\u202Eevil\u2066 \u200Fmark");
    broadcast(1, {longTitle, turned, QStringLiteral("<a href='file:///etc/passwd'>x</a><img src=x>")});
    start({channel(1, QStringLiteral("<h1>One\u0007</h1>"))});
    device.update();
    ScreenItemModel model(tabs->visibleScreen());
    const auto text = [&](int row, int role) { return model.data(model.index(row), role).toString(); };
    EXPECT_EQ(text(0, ScreenItemModel::TextRole), QStringLiteral("<h1>One </h1>"));
    EXPECT_TRUE(text(1, ScreenItemModel::TextRole).contains(longTitle, Qt::CaseInsensitive));
    EXPECT_TRUE(
        text(2, ScreenItemModel::RichTextRole).contains(QStringLiteral("evil \u200Fmark"), Qt::CaseInsensitive));
    for (int row = 0; row < model.rowCount(); ++row) {
        QString tags = text(row, ScreenItemModel::RichTextRole);
        tags.remove(QRegularExpression(QStringLiteral("</?span[^>]*>|<br>")));
        EXPECT_FALSE(tags.contains(QLatin1Char('<'))) << tags.left(200).toStdString();
    }
}

TEST(RichText, EscapesAndScales)
{
    AttributedText text;
    TextAttributes attributes;
    attributes.pointSize = 10;
    attributes.weight = TextAttributes::Weight::Semibold;
    attributes.colour = TextAttributes::Colour::Given;
    attributes.givenColour = QStringLiteral("alarmRed");
    text.append(QStringLiteral("1 < 2\n\"&\"\u2028\t"), attributes);
    text.append(QStringLiteral("plain"), {});
    EXPECT_EQ(
        richText(text, {{{QStringLiteral("alarmRed"), QStringLiteral("#f00")}}, 1.5}),
        QStringLiteral("<span style=\"font-size:15px;font-weight:600;color:#f00;\">1 &lt; 2<br>&quot;&amp;&quot;  "
                       "</span>plain"));
}

TEST(ChannelGroups, OtherStandsLastAndTakesInTheMiddle)
{
    const auto offered = [](int id, const char* title) {
        const auto channel = ObjectId::initWithHex(QString::number(id).rightJustified(24, QLatin1Char('0')));
        return OfferedChannel{{channel, {}, QString::fromUtf8(title), {}, {}}, {}};
    };
    const auto groups = arrangedGroups({{QStringLiteral("Other"), {offered(1, "x"), offered(2, "First")}},
                                        {QStringLiteral("zeta"), {offered(3, "b"), offered(4, "B"), offered(5, "x")}},
                                        {QStringLiteral("Alpha"), {offered(6, "First")}}});
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].title, QStringLiteral("Alpha"));
    QStringList titles;
    for (const OfferedChannel& channel : groups[1].channels)
        titles << channel.face.catalogueTitle;
    EXPECT_EQ(titles, (QStringList{QStringLiteral("b"), QStringLiteral("B"), QStringLiteral("x")}));
}

TEST(StoreKitHelper, AsksFromTheEleventhDisplayOfAVersionOn)
{
    QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(QStringLiteral("settings.json")));
    int asked = 0;
    const auto display = [&](const char* version, int times) {
        for (int i = 0; i < times; ++i)
            StoreKitHelper::displayStoreKit(defaults, QString::fromLatin1(version), [&] { ++asked; });
    };
    display("1.0", 10);
    EXPECT_EQ(asked, 0);
    display("1.0", 2);
    EXPECT_EQ(asked, 2);
    display("1.1", 10);
    EXPECT_EQ(asked, 2) << "a new version counts anew";
}

} // namespace
} // namespace vidora
