// The store over 300 lists of 420 shows: loading and writing the files next to a bare pass of the stream reader and
// writer over the same files in one thread, and how long queries over all 126,000 shows take.
#include "bench/GuideTexts.h"
#include "bench/Ratio.h"
#include "store/ShowArchive.h"
#include "store/TVListings.h"

#include <QCborStreamReader>
#include <QCborStreamWriter>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <tuple>
#include <variant>

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

using Token = std::variant<QString, QByteArray, quint64, qint64, bool, char>; // char: an open or closed container

void readBare(QCborStreamReader& reader, std::vector<Token>* tokens)
{
    const auto keep = [tokens](Token token) {
        if (tokens)
            tokens->push_back(std::move(token));
        else
            benchmark::DoNotOptimize(token);
    };
    while (reader.lastError() == QCborError::NoError && reader.hasNext()) {
        if (reader.isContainer()) {
            keep(reader.isArray() ? '[' : '{');
            if (!reader.enterContainer())
                return;
            readBare(reader, tokens);
            keep(reader.parentContainerType() == QCborStreamReader::Array ? ']' : '}');
            reader.leaveContainer();
        } else if (reader.isString()) {
            auto text = reader.readString();
            keep(text.data);
            while (text.status == QCborStreamReader::Ok)
                text = reader.readString();
        } else if (reader.isByteArray()) {
            auto bytes = reader.readByteArray();
            keep(bytes.data);
            while (bytes.status == QCborStreamReader::Ok)
                bytes = reader.readByteArray();
        } else {
            if (reader.isUnsignedInteger())
                keep(reader.toUnsignedInteger());
            else if (reader.isBool())
                keep(reader.toBool());
            reader.next();
        }
    }
}

void writeBare(const std::vector<Token>& tokens, const QString& path)
{
    QByteArray bytes;
    QCborStreamWriter writer(&bytes);
    for (const Token& token : tokens) {
        if (const QString* text = std::get_if<QString>(&token))
            writer.append(QStringView(*text));
        else if (const QByteArray* data = std::get_if<QByteArray>(&token))
            writer.append(*data);
        else if (const quint64* number = std::get_if<quint64>(&token))
            writer.append(*number);
        else if (const bool* flag = std::get_if<bool>(&token))
            writer.append(*flag);
        else if (const char* mark = std::get_if<char>(&token)) {
            if (*mark == '[')
                writer.startArray();
            else if (*mark == '{')
                writer.startMap();
            else if (*mark == ']')
                writer.endArray();
            else
                writer.endMap();
        }
    }
    std::ignore = AtomicFile::write(path, bytes, AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Unsynced);
}

void load(benchmark::State& state)
{
    Ratio ratio;
    for (auto _ : state) {
        ratio.bare([] {
            for (int channel = 0; channel < channels; ++channel) {
                QCborStreamReader reader(
                    AtomicFile::read(device().file(channel), ShowArchive::maximumFileSize).value_or(QByteArray()));
                readBare(reader, nullptr);
            }
        });
        std::vector<ShowList> lists; // what is let go of is not part of a start
        ratio.work([&] {
            for (int channel = 0; channel < channels; ++channel)
                lists.push_back(ShowArchive::unarchiveObjectWithFile(device().file(channel)));
        });
    }
    ratio.report(state, 1.5);
}
BENCHMARK(load)->Iterations(7)->Unit(benchmark::kMillisecond);

void commit(benchmark::State& state)
{
    std::vector<ShowList> lists;
    std::vector<std::vector<Token>> tokens(channels);
    for (int channel = 0; channel < channels; ++channel) {
        lists.push_back(ShowArchive::unarchiveObjectWithFile(device().file(channel)));
        QCborStreamReader reader(
            AtomicFile::read(device().file(channel), ShowArchive::maximumFileSize).value_or(QByteArray()));
        readBare(reader, &tokens[std::size_t(channel)]);
    }
    const QTemporaryDir folder;
    const auto path = [&](int channel) { return folder.filePath(QString::number(channel)); };
    Ratio ratio;
    for (auto _ : state) {
        ratio.bare([&] {
            for (int channel = 0; channel < channels; ++channel)
                writeBare(tokens[std::size_t(channel)], path(channel));
        });
        ratio.work([&] {
            for (int channel = 0; channel < channels; ++channel)
                ShowArchive::archiveRootObject(lists[std::size_t(channel)], path(channel));
        });
    }
    ratio.report(state, 1.5);
}
BENCHMARK(commit)->Iterations(7)->Unit(benchmark::kMillisecond);

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
