// Alarms in a calendar on a server that others write to at the same time, exchanged in the background as the program
// does it.
#include "alarms/AlarmEngine.h"
#include "calendar/CalDAVEventStore.h"
#include "calendar/CalDAVServer.h"
#include "calendar/CombinedEventStore.h"
#include "platform/NetworkURLSession.h"
#include "store/StoreFixture.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

using namespace test;
using Fault = FaultySession::Fault;

const QString news = QStringLiteral("Dnevnik");
const QString film = QStringLiteral("Film");
const QString scheme = QStringLiteral("vidora");
const ObjectId channel = channelId(1);

/// A device of one user: favourites, alarms, lists, and an account.
class Phone final : private AlarmChannels, private AlarmScreens
{
public:
    Phone(const CalDAVServer& server, URLSession& session, FixedClock& clock, const char* mark)
        : m_clock(clock)
        , m_session(session)
        , m_address(server.address())
        , m_mark(QString::fromLatin1(mark))
    {
        m_device.selection = {channel};
        open();
        for (const Calendar& calendar : calendars->calendarsForEntityType(EntityType::Event)) {
            if (calendar.title == QStringLiteral("TV"))
                engine->saveCalendar(calendar);
        }
        settle();
    }
    ~Phone() override { close(); }

    /// As after a start of the process.
    void restart()
    {
        close();
        open();
    }
    /// Until nothing is going on, here and with the server.
    void settle()
    {
        bool isIdle = false;
        while (!isIdle) {
            bool isOver = false;
            m_listings->onAirShowsWithQueue(DispatchQueue::main(), [&](auto) {
                engine->whenIdle([&] { store->whenExchanged([&] { isOver = true; }); });
            });
            DispatchQueue::runMain([&] { return isOver; });
            isIdle = engine->isIdle();
        }
    }
    void update(const std::vector<TestShow>& list)
    {
        m_listings->storeList(channel, listOf(channel, list));
        m_listings->saveAllShows();
        m_listings->listingsStored();
    }
    void follow(const QString& title, int minutes)
    {
        engine->addFavorite(title);
        engine->setAlarmForTitle(title, minutes, std::nullopt, true);
    }

    std::optional<TVShows> shows;
    std::shared_ptr<CalDAVEventStore> store;
    std::optional<CombinedEventStore> calendars;
    std::unique_ptr<AlarmEngine> engine;

private:
    void open()
    {
        store = std::make_shared<CalDAVEventStore>(
            m_folder.filePath(QStringLiteral("mirror")), QStringLiteral("Work"),
            CalDAVAccount{m_address, QStringLiteral("ana"), QStringLiteral("s3cret")}, m_session, m_clock, m_random,
            m_sleeper, FileLayer::system(), CalDAVEventStore::Exchange::InBackground);
        if (std::exchange(m_isFirst, false)) {
            EXPECT_FALSE(store->refresh());
        }
        calendars.emplace();
        calendars->addSource(QStringLiteral("account"), store);
        shows.emplace(m_folder.path(), m_keyValueStore);
        m_alarms.emplace(m_folder.path());
        AlarmSurroundings surroundings{m_clock,    *shows,          *m_alarms, m_silentHours, m_counters, *calendars,
                                       m_defaults, m_keyValueStore, m_device,  *this,         *this,      scheme};
        surroundings.deviceMark = m_mark;
        engine = std::make_unique<AlarmEngine>(surroundings);
        m_listings = std::make_unique<TVListings>(
            TVListings::Surroundings{m_clock, m_folder.path(), m_device, m_icons, *engine, m_device, scheme});
        engine->setListings(*m_listings);
    }
    void close()
    {
        settle();
        m_listings->commitFiles();
        m_listings.reset();
        engine.reset();
        calendars.reset();
        store.reset();
    }

    bool anyIsSelected() const override { return true; }
    std::optional<QString> titleOfChannel(const ObjectId&) const override { return QStringLiteral("One"); }
    std::optional<ObjectId> channelWithTitle(const QString&) const override { return channel; }
    bool isFresh(const ObjectId&) const override { return true; }
    void favoritesUpdated() override {}
    void notificationsSynched() override {}
    void updateBadge() override {}

