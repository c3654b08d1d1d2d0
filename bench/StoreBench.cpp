// The store over 300 lists of 420 shows: loading and writing the files next to a bare pass of a stream reader and
// writer (CBOR) over the same shows in one thread, and how long queries over all 126,000 shows take.
#include "bench/GuideTexts.h"
#include "bench/Ratio.h"
#include "store/MergedShows.h"
#include "store/ShowArchive.h"
#include "store/TVListings.h"

#include <QCborStreamReader>
#include <QCborStreamWriter>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <tuple>

namespace vidora::bench {
namespace {

constexpr int channels = 300, showsPerChannel = 420, unitsPerShow = 700;
const Instant now = instantFromUnixMilliseconds(1'795'374'000'000);

ObjectId channelId(int channel)
{
    return ObjectId::initWithHex(QStringLiteral("58f4ded60befe78c%1").arg(channel, 8, 16, QLatin1Char('0')));
}

std::vector<SharedShowList> makeLists()
{
    GuideTexts guide(5);
    std::vector<SharedShowList> lists;
    for (int channel = 0; channel < channels; ++channel) {
        auto list = std::make_shared<ShowList>();
        for (int i = 0; i < showsPerChannel; ++i) {
            const GuideTexts::Show texts = guide.show(unitsPerShow);
            ShowDraft draft;
            draft.entry->setChannel(channelId(channel));
            draft.entry->setSourceId(QStringLiteral("tvpc.channel%1").arg(channel));
            draft.entry->setIdentificator(texts.title);
            draft.entry->setInstantDetails1(texts.details);
            draft.entry->setLanguage(QStringLiteral("sr"));
            draft.entry->setDateTime(now + std::chrono::minutes(48 * i + channel % 48));
            draft.entry->setEndDateTime(now + std::chrono::minutes(48 * (i + 1) + channel % 48));
            draft.categories = guide.below(0x20000);
            draft.extra = std::make_shared<TVEntrySupplementalData>();
            draft.extra->description = AttributedText(texts.description);
            list->push_back(std::move(draft).publish());
        }
        lists.push_back(std::move(list));
    }
    return lists;
}

/// A device with all channels selected and an icon for each.
class Device : public StoreChannels, public FollowedShows, public ApplicationLife
{
public:
    Device()
    {
        QFile icon(folder.filePath(QStringLiteral("icon.png")));
        if (!icon.open(QIODevice::WriteOnly))
            qFatal("no icon");
        const auto lists = makeLists();
        for (int channel = 0; channel < channels; ++channel)
            ShowArchive::archiveRootObject(*lists[std::size_t(channel)], file(channel));
    }
    QString file(int channel) const
    {
        return folder.filePath(TVListings::listingsFileFromChannelIdentificator(channelId(channel)));
    }
    std::vector<ObjectId> selected() const override
    {
        std::vector<ObjectId> ids;
        for (int channel = 0; channel < channels; ++channel)
            ids.push_back(channelId(channel));
        return ids;
    }
    void unload(const ObjectId&) override {}
    void setTimeLoaded(const ObjectId&, Instant) override {}
    std::optional<QString> iconName(const ObjectId&) const override { return QStringLiteral("icon.png"); }
    int showCount() const override { return 4; }
    QSet<QString> lowercasedFavoriteNames() const override { return {}; }
    void setSynchronized(bool) override {}
    void syncAlarms() override {}
    bool isInBackground() const override { return false; }
    void synchronizeSettings() override {}
    Task beginBackgroundTask(std::function<void()>) override { return 1; }
    void endBackgroundTask(Task) override {}

