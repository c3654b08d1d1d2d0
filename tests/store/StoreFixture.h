#pragma once

#include "store/TVListings.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace vidora {

const Instant testNow = *instantFromIsoText(u"2026-11-22T19:00:00Z");

inline ObjectId channelId(int number)
{
    return ObjectId::initWithHex(QStringLiteral("0000000000000000%1").arg(number, 8, 16, QLatin1Char('0')));
}

/// A show that runs from one minute to another, counted from testNow; without an end where `to` is empty.
struct TestShow
{
    QString title;
    int from;
    std::optional<int> to;
    std::optional<std::uint32_t> categories = 0;

    ShowDraft draft(const ObjectId& channel) const
    {
        ShowDraft draft;
        draft.entry->setChannel(channel);
        draft.entry->setIdentificator(title);
        draft.entry->setDateTime(testNow + std::chrono::minutes(from));
        if (to)
            draft.entry->setEndDateTime(testNow + std::chrono::minutes(*to));
        draft.categories = categories;
        return draft;
    }
    Show show(const ObjectId& channel) const { return draft(channel).publish(); }
};

inline SharedShowList listOf(const ObjectId& channel, const std::vector<TestShow>& shows)
{
    auto list = std::make_shared<ShowList>();
    for (const TestShow& show : shows)
        list->push_back(show.show(channel));
    return list;
}

inline QStringList titles(const ShowList& list)
{
    QStringList result;
    for (const Show& show : list)
        result.append(show->entry->identificator().value_or(QStringLiteral("-")));
    return result;
}

/// A device around the store: everything that the store asks for, and what it did to it.
class StoreDevice : public StoreChannels, public FollowedShows, public ApplicationLife
{
public:
    std::vector<ObjectId> selected() const override { return selection; }
    void unload(const ObjectId& channel) override
    {
        const std::lock_guard lock(mutex);
        unloaded.insert(channel);
    }
    void setTimeLoaded(const ObjectId& channel, Instant time) override
    {
        const std::lock_guard lock(mutex);
        loaded[channel] = time;
    }
    std::optional<QString> iconName(const ObjectId& channel) const override
    {
        const auto icon = iconNames.find(channel);
        return icon == iconNames.end() ? std::nullopt : std::optional(icon->second);
    }
    int showCount() const override { return 4; }
    QSet<QString> lowercasedFavoriteNames() const override { return {}; }
    void setSynchronized(bool isSynchronized) override { synchronized = isSynchronized; }
    void syncAlarms() override { ++alarmSyncs; }
    bool isInBackground() const override { return inBackground; }
    void synchronizeSettings() override { ++settingsSyncs; }
    Task beginBackgroundTask(std::function<void()>) override
    {
        const std::lock_guard lock(mutex);
        tasks.insert(++lastTask);
        return lastTask;
    }
    void endBackgroundTask(Task task) override
    {
        const std::lock_guard lock(mutex);
        EXPECT_EQ(tasks.erase(task), 1u);
        if (tasks.empty())
            DispatchQueue::main().async([] {}); // wakes the loop that waits for this
    }

    std::vector<ObjectId> selection;
    std::map<ObjectId, QString> iconNames;
    std::mutex mutex;
    std::set<ObjectId> unloaded;
    std::map<ObjectId, Instant> loaded;
    std::set<Task> tasks;
    Task lastTask = 0;
    std::atomic<bool> synchronized = true, inBackground = false;
    std::atomic<int> alarmSyncs = 0, settingsSyncs = 0;
};

class StoreTest : public ::testing::Test
{
protected:
    /// A store over the files of the folder, as after a start of the process.
    void start(FileLayer& files = FileLayer::system())
    {
        listings.reset();
        listings = std::make_unique<TVListings>(
            TVListings::Surroundings{clock, folder.path(), device, icons, device, device, QStringLiteral("vidora"),
                                     files},
            [this](std::shared_ptr<const ListingsDictionary> lists) {
                const auto every = [](const ShowTable&, ShowTable::Row) { return true; };
                refreshed.push_back(std::make_shared<const ShowList>(lists->merged().collect(SIZE_MAX, every)));
            });
    }
    void store(const ObjectId& channel, const std::vector<TestShow>& shows)
    {
        listings->storeList(channel, listOf(channel, shows));
        listings->addToSaveSchedule(channel);
        listings->saveAllShows();
    }
    void commit()
    {
        listings->commitFiles();
        DispatchQueue::runMain([this] {
            const std::lock_guard lock(device.mutex);
            return device.tasks.empty();
        });
    }
    QString file(const ObjectId& channel) const
    {
        return folder.filePath(TVListings::listingsFileFromChannelIdentificator(channel));
    }

    /// What a query answers on the main queue.
    template<typename Result>
    static Result answer(const std::function<void(std::function<void(Result)>)>& ask)
    {
        auto result = std::make_shared<std::optional<Result>>();
        ask([result](Result given) { *result = std::move(given); });
        DispatchQueue::runMain([&] { return result->has_value(); });
        return std::move(**result);
    }
    SharedShowList cached(const ObjectId& channel)
    {
        return answer<SharedShowList>([&](auto block) {
            listings->cachedListForChannel(channel, QualityOfService::UserInitiated, std::move(block));
        });
    }
    CompoundListing compound(const std::function<void(TVListings::CompoundBlock)>& ask)
    {
        return answer<CompoundListing>([&](auto block) { ask(std::move(block)); });
    }
    /// The titles of a compound listing, day by day.
    static QStringList titlesOf(const CompoundListing& listing)
    {
        QStringList result;
        for (const QString& date : listing.dates)
            result += titles(listing.sections.at(date));
        return result;
    }
    QStringList all()
    {
        return titlesOf(compound([&](auto block) {
            listings->allShowsWithCategory(category::all, QualityOfService::UserInitiated, std::move(block));
        }));
    }
    /// Gives the channels icons, so that compound listings show them.
    void giveIcons(const std::vector<ObjectId>& channels)
    {
        QFile icon(folder.filePath(QStringLiteral("icon.png")));
        ASSERT_TRUE(icon.open(QIODevice::WriteOnly));
        for (const ObjectId& channel : channels)
            device.iconNames[channel] = QStringLiteral("icon.png");
    }

    FixedClock clock{testNow};
    QTemporaryDir folder;
    StoreDevice device;
    TVStationIcons icons{folder.path()};
    std::vector<SharedShowList> refreshed;
    std::unique_ptr<TVListings> listings;
};

} // namespace vidora