    FixedClock& m_clock;
    URLSession& m_session;
    const QString m_address, m_mark;
    ScriptedRandom m_random = ScriptedRandom::seeded(7);
    bool m_isFirst = true;
    ScriptedSleeper m_sleeper;
    QTemporaryDir m_folder;
    StoreDevice m_device;
    TVStationIcons m_icons{m_folder.path()};
    KeyValueStore m_keyValueStore{m_folder.filePath(QStringLiteral("cloud.sqlite"))};
    UserDefaults m_defaults{m_folder.filePath(QStringLiteral("settings.json"))};
    SilentHours m_silentHours{m_keyValueStore};
    ShowCounters m_counters{nullptr};
    std::optional<Alarms> m_alarms;
    std::unique_ptr<TVListings> m_listings;
};

class AlarmHistory : public ::testing::Test
{
protected:
    AlarmHistory() { qputenv("no_proxy", "127.0.0.1"); }
    std::map<QString, QByteArray> present() const { return filesOf(server.calendar("tv")); }
    QString pathOf(const QString& name) const { return server.calendar("tv") + QLatin1Char('/') + name; }
    static bool isOurs(const QByteArray& bytes)
    {
        const auto read = ICalendarEvent::read(bytes);
        return read && read->event.url && read->event.url->scheme() == scheme;
    }
    static std::string text(Instant start, const QString& title)
    {
        return QString(isoText(start) + QLatin1Char(' ') + title).toStdString();
    }
    /// Starts and titles of our coming events on the server.
    std::multiset<std::string> events() const
    {
        std::multiset<std::string> result;
        for (const auto& [name, bytes] : present()) {
            const auto read = ICalendarEvent::read(bytes);
            if (isOurs(bytes) && read->event.startDate > clock.now())
                result.insert(text(read->event.startDate, read->event.title));
        }
        return result;
    }
    std::string oursAsText() const
    {
        QByteArray result;
        for (const auto& [name, bytes] : present())
            result += isOurs(bytes) ? name.toUtf8() + '\n' + bytes : QByteArray();
        return result.toStdString();
    }
    std::multiset<std::string> broadcasts(const std::vector<TestShow>& list, const std::set<QString>& titles) const
    {
        std::multiset<std::string> result;
        for (const TestShow& show : list) {
            const Instant start = testNow + std::chrono::minutes(show.from);
            if (titles.contains(show.title) && start > clock.now())
                result.insert(text(start, show.title));
        }
        return result;
    }
    /// Has every device look at the server and at the provider's last word.
    void bringTogether(const std::vector<Phone*>& phones, const std::vector<TestShow>& list)
    {
        for (Phone* phone : phones)
            EXPECT_FALSE(phone->store->refresh()) << "what was set aside goes out once more";
        for (int round = 0; round < 3; ++round) {
            for (Phone* phone : phones) {
                clock.advance(Seconds(90));
                phone->update(list);
                phone->settle();
            }
        }
    }

    CalDAVServer server;
    NetworkURLSession network{32 * 1024 * 1024};
    FaultySession session{network};
    FixedClock clock{testNow};
};

/// One who writes to the same calendar: to events of ours and to events of their own.
class Neighbour
{
public:
    Neighbour(QString folder, Random& dice)
        : m_folder(std::move(folder))
        , m_dice(dice)
    {
    }
    void act()
    {
        const QString name = m_folder + QStringLiteral("/n%1.ics").arg(m_dice.uniform(6));
        const QString ours = anyOfOurs();
        const QByteArray remark = "X-REMARK:" + QByteArray::number(m_dice.uniform(1000)) + "\r\nEND:VEVENT";
        switch (m_dice.uniform(5)) {
        case 0:
            foreign[name] = foreignEvent(QFileInfo(name).baseName().toUtf8(),
                                         "20261122T" + QByteArray::number(10 + m_dice.uniform(13)) + "0000Z");
            writeRaw(name, foreign[name]);
            break;
        case 1:
            foreign.erase(name);
            QFile::remove(name);
            break;
        case 2:
            QFile::remove(ours);
            break;
        default:
            if (!ours.isEmpty())
                writeRaw(ours, readRaw(ours).replace("END:VEVENT", remark));
        }
    }
    std::map<QString, QByteArray> foreign; ///< what must be there in the end, by path

private:
    QString anyOfOurs() const
    {
        QStringList names;
        for (const auto& [name, bytes] : filesOf(m_folder)) {
            const QString path = m_folder + QLatin1Char('/') + name;
            if (!foreign.contains(path))
                names << path;
        }
        return names.isEmpty() ? QString() : names[m_dice.uniform(static_cast<std::uint32_t>(names.size()))];
    }

