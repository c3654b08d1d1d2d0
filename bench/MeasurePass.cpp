// A pass over 250, 500 and 1,000 channels, each with a document of 500 shows of its own, without and with 30 favourites
// and the 560 events that they come to; as rows of a table of docs/PERFORMANCE.md. While it runs, the main thread asks
// for the list of a channel and for a category, again and again. At last a pass over 1,000 channels is ended in its
// midst. The documents come from memory: the network takes no part.
#include "bench/GuideTexts.h"
#include "calendar/FolderEventStore.h"
#include "core/PropertyList.h"
#include "core/VidoraAppDelegate.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cstdio>
#include <ctime>

namespace vidora::bench {
namespace {

constexpr int showsOfAChannel = 500, favorites = 30, events = 560;
const Instant now = *instantFromIsoText(u"2026-11-22T12:00:00Z");

QString sourceOf(int channel)
{
    return QStringLiteral("0%1").arg(channel, 6, 10, QLatin1Char('0'));
}

ObjectId idOf(int channel)
{
    return ObjectId::initWithHex(QStringLiteral("58f4ded60befe78c%1").arg(channel, 8, 16, QLatin1Char('0')));
}

QString favoriteTitle(int number)
{
    return QStringLiteral("Favourite %1").arg(number);
}

/// A provider with a document for each channel. The shows are the same ones, the favourites' apart.
class Provider final : public URLSession
{
public:
    explicit Provider(int channels)
        : m_channels(channels)
    {
        GuideTexts texts(7);
        for (int i = 0; i < showsOfAChannel; ++i) {
            const GuideTexts::Show show = texts.show(700);
            m_shows.push_back(QStringLiteral("<title>%1</title><desc>%2</desc><category>%3</category></programme>")
                                  .arg(show.title, show.description, show.details)
                                  .toUtf8());
        }
    }

    URLResult perform(const URLRequest& request) override
    {
        URLResponse response;
        response.statusCode = 200;
        response.headerFields.set("Content-Type", "text/xml; charset=utf-8");
        response.headerFields.set("Cache-Control", "no-store");
        return {document(request.url.text().section(QLatin1Char('/'), -2, -2).toInt()), response, std::nullopt};
    }

private:
    QByteArray document(int channel) const
    {
        QByteArray text = "<tv>";
        for (int i = 0; i < showsOfAChannel; ++i) {
            const auto time = [&](int half) {
                return isoText(now + std::chrono::minutes(30 * half)).remove(QRegularExpression(QStringLiteral("\\D")));
            };
            text += QStringLiteral("<programme channel=\"%1\" start=\"%2 +0000\" stop=\"%3 +0000\">")
                        .arg(sourceOf(channel), time(i).left(14), time(i + 1).left(14))
                        .toUtf8();
            const int favorite = favoriteAt(channel, i);
            text += favorite < 0 ? m_shows[std::size_t(i)]
                                 : "<title>" + favoriteTitle(favorite).toUtf8() + "</title></programme>";
        }
        return text + "</tv>";
    }
    /// The events are spread over all channels: some broadcasts of favourites on each, at some distance from now.
    int favoriteAt(int channel, int show) const
    {
        const int first = channel * events / m_channels, last = (channel + 1) * events / m_channels;
        const int event = first + show - 40;
        return show >= 40 && event < last ? event % favorites : -1;
    }

    const int m_channels;
    std::vector<QByteArray> m_shows;
};

struct NoSleep final : Sleeper
{
    void sleep(Milliseconds) override {}
};

/// A home with so many channels chosen.
class Home
{
public:
    Home(int channels, bool withFavorites)
        : m_provider(channels)
    {
        m_folders.make();
        QVariantList records;
        for (int channel = 0; channel < channels; ++channel)
            records << QVariantMap{{QStringLiteral("Location"), idOf(channel).hex()},
                                   {QStringLiteral("Title"), QStringLiteral("Channel %1").arg(channel)},
                                   {QStringLiteral("Icon"), QStringLiteral("Other/icon.svg")},
                                   {QStringLiteral("Language"), QStringLiteral("sr")},
                                   {QStringLiteral("Location1"), sourceOf(channel)}};
        write(QStringLiteral("icon.svg"), "<svg/>");
        write(QStringLiteral("Data.plist"), writePropertyList(QVariantMap{{QStringLiteral("Channels"), records}}));
        m_delegate = std::make_unique<VidoraAppDelegate>(Environment{
            m_folders, m_folder.filePath(QStringLiteral("Data.plist")), m_folder.path(),
            Endpoints::fromJson(R"({"weekly": {"host": "weekly.example", "word": "week"}})", {}),
            QStringLiteral("vidora"), m_clock, m_random, m_sleeper, m_provider, false, false, &m_calendars});
        m_delegate->applicationDidFinishLaunching();
        settle();
        ChannelIds chosen;
        for (int channel = 0; channel < channels; ++channel)
            chosen.push_back(idOf(channel));
        m_delegate->channels().setSelected(chosen);
        for (int i = 0; withFavorites && i < favorites; ++i) {
            m_delegate->alarmEngine().addFavorite(favoriteTitle(i));
            m_delegate->alarmEngine().setAlarmForTitle(favoriteTitle(i), 10, std::nullopt, false);
        }
        settleAlarms();
    }

