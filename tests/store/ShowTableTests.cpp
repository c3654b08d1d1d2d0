#include "store/FoldedTexts.h"
#include "store/ShowArchive.h"
#include "store/StoreFixture.h"

#include <random>
#include <sys/resource.h>

namespace vidora {
namespace {

const ObjectId one = channelId(1);

QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<qsizetype>(size));
}

SharedShowTable tableOf(const std::vector<TestShow>& shows, const ObjectId& channel = one)
{
    return ShowTable::make(*listOf(channel, shows));
}

SharedShowTable opened(const QByteArray& bytes, std::optional<Instant> now = {})
{
    return ShowTable::open(ByteSource::ofMemory(bytes), now);
}

std::string textOf(const SharedShowTable& table, const char (&key)[5])
{
    const auto file = ListFile::open(ByteSource::ofMemory(*table->archived(0)));
    QByteArray scratch;
    const ListFile::Block* block = file->block(ListFile::key(key));
    return block ? std::string(*file->read(*block, scratch)) : std::string();
}

TEST(ShowTable, KeepsWhatNewerVersionsPutIntoAFile)
{
    const auto plain = ListFile::open(
        ByteSource::ofMemory(*tableOf({{"over"_s, -20, 0}, {"a"_s, 0, 10}, {"b"_s, 10, 20}})->archived(0)));
    ListFileWriter writer;
    writer.add(ListFile::key("newC"), 2, "1122 3");
    for (const ListFile::Block& block : plain->blocks()) {
        QByteArray scratch;
        writer.add(block.key, block.width, *plain->read(block, scratch));
    }
    writer.add(ListFile::key("newB"), 0, "of the list");
    const SharedShowTable table = opened(writer.finish({3, 0, 0}), testNow);
    EXPECT_EQ(titles(table->shows()), QStringList({"a"_s, "b"_s}));
    const SharedShowTable changed = table->with({{1, TestShow{"changed"_s, 0, 10}.show(one)}});
    EXPECT_EQ(titles(changed->shows()), QStringList({"changed"_s, "b"_s}));
    EXPECT_EQ(textOf(changed, "newC"), "22 3") << "in step with the shows";
    EXPECT_EQ(textOf(changed, "newB"), "of the list");

    const QByteArray former("\0\0\0\0\xc8\3\0\0\0new", 12);
    QByteArray record, again;
    const Show show = TestShow{"a"_s, 0, 10}.show(one);
    ShowRecordWriter(record).append(*show, viewOf(former));
    ShowRecordWriter(again).append(*show, viewOf(record));
    EXPECT_TRUE(ShowRecord(viewOf(again)).isWhole() && again.endsWith(former.sliced(4)));
    EXPECT_EQ(ShowRecord(viewOf(again)).show({}).entry->identificator(), "a"_s);
}

TEST(ShowTable, RefusesFilesThatClaimTooMuch)
{
    const auto file = [](std::uint32_t shows, std::uint32_t first, const std::vector<std::uint32_t>& recordEnds) {
        const auto whole = ListFile::open(ByteSource::ofMemory(*tableOf({{"a"_s, 0, 10}})->archived(0)));
        ListFileWriter writer;
        for (const ListFile::Block& block : whole->blocks()) {
            QByteArray scratch;
            if (block.key == ListFile::key("rend"))
                writer.addColumn(block.key, recordEnds);
            else
                writer.add(block.key, block.width, *whole->read(block, scratch));
        }
        return opened(writer.finish({shows, first, 0}));
    };
    const auto size = static_cast<std::uint32_t>(textOf(tableOf({{"a"_s, 0, 10}}), "recs").size());
    EXPECT_TRUE(file(1, 0, {size}));
    EXPECT_FALSE(file(2, 0, {size}) || file(1, 2, {size}) || file(1, 0, {size + 1}) || file(1, 0, {0, size}));
    EXPECT_FALSE(file(ListFile::maximumShows + 1, 0, {size}));
}

// Small objects take far more memory than the bytes that make them.
TEST(ShowTable, ReadsNoMoreSmallObjectsThanAShowHas)
{
    ShowDraft draft = TestShow{"a"_s, 0, 10}.draft(one);
    draft.extra = std::make_shared<TVEntrySupplementalData>();
    draft.extra->roles.emplace();
    for (int run = 0; run < 10'005; ++run)
        draft.extra->roles->append("x"_s, {double(run % 2 + 1), {}, false, {}, {}, 0});
    draft.pictures.emplace();
    for (int picture = 0; picture < 1005; ++picture)
        draft.pictures->insert(*URL::fromText(QString::number(picture)));
    const Show read = opened(ShowArchive::archivedData({std::move(draft).publish()}))->show(0);
    EXPECT_EQ(read->extra->roles->runs().size(), 10'000u);
    EXPECT_EQ(read->pictures->size(), 1000u);
}

TEST(ShowTable, AShowIsOneObjectForAsLongAsAnybodyHoldsIt)
{
    const SharedShowTable table = opened(*tableOf({{"a"_s, 0, 10}, {"b"_s, 10, 20}})->archived(0));
    Show held = table->show(0);
    EXPECT_EQ(table->show(0), held);
    const auto entry = held->entry;
    held.reset();
    EXPECT_EQ(table->show(0)->entry, entry) << "also where only its entry is held";
    EXPECT_EQ(table->rowOf(entry), 0u);
    EXPECT_FALSE(table->rowOf(TestShow{"a"_s, 0, 10}.show(one)->entry));
    for (int i = 0; i < 1000; ++i)
        table->show(1);
    table->forgetReleased();
    EXPECT_EQ(table->show(0)->entry, entry);
}

/// A file in a folder of its own.
class ListOnDisk
{
public:
    explicit ListOnDisk(const std::vector<TestShow>& shows)
    {
        ShowArchive::archiveRootObject(*listOf(one, shows), path());
    }
    QString path() const { return m_folder.filePath("list"_s); }
    qint64 size() const { return QFile(path()).size(); }
    void change(qint64 at) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at));
        char byte = 0;
        file.getChar(&byte);
        file.seek(at);
        file.putChar(static_cast<char>(byte ^ 0x10));
    }

