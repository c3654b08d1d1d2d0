#include "content/TextFolding.h"
#include "store/ByteSearch.h"
#include "store/SearchIndex.h"

#include <gtest/gtest.h>

using namespace vidora;

namespace {

struct Texts
{
    const char16_t *title, *details, *subtitle, *description;
    const char16_t *extraDescription, *episode, *extraDetails, *directedBy, *roles;
};

std::optional<QString> optional(const char16_t* text)
{
    return text ? std::optional(QString::fromUtf16(text)) : std::nullopt;
}

Show show(const Texts& texts)
{
    ShowDraft draft;
    draft.entry->setEndDateTime(instantFromUnixMilliseconds(0));
    if (texts.title)
        draft.entry->setIdentificator(QString::fromUtf16(texts.title));
    draft.entry->setInstantDetails1(optional(texts.details));
    draft.entry->setSubtitle1(optional(texts.subtitle));
    draft.entry->setInstantDescription1(optional(texts.description));
    draft.categories = 0;
    draft.extra = std::make_shared<TVEntrySupplementalData>();
    if (texts.extraDescription)
        draft.extra->description = AttributedText(QString::fromUtf16(texts.extraDescription));
    draft.extra->episodeDescription = optional(texts.episode);
    draft.extra->details = optional(texts.extraDetails);
    draft.extra->directedBy = optional(texts.directedBy);
    if (texts.roles) { // two runs of one text
        const QString roles = QString::fromUtf16(texts.roles);
        draft.extra->roles.emplace();
        draft.extra->roles->append(roles.left(3), {});
        TextAttributes small;
        small.pointSize = 9;
        draft.extra->roles->append(roles.mid(3), small);
    }
    return std::move(draft).publish();
}

Show titled(const QString& title, std::int64_t minute = 0)
{
    ShowDraft draft;
    draft.entry->setIdentificator(title);
    draft.entry->setDateTime(instantFromUnixMilliseconds(minute * 60'000));
    draft.entry->setEndDateTime(instantFromUnixMilliseconds(minute * 60'000 + 1));
    return std::move(draft).publish();
}

QString titles(const ShowList& shows)
{
    QStringList texts;
    for (const Show& each : shows)
        texts << *each->entry->identificator();
    return texts.join(QLatin1Char(' '));
}

const auto everyone = [](const ShowTable&, ShowTable::Row) { return true; };

/// Shows that somebody holds, in the lists of some channels.
struct Guide
{
    ShowList shows;
    MergedList merged;

    explicit Guide(ShowList given, std::size_t channels = 1)
        : shows(std::move(given))
        , merged(tablesOf(shows, channels), Instant::min(), nullptr)
    {
    }
    static std::vector<SharedShowTable> tablesOf(const ShowList& shows, std::size_t channels)
    {
        std::vector<ShowList> lists(channels);
        for (std::size_t i = 0; i < shows.size(); ++i)
            lists[i % channels].push_back(shows[i]);
        std::vector<SharedShowTable> tables;
        for (const ShowList& list : lists)
            tables.push_back(ShowTable::make(list));
        return tables;
    }
    ShowList find(SearchIndex& index, QStringView pattern, std::size_t limit,
                  const SearchIndex::Wanted& wanted = everyone) const
    {
        return index.showsContainingPattern(merged.shows(), pattern, limit, wanted);
    }
};

TEST(SearchIndex, LooksInEachTextOfAShowButNotAcross)
{
    const Guide guide(ShowList{
        show({u"Dnevnik", u"vijesti", u"izdanje", u"najava", u"opis", u"epizoda", u"podaci", u"redatelj", u"glumica"}),
        show({u"Mađar i đak", nullptr, nullptr, u"Sle\u0301pi u\u017ei\u0301ci", u"", nullptr, nullptr, nullptr,
              nullptr}),
        show({u"Ђак", u"\u0301Čas", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, u"Ана Ћосић"}),
        show({nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr}),
    });
    const struct
    {
        const char16_t* pattern;
        std::vector<std::size_t> found;
    } cases[] = {
        {u"", {}},          {u"\u0301", {}},       {u"DNEVNIK", {0}},
        {u"vijesti", {0}},  {u"izdanje", {0}},     {u"najava", {0}},
        {u"opis", {0}},     {u"epizoda", {0}},     {u"podaci", {0}},
        {u"redatelj", {0}}, {u"glumica", {0}}, // over the border of two runs
        {u"kvijesti", {}},                     // but not of two texts
        {u"nikv", {}},      {u"n", {0, 2}},        {u"d", {0}},
        {u"đak", {1, 2}},   {u"ĐAK", {1, 2}},      {u"đar", {1}},
        {u"dak", {}},       {u"slepi", {1}},       {u"slépi užíci", {1}},
        {u"uzici", {1}},    {u"\u0301uzici", {1}}, {u"ђак", {1, 2}},
        {u"ЂАК", {1, 2}},   {u"ćosić", {2}},       {u"ћосић", {2}},
        {u"cas", {2}},      {u"ŭ", {1, 0}}, // any letter u
    };
    SearchIndex index;
    for (const auto& c : cases) {
        const ShowList found = guide.find(index, c.pattern, 2000);
        ShowList expected;
        for (std::size_t i = 0; i < guide.shows.size(); ++i)
            if (std::find(c.found.begin(), c.found.end(), i) != c.found.end())
                expected.push_back(guide.shows[i]);
        EXPECT_EQ(found, expected) << QString::fromUtf16(c.pattern).toStdString();
    }
}

/// Shows whose titles are numbers, with a letter in front of every third, and of which four start together.
ShowList numbered(int count)
{
    ShowList shows;
    for (int i = 0; i < count; ++i)
        shows.push_back(titled((i % 3 == 0 ? QStringLiteral("ć") : QString()) + QString::number(i), i / 4));
    return shows;
}

TEST(SearchIndex, GoesOnFromWhatItFoundAndWhereItStopped)
{
    const Guide guide(numbered(9000), 4);
    SearchIndex index;
    const auto count = [&](const char16_t* pattern, std::size_t limit) {
        return guide.find(index, pattern, limit).size();
    };
    EXPECT_EQ(count(u"c", 2000), 2000u);
    EXPECT_EQ(titles(guide.find(index, u"c899", 3)), QStringLiteral("ć8991 ć8994 ć8997"));
    EXPECT_EQ(count(u"c899", 2000), 3u);
    EXPECT_EQ(count(u"c89", 9000), 36u);
    EXPECT_EQ(count(u"c", 9000), 3000u);
    EXPECT_EQ(count(u"8999", 9000), 1u);
    EXPECT_EQ(count(u"x", 9000), 0u);
    EXPECT_EQ(count(u"xc", 9000), 0u);
    index.clear();
    EXPECT_EQ(count(u"ć3", 0), 0u);
    EXPECT_EQ(count(u"ć30", 9000), 39u);
    EXPECT_EQ(titles(guide.find(index, u"Ć30", 3)), QStringLiteral("ć30 ć300 ć303"));
}

TEST(SearchIndex, UnwantedShowsTakeNoPlaceAndMayBeWantedLater)
{
    const Guide guide(numbered(5000));
    SearchIndex index;
    const auto late = [](const ShowTable& table, ShowTable::Row row) {
        return table.show(row)->entry->identificator()->endsWith(QLatin1Char('7'));
    };
    EXPECT_EQ(titles(guide.find(index, u"c", 3, late)), QStringLiteral("ć27 ć57 ć87"));
    EXPECT_EQ(titles(guide.find(index, u"c", 3)), QStringLiteral("ć0 ć3 ć6"));
    EXPECT_EQ(titles(guide.find(index, u"c5", 2, late)), QStringLiteral("ć57 ć507"));
}

TEST(SearchIndex, AnotherListIsAnotherSearch)
{
    const Guide first(numbered(3000), 2);
    ShowList changed(first.shows.begin() + 100, first.shows.end());
    changed.insert(changed.begin() + 50, titled(QStringLiteral("novo"), 37));
    changed.erase(changed.begin() + 60);
    const Guide second(changed);

    SearchIndex index;
    EXPECT_EQ(titles(first.find(index, u"299", 1)), QStringLiteral("299"));
    EXPECT_EQ(titles(second.find(index, u"novo", 9)), QStringLiteral("novo"));
    EXPECT_EQ(first.find(index, u"novo", 9).size(), 0u);
    EXPECT_EQ(titles(second.find(index, u"159", 2)), QStringLiteral("1159 ć1590"));
    EXPECT_EQ(titles(second.find(index, u"c2997", 2)), QStringLiteral("ć2997"));
    EXPECT_EQ(Guide(ShowList()).find(index, u"1", 9).size(), 0u);
}

TEST(ByteSearch, FindsTheFirstOccurrenceAtEveryPlace)
{
    for (std::size_t size = 0; size <= 70; ++size) {
        for (std::size_t length = 1; length <= 5; ++length) {
            for (std::size_t at = 0; at + length <= size; ++at) {
                std::vector<std::uint8_t> text(size, 'a');
                text[at + length - 1] = 'b';
                std::vector<std::uint8_t> word(length, 'a');
                word.back() = 'b';
                const std::uint8_t* end = text.data() + size;
                ASSERT_EQ(findBytes(text.data(), end, word) - text.data(), std::ptrdiff_t(at)) << size << " " << length;
                word.front() = 'c';
                ASSERT_EQ(findBytes(text.data(), end, word), end);
            }
        }
    }
}

} // namespace
