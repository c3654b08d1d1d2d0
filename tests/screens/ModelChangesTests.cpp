#include "ScreensFixture.h"
#include "platform/Timer.h"
#include "screens/AllChannelsViewController.h"
#include "screens/ChannelListViewController.h"
#include "screens/ChannelSearch.h"
#include "screens/ChannelViewController.h"
#include "screens/EditChannelListViewController.h"

#include <QAbstractItemModelTester>

#include <atomic>
#include <thread>

namespace vidora {
namespace {

// A Qt model under the eyes of Qt's own tester, which ends the process at the first broken promise.
struct WatchedModel
{
    explicit WatchedModel(const std::shared_ptr<ScreenModel>& screen)
        : model(screen)
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
    }
    QStringList texts() const
    {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts
                << model.data(model.index(row), ScreenItemModel::TextRole).toString().section(QLatin1Char('\n'), 0, 0);
        return texts;
    }
    ScreenItemModel model;
    QAbstractItemModelTester tester;
};

QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

using ModelChangesTest = test::ScreensTest;

TEST_F(ModelChangesTest, HomeFollowsAPassChannelByChannel)
{
    const auto one = channel(1, QStringLiteral("One")), two = channel(2, QStringLiteral("Two"));
    broadcast(1, words("a|b|c"));
    start({one, two});
    WatchedModel watched(tabs->visibleScreen());
    EXPECT_EQ(watched.texts(), words("One|Two"));
    device.update(); // rows come
    EXPECT_EQ(watched.texts(), words("One|08:30 a|09:30 b|10:30 c|Two"));

    device.clock.advance(Seconds(86'401)); // the same number of rows, then fewer
    silence();
    broadcast(1, words("d|e|f"));
    broadcast(2, words("g|h"));
    device.update();
    EXPECT_EQ(watched.texts(), words("One|08:30 d|09:30 e|10:30 f|Two|08:30 g|09:30 h"));
    device.clock.advance(Seconds(86'401));
    silence();
    broadcast(1, words("i"));
    device.update();
    EXPECT_EQ(watched.texts(), words("One|08:30 i|Two|08:30 g|09:30 h"));

    home().reloadChannel(idOf(one), {});
    EXPECT_EQ(watched.model.rowCount(), 5) << "an empty list leaves the old rows";
    home().reloadChannel(ObjectId::initWithHex(u"58f4ded60befe78cb3369999"), home().sections()[0].entries);
    EXPECT_EQ(watched.model.rowCount(), 5);
}

TEST_F(ModelChangesTest, HomeKeepsItsPlaceWhenTheSameRowsComeAgain)
{
    broadcast(1, words("a|b|c"));
    start({channel(1, QStringLiteral("One")), channel(2, QStringLiteral("Two"))});
    device.update();
    WatchedModel watched(tabs->visibleScreen());
    int resets = 0, changes = 0;
    QObject::connect(&watched.model, &QAbstractItemModel::modelReset, [&] { ++resets; });
    QObject::connect(&watched.model, &QAbstractItemModel::dataChanged, [&] { ++changes; });
    home().selectedChannelsChanged();
    DispatchQueue::runMain([&] { return changes > 0; });
    EXPECT_EQ(watched.texts(), words("One|08:30 a|09:30 b|10:30 c|Two"));
    EXPECT_EQ(resets, 0);
    device.clock.advance(Seconds(3'601));
    home().selectedChannelsChanged();
    DispatchQueue::runMain([&] { return resets > 0; });
    EXPECT_EQ(watched.texts(), words("One|09:30 b|10:30 c|Two"));
}

TEST_F(ModelChangesTest, HomeSaysThatNoListCameAndTriesAgain)
{
    start({channel(1, QStringLiteral("One")), channel(2, QStringLiteral("Two"), QStringLiteral("http://t.example/"))});
    const auto accessoryOf = [&](std::size_t section) { return home().rowAt({section, 0}).accessory; };
    EXPECT_EQ(accessoryOf(0), Accessory::Activity);
    device.update();
    EXPECT_EQ(accessoryOf(0), Accessory::Retry);
    EXPECT_EQ(home().rowAt({0, 0}).subtitle.string(), QStringLiteral("No list"));
    EXPECT_EQ(accessoryOf(1), Accessory::Play) << "what can be played stays so";
    broadcast(1, words("a"));
    home().accessoryTapped({0, 0});
    EXPECT_EQ(accessoryOf(0), Accessory::Activity);
    DispatchQueue::runMain([&] { return home().numberOfRowsInSection(0) == 2; });
    EXPECT_EQ(accessoryOf(0), Accessory::Disclosure);
}

TEST_F(ModelChangesTest, ChannelIsReadAgainWhenItsPassIsOver)
{
    broadcast(1, words("a|b"));
    start({channel(1, QStringLiteral("One"))});
    device.update();
    home().selectRow({0, 0});
    const auto screen = awaited<ChannelViewController>();
    WatchedModel watched(screen);
    int changes = 0;
    watched.model.onSurroundingsChanged = [&] { ++changes; };
    EXPECT_FALSE(screen->isRefreshing());

    device.clock.advance(Seconds(86'401)); // the document is not kept for longer than a list
    silence();
    broadcast(1, words("c|d|e"));
    screen->refresh();
    EXPECT_TRUE(screen->isRefreshing());
    EXPECT_EQ(screen->rightBarButtonItems().front().kind, BarButton::Kind::Activity);
    screen->reloadChannelData();
    EXPECT_EQ(watched.model.rowCount(), 2) << "the old list stands until the new one is here";
    DispatchQueue::runMain([&] { return !screen->isRefreshing(); });
    EXPECT_EQ(watched.texts(), words("08:30 c|09:30 d|10:30 e"));
    EXPECT_EQ(changes, 2);
}

TEST_F(ModelChangesTest, HomeRollsOnWithTheClock)
{
    const auto one = channel(1, QStringLiteral("One")), two = channel(2, QStringLiteral("Two"));
    broadcast(1, words("a|b|c|d|e|f"));
    broadcast(2, words("g|h"));
    start({one, two});
    device.update();
    WatchedModel watched(tabs->visibleScreen());
    constexpr Milliseconds minute{60'000};
    int fresh = 0;
    QObject::connect(&watched.model, &QAbstractItemModel::dataChanged, [&] { ++fresh; });
    const auto passTime = [&](Milliseconds step) {
        device.clock.advance(step);
        fresh = 0;
        home().timePassed();
        DispatchQueue::runMain([&] { return fresh > 0; });
    };
    const auto progress = [&](int row) {
        return watched.model.data(watched.model.index(row), ScreenItemModel::ProgressRole).toDouble();
    };
    passTime(15 * minute);
    EXPECT_EQ(watched.texts(), words("One|08:30 a|09:30 b|10:30 c|11:30 d|Two|08:30 g|09:30 h"));
    EXPECT_EQ(progress(1), 0.25);
    passTime(75 * minute); // a and g are over
    EXPECT_EQ(watched.texts(), words("One|09:30 b|10:30 c|11:30 d|12:30 e|Two|09:30 h"));
    EXPECT_EQ(progress(1), 0.5);
    EXPECT_EQ(progress(2), -1);
    passTime(-60 * minute); // the clock was set back
    EXPECT_EQ(watched.texts(), words("One|08:30 a|09:30 b|10:30 c|11:30 d|Two|08:30 g|09:30 h"));
    passTime(24 * 60 * minute);
    EXPECT_EQ(watched.texts(), words("One|Two"));
}

/// Has one picture for every show.
struct OnePicture final : ShowPictures
{
    std::optional<ShowImage> image100AtURL(const URL&, bool) override { return std::nullopt; }
    void asyncLoadOfShowImageAtURL(const URL&, Received received) override
    {
        const auto image = std::make_shared<const int>(0);
        last = image;
        received({QStringLiteral("image://pictures/1"), 10, image});
    }
    void imageAtURL(const URL&, const QSize&, std::function<void(const std::optional<ShowImage>&)>) override {}
    std::weak_ptr<const int> last;
};

TEST_F(ModelChangesTest, PicturesGoWithTheirShows)
{
    const auto one = channel(1, QStringLiteral("One"));
    broadcast(1, words("a|b|c|d|e|f"));
    start({one});
    device.update();
    const auto pictures = std::make_shared<OnePicture>();
    device.delegate->setShowServices({&marks, pictures, nullptr});
    const Show first = home().rowAt({0, 1}).show;
    const URL url = *URL::fromText(u"http://pictures.example/a.png");
    device.delegate->listings().updateIMDBForChannel(idOf(one), *first->entry->identificator(), *first->categories, url,
                                                     Pictures{url});
    home().selectedChannelsChanged();
    DispatchQueue::runMain([&] { return home().rowAt({0, 1}).show->count() == 4; });
    home().rowDisplayed({0, 1});
    DispatchQueue::runMain([&] { return home().rowAt({0, 1}).picture.width > 0; });
    EXPECT_FALSE(pictures->last.expired());
    device.clock.advance(std::chrono::minutes(61));
    home().timePassed();
    DispatchQueue::runMain([&] { return home().rowAt({0, 1}).show != nullptr && pictures->last.expired(); });
}

/// Looks for films until it is told to end.
struct SlowDetails final : ShowDetails
{
    explicit SlowDetails(std::atomic<bool>& isAsked)
        : asked(isAsked)
    {
    }
    ~SlowDetails() override
    {
        DispatchQueue::main().async([] {});
    }
    std::optional<ShowDescription> netDescriptionFor(const std::shared_ptr<const TVEntry>&) override { return {}; }
    void findFilm(const Show&) override
    {
        asked = true;
        DispatchQueue::main().async([] {});
        while (!mayEnd)
            std::this_thread::yield();
    }
    std::atomic<bool>& asked;
    std::atomic<bool> mayEnd = false;
};

TEST_F(ModelChangesTest, WhoLooksForDetailsLastsUntilTheyAreFound)
{
    broadcast(1, words("a|b|c|d|e"));
    start({channel(1, QStringLiteral("One"))});
    device.update();
    std::atomic<bool> asked = false;
    auto details = std::make_shared<SlowDetails>(asked);
    device.delegate->setShowServices({&marks, nullptr, details});
    home().rowDisplayed({0, 1});
    DispatchQueue::runMain([&] { return asked.load(); });
    device.delegate->setShowServices({&marks, nullptr, nullptr});
    const std::weak_ptr<SlowDetails> working = std::exchange(details, nullptr);
    if (const auto used = working.lock())
        used->mayEnd = true;
    else
        ADD_FAILURE() << "still at work";
    DispatchQueue::runMain([&] { return working.expired(); });
}

TEST_F(ModelChangesTest, RefreshEndsWhenNoSourceDelivers)
{
    broadcast(1, words("a|b"));
    start({channel(1, QStringLiteral("One"))});
    device.update();
    home().selectRow({0, 0});
    const auto screen = awaited<ChannelViewController>();
    device.clock.advance(Seconds(86'401));
    device.session.answer(feed, {500, {}, {}, {}});
    screen->refresh();
    DispatchQueue::runMain([&] { return !screen->isRefreshing(); });
    EXPECT_EQ(screen->rightBarButtonItems().front().kind, BarButton::Kind::Refresh);
    EXPECT_EQ(screen->numberOfRowsInSection(0), 2U) << "the old list stays";
}

TEST_F(ModelChangesTest, AListThatRunsOutInSightIsFetchedOnceAndTheUserMayAskAgain)
{
    const auto one = channel(1, QStringLiteral("One"));
    broadcast(1, words("a|b|c|d"));
    start({one});
    device.update();
    home().selectRow({0, 0});
    const auto screen = awaited<ChannelViewController>();
    device.session.takeRequests();
    screen->timePassed();
    EXPECT_FALSE(screen->isRefreshing()) << "nothing has run out";

    device.clock.advance(std::chrono::hours(25)); // what was fetched is kept for a day
    device.session.answer(feed, {500, {}, {}, {}});
    screen->timePassed();
    EXPECT_TRUE(screen->isRefreshing());
    DispatchQueue::runMain([&] { return !screen->isRefreshing(); });
    EXPECT_FALSE(device.session.takeRequests().isEmpty());
    screen->timePassed();
    EXPECT_FALSE(screen->isRefreshing()) << "the provider has nothing, and is not asked each minute";
    test::settle();
    EXPECT_TRUE(device.session.takeRequests().isEmpty());

    silence();
    broadcast(1, words("e|f|g|h|i"));
    screen->refresh();
    DispatchQueue::runMain([&] { return !screen->isRefreshing(); });
    EXPECT_EQ(screen->numberOfRowsInSection(0), 5U);

    device.clock.advance(std::chrono::hours(25));
    device.delegate->applicationDidEnterBackground();
    screen->timePassed();
    EXPECT_FALSE(screen->isRefreshing()) << "nobody looks";
}

TEST_F(ModelChangesTest, HomeFetchesAChannelThatRunsOut)
{
    broadcast(1, words("a|b"));
    start({channel(1, QStringLiteral("One"))});
    device.update();
    device.clock.advance(std::chrono::hours(25));
    silence();
    broadcast(1, words("c|d|e|f|g"));
    home().timePassed();
    DispatchQueue::runMain([&] { return home().numberOfRowsInSection(0) == 5; });
}

TEST_F(ModelChangesTest, ListOfChannelsIsAPopoverOnAPad)
{
    const auto one = channel(1, QStringLiteral("One")), two = channel(2, QStringLiteral("Two"));
    broadcast(2, words("a"));
    start({one, two});
    device.update();
    home().list();
    EXPECT_TRUE(visible<ChannelListViewController>());
    EXPECT_FALSE(tabs->popover());
    tabs->back();
    tabs->setPad(true);
    DispatchQueue::runMain([&] { return home().hasContent(); });
    for (const bool isLeft : {true, false}) {
        home().list();
        ASSERT_TRUE(tabs->popover());
        EXPECT_TRUE(visible<RootViewController>());
        if (isLeft)
            tabs->back();
        else
            tabs->popover()->selectRow({0, 1});
        EXPECT_FALSE(tabs->popover());
    }
    EXPECT_EQ(awaited<ChannelViewController>()->title(), QStringLiteral("Two"));
    home().list();
    tabs->setPad(false);
    EXPECT_FALSE(tabs->popover()) << "a phone has none";
    EXPECT_TRUE(visible<ChannelListViewController>());
}

TEST_F(ModelChangesTest, EditorMovesAndDeletes)
{
    const std::vector<test::TestChannel> all{channel(1, QStringLiteral("One")), channel(2, QStringLiteral("Two")),
                                             channel(3, QStringLiteral("Three")), channel(4, QStringLiteral("Four"))};
    start(all);
    tabs->selectTab(4);
    const auto editor = visible<EditChannelListViewController>();
    WatchedModel watched(editor);
    editor->moveRow({0, 0}, {0, 2});
    EXPECT_EQ(watched.texts(), words("Two|Three|One|Four"));
    editor->moveRow({0, 3}, {0, 0});
    EXPECT_EQ(watched.texts(), words("Four|Two|Three|One"));
    editor->deleteRow({0, 1});
    EXPECT_EQ(watched.texts(), words("Four|Three|One"));
    const ChannelIds expected{idOf(all[3]), idOf(all[2]), idOf(all[0])};
    EXPECT_EQ(device.delegate->channels().selected(), expected);
    editor->trash();
    EXPECT_EQ(watched.model.rowCount(), 0);
    EXPECT_EQ(tabs->selectedIndex(), 4U);
    EXPECT_EQ(enabledTabs(), (std::vector<bool>{false, false, false, false, true}));
}

TEST_F(ModelChangesTest, ChooserFindsTitlesInEitherAlphabet)
{
    TVEntry::setCyrillicDevice(true);
    start({channel(1, QStringLiteral("Behar")), channel(2, QStringLiteral("Njiva Extra"))}, {});
    visible<EditChannelListViewController>()->add();
    const auto chooser = visible<AllChannelsViewController>();
    WatchedModel watched(chooser);
    // Letters that both alphabets share stay Latin where a title is converted.
    const QString behar = QString::fromUtf8("Бeхaр"), njiva = QString::fromUtf8("Њивa Eктрa");
    EXPECT_EQ(watched.texts(), (QStringList{behar, njiva}));
    EXPECT_EQ(chooser->titleForHeaderInSection(1), QString::fromUtf8("Њ"));
    for (const char* typed : {"behar", "Бехар", "Бeхaр"}) {
        chooser->setSearchText(QString::fromUtf8(typed));
        EXPECT_EQ(watched.texts(), QStringList{behar}) << typed;
    }
    for (const char* typed : {"njiva", "њива", "EXTRA", "ектра", "Njiva Extra"}) {
        chooser->setSearchText(QString::fromUtf8(typed));
        EXPECT_EQ(watched.texts(), QStringList{njiva}) << typed;
    }
    TVEntry::setCyrillicDevice(false);
}

TEST_F(ModelChangesTest, EditorTakesADeletionBackForTenSeconds)
{
    const std::vector<test::TestChannel> all{channel(1, QStringLiteral("One")), channel(2, QStringLiteral("Two")),
                                             channel(3, QStringLiteral("Three"))};
    start(all);
    tabs->selectTab(4);
    const auto editor = visible<EditChannelListViewController>();
    WatchedModel watched(editor);
    ManualTimer timer;
    EXPECT_EQ(editor->undoText(), QString());
    editor->deleteRow({0, 1});
    EXPECT_EQ(editor->undoText(), QStringLiteral("Two removed"));
    timer.advance(Seconds(9));
    editor->trash();
    timer.advance(Seconds(9)); // the first deletion's time is over, not the second's
    test::settle();
    EXPECT_EQ(editor->undoText(), QStringLiteral("All channels removed"));
    editor->undo();
    EXPECT_EQ(watched.texts(), words("One|Three"));
    EXPECT_EQ(device.delegate->channels().selected(), (ChannelIds{idOf(all[0]), idOf(all[2])}));
    EXPECT_EQ(enabledTabs(), std::vector<bool>(5, true));
    editor->undo();
    EXPECT_EQ(watched.texts(), words("One|Three")) << "once";

    editor->deleteRow({0, 0});
    timer.advance(Seconds(10));
    test::settle();
    EXPECT_EQ(editor->undoText(), QString());
    editor->undo();
    EXPECT_EQ(watched.texts(), words("Three"));
}

TEST(ChannelSearch, KnowsTheNamesOfLanguages)
{
    const auto offered = [](const char* title, const char* language) {
        OfferedChannel channel;
        channel.face.catalogueTitle = QString::fromUtf8(title);
        channel.language = QString::fromUtf8(language);
        return channel;
    };
    const auto finds = [](const char* pattern, const OfferedChannel& channel) {
        return ChannelSearch(QString::fromUtf8(pattern)).finds(channel);
    };
    const OfferedChannel serbian = offered("Шљива Џез", "sr"), english = offered("Plum Channel", "en/fr");
    for (const char* pattern : {"", "шљива", "ŠLJIVA", "dzez", "sr", "serb", "srpski", "српски"})
        EXPECT_TRUE(finds(pattern, serbian)) << pattern;
    for (const char* pattern : {"plum", "пЛум", "french", "français", "engl"})
        EXPECT_TRUE(finds(pattern, english)) << pattern;
    EXPECT_FALSE(finds("serb", english));
    EXPECT_FALSE(finds("french", serbian));
    EXPECT_FALSE(finds("zzz", offered("", ""))) << "neither title nor language";
}

TEST_F(ModelChangesTest, ChooserTogglesAndSearches)
{
    const auto one = channel(1, QStringLiteral("One")), two = channel(2, QStringLiteral("Two"));
    broadcast(1, words("a"));
    start({one, two}, {});
    EXPECT_EQ(tabs->selectedIndex(), 4U) << "without channels there is nothing to see but how to choose them";
    EXPECT_FALSE(enabledTabs()[0]);
    visible<EditChannelListViewController>()->add();
    const auto chooser = visible<AllChannelsViewController>();
    WatchedModel watched(chooser);
    chooser->setSearchText(QStringLiteral("ON"));
    EXPECT_EQ(watched.texts(), words("One"));
    chooser->selectRow({0, 0});
    EXPECT_EQ(watched.model.data(watched.model.index(0), ScreenItemModel::AccessoryRole), QStringLiteral("checkmark"));
    EXPECT_EQ(enabledTabs(), std::vector<bool>(5, true));
    chooser->setSearchText({});
    EXPECT_EQ(watched.texts(), words("One|Two"));

    tabs->selectTab(0);
    DispatchQueue::runMain([&] { return !home().sections().empty() && !home().sections()[0].entries.empty(); });

    tabs->selectTab(4);
    chooser->selectRow({0, 0});
    EXPECT_TRUE(device.delegate->channels().selected().empty());
    EXPECT_TRUE(device.titles(one).isEmpty()) << "its shows go with the channel";
    EXPECT_FALSE(enabledTabs()[0]);
    EXPECT_EQ(watched.model.data(watched.model.index(0), ScreenItemModel::AccessoryRole), QStringLiteral("none"));
}

} // namespace
} // namespace vidora