    VidoraAppDelegate& delegate() { return *m_delegate; }
    void settleAlarms()
    {
        bool isIdle = false;
        DispatchQueue::main().async([&] { m_delegate->alarmEngine().whenIdle([&] { isIdle = true; }); });
        DispatchQueue::runMain([&] { return isIdle; });
    }
    /// As a process ends.
    void end()
    {
        m_delegate->endUpdates();
        settleAlarms();
        m_delegate->applicationDidEnterBackground();
        m_delegate->applicationWillTerminate();
        m_delegate.reset();
    }

private:
    static void settle()
    {
        bool isSettled = false;
        DispatchQueue::main().async([&] { isSettled = true; });
        DispatchQueue::runMain([&] { return isSettled; });
    }
    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }

    QTemporaryDir m_folder;
    const StandardFolders m_folders = StandardFolders::under(m_folder.path());
    FixedClock m_clock{now};
    SystemRandom m_random;
    NoSleep m_sleeper;
    Provider m_provider;
    FolderEventStore m_calendars{m_folders.documents + QStringLiteral("/calendars"), QStringLiteral("This device"),
                                 m_clock, m_random};
    std::unique_ptr<VidoraAppDelegate> m_delegate;
};

/// Asks the store one question after the other for as long as it lives.
class Questioner
{
public:
    explicit Questioner(TVListings& listings)
        : m_listings(listings)
    {
        askForAChannel();
    }
    std::vector<qint64> channel, category; ///< milliseconds to each answer

private:
    void askForAChannel()
    {
        m_since.start();
        m_listings.cachedListForChannel(idOf(3), QualityOfService::UserInitiated,
                                        m_blocks.guarded([this](const SharedShowList&) {
                                            channel.push_back(m_since.elapsed());
                                            m_blocks.after(pause, [this] { askForACategory(); });
                                        }));
    }
    void askForACategory()
    {
        m_since.start();
        m_listings.showsWithCategory(category::film, QualityOfService::UserInitiated,
                                     m_blocks.guarded([this](const CompoundListing&) {
                                         category.push_back(m_since.elapsed());
                                         m_blocks.after(pause, [this] { askForAChannel(); });
                                     }));
    }

    static constexpr Milliseconds pause{200};
    TVListings& m_listings;
    QElapsedTimer m_since;
    BlockOwner m_blocks;
};

class Pass final : public UpdateObserver
{
public:
    explicit Pass(Home& home)
        : m_home(home)
    {
        m_home.delegate().setUpdateObserver(this);
        m_home.delegate().checkAndUpdateAllChannels();
    }
    ~Pass() override { m_home.delegate().setUpdateObserver(nullptr); }
    void runUntil(std::size_t channels)
    {
        DispatchQueue::runMain([&] { return m_delivered >= channels || m_isOver; });
    }
    void runToItsEnd()
    {
        DispatchQueue::runMain([&] { return m_isOver; });
        m_home.settleAlarms();
    }
    std::size_t shows() const { return m_shows; }

private:
    void passStarted(std::size_t) override {}
    void fetching(const std::vector<ObjectId>&) override {}
    void delivered(const std::unordered_map<ObjectId, ShowList>& lists) override { m_delivered += lists.size(); }
    void passEnded(std::size_t shows, const std::vector<ObjectId>&) override
    {
        m_shows = shows;
        m_isOver = true;
    }

    Home& m_home;
    std::size_t m_delivered = 0, m_shows = 0;
    bool m_isOver = false;
};

QString milliseconds(std::vector<qint64> answers)
{
    std::sort(answers.begin(), answers.end());
    return answers.empty() ? QStringLiteral("-")
                           : QStringLiteral("%1, %2").arg(answers[answers.size() / 2]).arg(answers.back());
}

void measure(int channels, bool withFavorites)
{
    Home home(channels, withFavorites);
    QElapsedTimer wall;
    const std::clock_t processor = std::clock();
    wall.start();
    Pass pass(home);
    const Questioner questioner(home.delegate().listings());
    pass.runToItsEnd();
    std::printf("| %d | %d, %d | %.1f | %.1f | %s | %s |\n", channels, withFavorites ? favorites : 0,
                home.delegate().alarmEngine().eventCount(), double(wall.elapsed()) / channels,
                1e3 * double(std::clock() - processor) / CLOCKS_PER_SEC / channels,
                qPrintable(milliseconds(questioner.channel)), qPrintable(milliseconds(questioner.category)));
    std::fflush(stdout);
    if (pass.shows() != std::size_t(channels) * showsOfAChannel)
        std::printf("%zu shows came in place of %d\n", pass.shows(), channels * showsOfAChannel);
}

void measureEnd(int channels)
{
    Home home(channels, true);
    QElapsedTimer sinceEnd;
    {
        Pass pass(home);
        pass.runUntil(std::size_t(channels) / 2);
    }
    sinceEnd.start();
    home.end();
    std::printf("\nEnd in the midst of a pass over %d channels: %lld ms\n", channels, sinceEnd.elapsed());
}

} // namespace
} // namespace vidora::bench

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    std::puts("| channels | favourites, events | ms a channel | processor, ms a channel | list of a channel: median, "
              "longest, ms | a category |");
    std::puts("|---|---|---|---|---|---|");
    for (const bool withFavorites : {false, true}) {
        for (const int channels : {250, 500, 1000})
            vidora::bench::measure(channels, withFavorites);
    }
    vidora::bench::measureEnd(1000);
}
