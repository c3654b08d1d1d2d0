#include "store/FoldedTexts.h"
#include "store/ShowArchive.h"
#include "store/StoreFixture.h"
#include "support/Seams.h"

namespace vidora {
namespace {

ShowDraft fullDraft()
{
    ShowDraft draft = TestShow{QStringLiteral("Dr\u0161ka \U0001f4fa"), 0, 60, 0xffffffffu}.draft(channelId(7));
    draft.entry->setSourceId(QStringLiteral("tvpc.rts1"));
    draft.entry->setLanguage(QStringLiteral("sr"));
    draft.entry->setInstantDetails1(QStringLiteral("\ufefffilm, 1999"));
    draft.entry->setSubtitle1(QString());
    draft.entry->setInstantDescription1(QString(500, QChar(0x10d)));
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

/// For the sanitizers: the reader itself, without the checksums that keep damage away from it.
void readWithoutChecksums(const QByteArray& bytes)
{
    const auto table = ShowTable::open(ByteSource::ofMemory(bytes), std::nullopt, ListFile::Checksums::Ignored);
    if (!table)
        return;
    table->shows();
    QByteArray scratch;
    FoldedTexts folded(*table);
    if (folded.all(scratch) && table->end() > 0)
        folded.ofRow(table->end() - 1, scratch);
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
        if (count == 3)
            std::swap(draft.extra->description, draft.extra->roles); // each of them plain and in runs
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

// Whatever happens to a byte, the file gives the list as it was or none: the channel is fetched again then.
TEST(ShowArchive, DamagedFilesAreNoLists)
{
    const ShowList list{TestShow{QStringLiteral("One"), 0, 60, 5}.show(channelId(1)), fullDraft().publish()};
    const QByteArray whole = ShowArchive::archivedData(list);
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_TRUE(ShowArchive::unarchivedList(whole.left(size)).empty()) << "cut off at " << size;
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (const int flip : {0x01, 0x20, 0x80, 0xff}) {
            QByteArray damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ flip);
            EXPECT_TRUE(ShowArchive::unarchivedList(damaged).empty()) << "byte " << at << " flipped by " << flip;
            readWithoutChecksums(damaged);
        }
    }
    EXPECT_TRUE(ShowArchive::unarchivedList(whole + '\0').empty());
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