private:
    QTemporaryDir m_folder;
};

// Whatever others do to a file while its list is in use, nothing worse happens than that shows are lost.
TEST(ShowTable, SurvivesWhatOthersDoToItsFile)
{
    std::vector<TestShow> shows;
    for (int i = 0; i < 2000; ++i) // longer than what is read at once
        shows.push_back({QString(50, QLatin1Char('x')), i, i + 1});
    const ListOnDisk whole(shows);
    for (qint64 size = 0; size < whole.size(); size += whole.size() / 7) {
        const ListOnDisk disk(shows);
        const SharedShowTable table = ShowTable::openFile(disk.path());
        QFile::resize(disk.path(), size);
        QByteArray scratch;
        const bool isLess = table->shows().size() < shows.size() || !FoldedTexts(*table).all(scratch);
        EXPECT_TRUE(isLess && table->isDamaged()) << size;
        EXPECT_FALSE(table->archived(0));
        table->with({});
        EXPECT_FALSE(ShowTable::openFile(disk.path()));
    }
    const ListOnDisk changed(shows);
    const SharedShowTable table = ShowTable::openFile(changed.path());
    const SharedShowTable removed = ShowTable::openFile(whole.path());
    changed.change(changed.size() / 2);
    QFile::remove(whole.path());
    EXPECT_EQ(removed->shows().size(), shows.size()) << "what is open stays readable";
    EXPECT_TRUE(!ShowTable::openFile(changed.path()) || !ShowTable::openFile(changed.path())->isWhole());
    EXPECT_GE(table->shows().size(), shows.size() - 1);
}

TEST(ShowTable, ReadsAFileAtOnceWhereNoMoreMayBeHeld)
{
    const ListOnDisk disk({{"a"_s, 0, 10}});
    ShowTable::openFile(disk.path()); // takes as many files as it may have
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    const rlimit few{512, limit.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &few);
    const SharedShowTable table = ShowTable::openFile(disk.path());
    ::setrlimit(RLIMIT_NOFILE, &limit);
    QFile::resize(disk.path(), 0);
    EXPECT_EQ(titles(table->shows()), QStringList("a"_s));
}

TEST(ShowTable, ServesADeviceOfAnotherAlphabet)
{
    const auto titled = [](const QString& title) {
        ShowDraft draft = TestShow{title, 0, 10}.draft(one);
        draft.entry->setLanguage("sr"_s);
        return std::move(draft).publish();
    };
    const QByteArray latin = ShowArchive::archivedData({titled("Kviz"_s)});
    TVEntry::setCyrillicDevice(true);
    const SharedShowTable table = opened(latin);
    EXPECT_EQ(table->show(0)->entry->title(), "Квиз"_s);
    EXPECT_FALSE(table->titleMarkOf(0)) << "made for other titles";
    QByteArray scratch, madeScratch;
    const SharedShowTable fresh = ShowTable::make({titled("Kviz"_s)});
    EXPECT_EQ(FoldedTexts(*table).all(scratch)->size(), FoldedTexts(*fresh).all(madeScratch)->size());
    const SharedShowTable changed = table->with({});
    EXPECT_EQ(changed->titleMarkOf(0), ShowTable::markOf(u"Квиз"));
    TVEntry::setCyrillicDevice(false);
    EXPECT_EQ(opened(latin)->titleMarkOf(0), ShowTable::markOf(u"Kviz"));
}

// The merged list, made out of the one ahead of it, against one that is sorted anew.
TEST(MergedList, IsTheSameHoweverItCameAbout)
{
    std::mt19937 random(1);
    std::map<int, std::pair<SharedShowList, SharedShowTable>> lists;
    std::shared_ptr<const MergedList> merged;
    Instant now = testNow;
    for (int step = 0; step < 300; ++step) {
        const int channel = static_cast<int>(random() % 8);
        if (random() % 5 == 0) {
            lists.erase(channel);
        } else {
            std::vector<TestShow> shows;
            int from = static_cast<int>(random() % 30);
            for (auto count = random() % 20; count > 0; --count, from += static_cast<int>(random() % 10))
                shows.push_back({QStringLiteral("%1 %2 %3").arg(step).arg(channel).arg(count), from, from + 7});
            const SharedShowList list = listOf(channelId(channel), shows);
            lists[channel] = {list, ShowTable::make(*list)};
        }
        now += std::chrono::seconds(random() % 30);
        std::vector<SharedShowTable> tables;
        ShowList expected;
        for (const auto& [key, list] : lists) {
            tables.push_back(list.second);
            std::ranges::copy_if(*list.first, std::back_inserter(expected),
                                 [&](const Show& show) { return endsAfter(*show->entry, now); });
        }
        std::ranges::stable_sort(expected, {}, [](const Show& show) { return show->entry->dateTime(); });
        merged = std::make_shared<const MergedList>(std::move(tables), now, merged);
        if (random() % 3 == 0) // else nobody looks at it
            continue;
        ASSERT_EQ(merged->shows().collect(SIZE_MAX, [](const auto&, auto) { return true; }), expected) << step;
    }
}

} // namespace
} // namespace vidora