    QTemporaryDir folder;
};

Device& device()
{
    static Device device;
    return device;
}

/// The shows as maps by key, as a stream writer makes them.
QByteArray bareArchive(const ShowList& list)
{
    QByteArray bytes;
    bytes.reserve(qsizetype(list.size()) * 1536);
    QCborStreamWriter writer(&bytes);
    const auto write = [&writer](const char* key, const std::optional<QString>& text) {
        writer.append(QLatin1String(key));
        writer.append(QStringView(*text));
    };
    writer.startArray(list.size());
    for (const Show& show : list) {
        const TVEntry& entry = *show->entry;
        writer.startMap();
        writer.append(QLatin1String("channel"));
        writer.append(entry.channel().data());
        write("realChannelId", entry.sourceId());
        write("lang", entry.language());
        writer.append(QLatin1String("dateTime"));
        writer.append(qint64(unixMilliseconds(*entry.dateTime())));
        writer.append(QLatin1String("endDateTime"));
        writer.append(qint64(unixMilliseconds(*entry.endDateTime())));
        write("title", entry.identificator());
        write("instantDetails", entry.instantDetails1());
        writer.append(QLatin1String("categories"));
        writer.append(quint64(show->categories.value_or(0)));
        write("description", show->extra->description->string());
        writer.endMap();
    }
    writer.endArray();
    return bytes;
}

void readBare(QCborStreamReader& reader)
{
    while (reader.lastError() == QCborError::NoError && reader.hasNext()) {
        if (reader.isContainer()) {
            if (!reader.enterContainer())
                return;
            readBare(reader);
            reader.leaveContainer();
        } else if (reader.isString()) {
            benchmark::DoNotOptimize(reader.readString().data);
            reader.readString();
        } else if (reader.isByteArray()) {
            benchmark::DoNotOptimize(reader.readByteArray().data);
            reader.readByteArray();
        } else {
            reader.next();
        }
    }
}

void write(const QByteArray& bytes, const QString& path)
{
    std::ignore = AtomicFile::write(path, bytes, AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Unsynced);
}

/// What a start does ahead of its first answer.
void load(benchmark::State& state)
{
    const auto lists = makeLists();
    const QTemporaryDir folder;
    const auto bareFile = [&](int channel) { return folder.filePath(QString::number(channel)); };
    for (int channel = 0; channel < channels; ++channel)
        write(bareArchive(*lists[std::size_t(channel)]), bareFile(channel));
    Ratio ratio;
    for (auto _ : state) {
        ratio.bare([&] {
            for (int channel = 0; channel < channels; ++channel) {
                QCborStreamReader reader(
                    AtomicFile::read(bareFile(channel), qint64(ListFile::maximumSize)).value_or(QByteArray()));
                readBare(reader);
            }
        });
        ratio.work([&] {
            std::vector<SharedShowTable> tables;
            for (int channel = 0; channel < channels; ++channel)
                tables.push_back(ShowTable::openFile(device().file(channel), now));
            benchmark::DoNotOptimize(MergedList(std::move(tables), now, nullptr).shows().places().size());
        });
    }
    ratio.report(state, 0.05);
}
BENCHMARK(load)->Iterations(7)->Unit(benchmark::kMillisecond);

/// What becomes of lists that came from the network: tables when they come in (0), files when they are committed (1).
void save(benchmark::State& state)
{
    const bool commits = state.range(0) == 1;
    const auto lists = makeLists();
    std::vector<SharedShowTable> tables;
    for (const SharedShowList& list : lists)
        tables.push_back(ShowTable::make(*list));
    const QTemporaryDir folder;
    const auto path = [&](int channel) { return folder.filePath(QString::number(channel)); };
    Ratio ratio;
    for (auto _ : state) {
        ratio.bare([&] {
            for (int channel = 0; channel < channels; ++channel)
                write(bareArchive(*lists[std::size_t(channel)]), path(channel));
        });
        ratio.work([&] {
            for (std::size_t channel = 0; channel < channels; ++channel) {
                if (commits)
                    write(*tables[channel]->archived(0), path(int(channel)));
                else
                    tables[channel] = ShowTable::make(*lists[channel]);
            }
        });
    }
    ratio.report(state, 0.7);
}
BENCHMARK(save)->ArgName("commit")->Arg(0)->Arg(1)->Iterations(7)->Unit(benchmark::kMillisecond);

/// From the question to the answer on the main queue, the compound listing included.
void queries(benchmark::State& state)
{
    static int argc = 1;
    static char name[] = "StoreBench";
    static char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    const FixedClock clock(now);
    const TVStationIcons icons(device().folder.path());
    TVListings store({clock, device().folder.path(), device(), icons, device(), device(), QStringLiteral("vidora")});
    bool isOver = false;
    const auto over = [&isOver](const auto&) { isOver = true; };
    constexpr QualityOfService priority = QualityOfService::UserInitiated;
    const std::function<void()> asked[] = {
        [&] { store.onAirShowsWithQueue(DispatchQueue::main(), over); },
        [&] { store.showsWithCategory(category::westerns, priority, over); },
        [&] { store.showsWithCategory(0, priority, over); }, // fits nothing: a scan to the end
        [&] { store.allShowsWithCategory(category::evening, priority, over); },
        [&] { store.allShowsWithCategory(category::all, priority, over); },
        [&] { store.showScheduleForTitle(QStringLiteral("no such title"), priority, over); },
        [&] { store.broadcastForTitle(QStringLiteral("no such title"), false, over); },
    };
    const auto answer = [&](const std::function<void()>& ask) {
        isOver = false;
        ask();
        DispatchQueue::runMain([&] { return isOver; });
    };
    const std::function<void()>& query = asked[state.range(0)];
    answer(query); // behind the load
    for (auto _ : state)
        answer(query);
    state.counters["at_most_ms"] = 10;
}
BENCHMARK(queries)->ArgName("query")->DenseRange(0, 6)->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vidora::bench
