#include "store/ShowArchive.h"
#include "store/ShowArchiveReader.h"
#include "store/StoreFixture.h"
#include "support/Seams.h"

#include <QCborArray>
#include <QCborMap>

namespace vidora {
namespace {

ShowDraft fullDraft()
{
    ShowDraft draft = TestShow{QStringLiteral("Dr\u0161ka \U0001f4fa"), 0, 60, 0xffffffffu}.draft(channelId(7));
    draft.entry->setSourceId(QStringLiteral("tvpc.rts1"));
    draft.entry->setLanguage(QStringLiteral("sr"));
    draft.entry->setInstantDetails1(QStringLiteral("\ufefffilm, 1999"));
    draft.entry->setSubtitle1(QString());
    draft.entry->setInstantDescription1(QString(5000, QChar(0x10d)));
    draft.entry->setUrl(URL::fromText(u"http://example.org/a b?\u010d"));
    draft.entry->setPreviouslyShown(true);
    AttributedText cast;
    cast.append(QStringLiteral("Roles: "),
                {16, TextAttributes::Weight::Bold, true, TextAttributes::Colour::Given, QStringLiteral("label"), -1.5});
    cast.append(QStringLiteral("Ana"), {});
    draft.extra = std::make_shared<TVEntrySupplementalData>();
    *draft.extra = {AttributedText(QStringLiteral("plain")),
                    QStringLiteral("e"),
                    QStringLiteral("d"),
                    QStringLiteral("by"),
                    cast,
                    URL::fromText(u"http://imdb.example/1"),
                    URL::fromText(u"http://t.example"),
                    QStringLiteral("sr"),
                    true};
    draft.pictures = Pictures{*URL::fromText(u"http://p.example/1"), *URL::fromText(u"http://p.example/2")};
    return draft;
}

auto fields(const ShowElement& show)
{
    const TVEntry& e = *show.entry;
    const TVEntrySupplementalData x = show.extra ? *show.extra : TVEntrySupplementalData();
    return std::tuple(e.channel(), e.sourceId(), e.language(), e.dateTime(), e.endDateTime(), e.identificator(),
                      e.instantDetails1(), e.subtitle1(), e.instantDescription1(), e.url(), e.previouslyShown(),
                      e.title(), x.description, x.episodeDescription, x.details, x.directedBy, x.roles, x.imdbURL,
                      x.trailerURL, x.language, x.alphabetUpdated, show.count(), show.categories, show.pictures);
}

TEST(ShowArchive, GivesBackWhatWasArchived)
{
    ShowList list{fullDraft().publish()};
    for (int count = 1; count < 4; ++count) {
        ShowDraft draft = fullDraft();
        draft.pictures.reset();
        if (count < 3)
            draft.extra.reset();
        if (count < 2)
            draft.categories.reset();
        draft.entry->setEndDateTime(std::nullopt);
        draft.entry->setUrl(std::nullopt);
        list.push_back(std::move(draft).publish());
    }
    list.push_back(TestShow{QString(), -1000000, 1}.show(ObjectId()));

    const ShowList read = ShowArchive::unarchivedList(ShowArchive::archivedData(list));
    ASSERT_EQ(read.size(), list.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        ShowElement expected = *list[i];
        if (expected.extra) {
            auto extra = std::make_shared<TVEntrySupplementalData>(*expected.extra);
            extra->alphabetUpdated = false; // a decoded object is converted again
            expected.extra = extra;
        }
        EXPECT_EQ(fields(*read[i]), fields(expected)) << i;
    }
}

// Files of other versions: unknown fields and parts, the channel as text, chunked strings, fields of a wrong kind.
TEST(ShowArchive, ReadsOtherVersions)
{
    const QCborMap unknown{{QStringLiteral("a"), QCborArray{1, QCborMap{{2, 3.5}}}}};
    const QCborMap older{{QStringLiteral("previouslyShown"), 1},
                         {QStringLiteral("newField"), unknown},
                         {5, QStringLiteral("x")},
                         {QStringLiteral("aKeyThatIsLongerThanAnyThatIsKnown"), unknown},
                         {QStringLiteral("instantDetails"), QStringLiteral("film")},
                         {QStringLiteral("subtitle"), 17},
                         {QStringLiteral("endDateTime"), QStringLiteral("tomorrow")},
                         {QStringLiteral("dateTime"), std::numeric_limits<qint64>::min()},
                         {QStringLiteral("lang"), QStringLiteral("mk")},
                         {QStringLiteral("url"), QString()},
                         {QStringLiteral("title"), QStringLiteral("Vesti")},
                         {QStringLiteral("channel"), QStringLiteral("000000000000000000000007")}};
    const QCborMap untitled{{QStringLiteral("channel"), QByteArray(12, 'x')}};
    const QCborArray root{QCborArray{older, 5, QCborMap{}, QCborArray{QStringLiteral("http://p"), 4}, unknown},
                          QCborArray{untitled, 5}, QStringLiteral("no element"), QCborArray{},
                          QCborArray{older, 2.5, unknown}};
    const ShowList read = ShowArchiveReader(QCborValue(root).toCbor()).readList();

    ASSERT_EQ(titles(read), QStringList({QStringLiteral("Vesti"), QStringLiteral("Vesti")}));
    EXPECT_EQ(read[0]->count(), 4);
    EXPECT_EQ(read[0]->pictures->size(), 1u);
    EXPECT_EQ(read[1]->count(), 1);
    const TVEntry& entry = *read[0]->entry;
    EXPECT_EQ(entry.channel(), channelId(7));
    EXPECT_EQ(entry.instantDetails1(), QStringLiteral("film"));
    EXPECT_EQ(entry.instantDetails(), QStringLiteral("\u0444\u0438\u043b\u043c")) << "the language stands first";
    EXPECT_FALSE(entry.subtitle1() || entry.endDateTime() || entry.dateTime() || entry.url());

    const QByteArray chunked = QByteArray::fromHex("9f9fbf657469746c657f6141604142ffffffff");
    EXPECT_THROW(ShowArchiveReader(chunked).readList(), ShowArchiveReader::Malformed)
        << "bytes are no chunks of a text";
    const QByteArray textChunks = QByteArray::fromHex("9f9fbf657469746c657f6141606142ffffffff");
    EXPECT_EQ(titles(ShowArchiveReader(textChunks).readList()), QStringList(QStringLiteral("AB")));
}

/// For the sanitizers: the reader itself, without the checksum that keeps damage away from it.
void readWithoutChecksum(const QByteArray& bytes)
{
    try {
        ShowArchiveReader(bytes).readList();
    } catch (const ShowArchiveReader::Malformed&) {
    }
}

// Whatever happens to a byte, the file gives the list as it was or none: the channel is fetched again then.
TEST(ShowArchive, DamagedFilesAreNoLists)
{
    const ShowList list{TestShow{QStringLiteral("One"), 0, 60, 5}.show(channelId(1)), fullDraft().publish()};
    const QByteArray whole = ShowArchive::archivedData(list);
    for (qsizetype size = 0; size < whole.size(); ++size) {
        EXPECT_TRUE(ShowArchive::unarchivedList(whole.left(size)).empty()) << "cut off at " << size;
        EXPECT_THROW(ShowArchiveReader(whole.left(std::min(size, whole.size() - 6))).readList(),
                     ShowArchiveReader::Malformed);
    }
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (const int flip : {0x01, 0x20, 0x80, 0xff}) {
            QByteArray damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ flip);
            EXPECT_TRUE(ShowArchive::unarchivedList(damaged).empty()) << "byte " << at << " flipped by " << flip;
            readWithoutChecksum(damaged.chopped(5));
        }
    }
    EXPECT_TRUE(ShowArchive::unarchivedList(whole + '\0').empty());
}