    const QString m_folder;
    Random& m_dice;
};

/// A provider that moves, drops and adds broadcasts.
class Provider
{
public:
    explicit Provider(Random& dice)
        : m_dice(dice)
    {
        for (int i = 0; i < 4; ++i) {
            put(news, 600 + 600 * i);
            put(film, 900 + 600 * i);
        }
    }
    void act()
    {
        const auto chosen = std::next(m_starts.begin(), m_dice.uniform(static_cast<std::uint32_t>(m_starts.size())));
        const auto [start, title] = *chosen;
        if (m_dice.uniform(4) == 0 && m_starts.size() > 3)
            m_starts.erase(chosen);
        else if (m_dice.uniform(3) == 0)
            put(title, 300 + 5 * static_cast<int>(m_dice.uniform(600)));
        else if (put(title, start + 5 * (static_cast<int>(m_dice.uniform(40)) - 20)))
            m_starts.erase(start);
    }
    std::vector<TestShow> list() const
    {
        std::vector<TestShow> result;
        for (const auto& [start, title] : m_starts)
            result.push_back({title, start, start + 5});
        return result;
    }

private:
    bool put(const QString& title, int start) { return m_starts.emplace(start, title).second; }

    Random& m_dice;
    std::map<int, QString> m_starts;
};

int histories()
{
    const int asked = qEnvironmentVariableIntValue("VIDORA_ALARM_HISTORIES");
    return asked > 0 ? asked : 50;
}

} // namespace

TEST_F(AlarmHistory, EveryBroadcastHasOneAlarmAtItsTimeWhoeverElseWrites)
{
    const int first = qEnvironmentVariableIntValue("VIDORA_FIRST_HISTORY");
    for (int seed = first; seed < first + histories() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        ScriptedRandom dice = ScriptedRandom::seeded(static_cast<unsigned>(seed));
        Neighbour neighbour(server.calendar("tv"), dice);
        Provider provider(dice);
        Phone one(server, session, clock, "1"), two(server, session, clock, "2");
        const std::vector<Phone*> phones{&one, &two};
        for (Phone* phone : phones) {
            phone->update(provider.list());
            phone->follow(news, 10);
            phone->settle();
        }
        two.follow(film, 20);
        for (int step = 0; step < 6; ++step) {
            Phone& phone = *phones[dice.uniform(2)];
            neighbour.act();
            switch (dice.uniform(7)) {
            case 0:
                for (const int minutes = 5 * static_cast<int>(dice.uniform(4)); Phone * each : phones)
                    each->follow(news, minutes);
                break;
            case 1:
                two.engine->removeFavorite(film);
                break;
            case 2:
                two.follow(film, 15);
                break;
            case 3:
                phone.restart();
                break;
            case 4:
                for (Phone* each : phones)
                    each->settle();
                session.fault = std::vector{Fault::Silence, Fault::LostReply, Fault::Status}[dice.uniform(3)];
                session.status = std::vector{403, 409, 412, 429, 500}[dice.uniform(5)];
                session.method = dice.uniform(2) ? "PUT" : "";
                phone.update(provider.list());
                phone.settle();
                session.fault = Fault::None;
                break;
            default:
                provider.act();
                phone.update(provider.list());
            }
            clock.advance(Seconds(45));
            if (dice.uniform(2) == 0)
                phone.settle();
            neighbour.act();
        }
        for (Phone* phone : phones)
            phone->settle();
        bringTogether(phones, provider.list());
        std::set<QString> titles{news};
        if (two.shows->scheduleTimeForFavoriteNamed(film).value_or(-1) >= 0)
            titles.insert(film);
        EXPECT_EQ(events(), broadcasts(provider.list(), titles)) << oursAsText();
        auto files = present();
        for (const auto& [path, bytes] : neighbour.foreign)
            EXPECT_EQ(files[QFileInfo(path).fileName()], bytes) << path.toStdString();
        EXPECT_EQ(one.store->unsentChanges() + two.store->unsentChanges(), 0);
        for (const auto& [name, bytes] : files)
            QFile::remove(pathOf(name));
        clock.set(testNow);
    }
}

} // namespace vidora