TEST(ShowArchive, HostileBytesCostLittle)
{
    const QByteArray claims = QByteArray::fromHex("9bffffffffffffffff"
                                                  "84"
                                                  "a1"
                                                  "657469746c65");
    const QByteArray hostile[] = {
        QByteArray(1'000'000, '\x81'),                                          // depth
        QByteArray(1'000'000, '\xc1'),                                          // tags of tags
        claims + QByteArray::fromHex("7b7fffffffffffffff"),                     // a text longer than memory
        claims + QByteArray::fromHex("5bffffffffffffffff"),                     //
        "\x9f" + QByteArray("\x81\xa1\x65title\x60").repeated(30'000) + "\xff", // more shows than any list
        "\x81\x84\xa1\x65title\x60\x00\xa0\x9f" + QByteArray("\x60").repeated(1'000'000) + "\xff\xff",
    };
    for (const QByteArray& bytes : hostile)
        EXPECT_THROW(ShowArchiveReader(bytes).readList(), ShowArchiveReader::Malformed);
}

TEST(ShowArchive, ReadsTheFirstShowsOfAFileFromItsStart)
{
    ShowList list{TestShow{QStringLiteral("over"), -60, 0}.show(channelId(7))};
    for (int i = 0; i < 30; ++i) // each of 10,000 bytes
        list.push_back(fullDraft().publish());
    list.push_back(TestShow{QStringLiteral("last"), 60, 120}.show(channelId(7)));
    const QTemporaryDir folder;
    const QString whole = folder.filePath(QStringLiteral("whole"));
    ShowArchive::archiveRootObject(list, whole);
    const auto first = [](const QString& file, std::size_t count, bool (*takes)(const TVEntry&)) {
        return ShowArchive::firstShowsOfFile(file, count, takes);
    };
    const auto all = [](const TVEntry&) { return true; };
    const auto later = [](const TVEntry& entry) { return entry.endDateTime() > testNow; };
    const auto latest = [](const TVEntry& entry) { return entry.dateTime() > testNow; };
    for (const std::size_t count : {0, 1, 2, 31, 32, 40})
        EXPECT_EQ(first(whole, count, all).size(), std::min<std::size_t>(count, 32));
    ASSERT_EQ(first(whole, 1, later).size(), 1u);
    EXPECT_EQ(fields(*first(whole, 1, later)[0]), fields(*ShowArchive::unarchiveObjectWithFile(whole)[1]));
    EXPECT_EQ(titles(first(whole, 4, latest)), QStringList{QStringLiteral("last")});

    const QString cut = folder.filePath(QStringLiteral("cut"));
    QFile(whole).copy(cut);
    QFile::resize(cut, 25'000);
    EXPECT_EQ(first(cut, 4, all).size(), 3u) << "those that are there as a whole";
    EXPECT_TRUE(first(folder.filePath(QStringLiteral("missing")), 4, all).empty());
}

// A disk that fails or tears a write at any step leaves the file that was there.
TEST(ShowArchive, FailedWritesLeaveTheOldFile)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.plist"));
    const ShowList old{TestShow{QStringLiteral("Old"), 0, 60}.show(channelId(1))};
    const ShowList fresh{fullDraft().publish(), fullDraft().publish()};
    ASSERT_TRUE(ShowArchive::archiveRootObject(old, file));
    for (int step = 0; step < 10; ++step) {
        test::FaultyFileLayer layer(step);
        if (ShowArchive::archiveRootObject(fresh, file, layer)) {
            EXPECT_GE(step, 3) << "no step was left to fail";
            EXPECT_EQ(ShowArchive::unarchiveObjectWithFile(file).size(), 2u);
            return;
        }
        EXPECT_EQ(titles(ShowArchive::unarchiveObjectWithFile(file)), QStringList(QStringLiteral("Old"))) << step;
    }
    FAIL() << "never written";
}

} // namespace
} // namespace vidora
