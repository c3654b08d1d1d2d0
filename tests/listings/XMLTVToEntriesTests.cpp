#include "listings/XMLTVToEntries.h"

#include <gtest/gtest.h>
#include <map>

namespace vidora {
namespace {

const Instant now = *instantFromIsoText(u"2026-11-22T19:00:00Z");

Page pageOf(const std::string& document, const char* charset = "UTF-8")
{
    return Page::fromBytes(QByteArray::fromStdString(document), Page::Container::None, charset);
}

std::string programme(const std::string& channel, const std::string& title, const std::string& children = {})
{
    return "<programme channel=\"" + channel + R"(" start="20261122190000 +0000" stop="20261122200000 +0000"><title>)" +
           title + "</title>" + children + "</programme>";
}

ChannelItems items(const QStringList& sourceIds)
{
    ChannelItems result;
    for (const QString& sourceId : sourceIds)
        result.push_back({ObjectId::initWithData(QByteArray(ObjectId::length, char(result.size() + 1))), sourceId, {}});
    return result;
}

/// Titles and source ids by the number of the channel item, "-" where a page was faulty.
std::string scanned(const Pages& pages, const QStringList& sourceIds)
{
    Endpoints endpoints;
    endpoints.tv.pictures = QStringLiteral("http://p.example/");
    Drafts drafts;
    const bool isWhole = scanXMLTV(pages, items(sourceIds), now, endpoints, drafts);
    std::map<int, std::string> texts;
    for (const auto& [channel, list] : drafts) {
        for (const ShowDraft& draft : list) {
            EXPECT_EQ(draft.entry->channel(), channel);
            texts[channel.data()[0]] +=
                ' ' + draft.entry->identificator()->toStdString() + '@' + draft.entry->sourceId()->toStdString();
            if (draft.pictures)
                texts[channel.data()[0]] += '(' + draft.pictures->begin()->text().toStdString() + ')';
        }
    }
    std::string result = isWhole ? "" : "-";
    for (const auto& [number, text] : texts)
        result += (result.empty() ? "" : "; ") + std::to_string(number) + ':' + text;
    return result;
}

TEST(XMLTVToEntries, FilesShowsUnderTheirChannels)
{
    const std::string document = "<tv>" + programme("B", "b1") + programme("C", "c", "<image>i</image>") +
                                 programme("A.x", "a") + programme("B", "b2", "<icon src='http://i/'/>") +
                                 programme("r.D", "d") + "</tv>";
    const auto scan = [&](const char* sourceIds) {
        return scanned({pageOf(document)}, QString::fromLatin1(sourceIds).split(u' '));
    };
    EXPECT_EQ(scan("tvpc.B s.C"), "1: b1@B b2@B(http://i/); 2: c@C");
    EXPECT_EQ(scan("r.hr.A.x n.B"), "1: a@A.x; 2: b1@B b2@B(http://i/)");
    EXPECT_EQ(scan("r.D"), "1: d@r.D");
    EXPECT_EQ(scan("tvpc.B s.C n.B"), "2: c@C; 3: b1@B b2@B(http://i/)");
    // An id without a feed id shifts those behind it against the channel items.
    EXPECT_EQ(scan("x.tv tvpc.C"), "1: c@C(http://p.example/i)");
    EXPECT_EQ(scan("x.tv y"), "1: b1@B b2@B(http://i/) c@C(http://p.example/i) a@A.x d@r.D");
    EXPECT_EQ(scan("tvpc.E"), "");
}

TEST(XMLTVToEntries, UsesPagesUpToAFaultyOne)
{
    const QStringList wanted{QStringLiteral("tvpc.A")};
    const std::string head = "<tv>" + programme("A", "a1"), whole = head + "</tv>";
    EXPECT_EQ(scanned({pageOf(head), pageOf(whole)}, wanted), "1: a1@A a1@A");
    EXPECT_EQ(scanned({pageOf(whole), pageOf(whole + "\xff"), pageOf(whole)}, wanted), "-; 1: a1@A");
    EXPECT_EQ(scanned({pageOf(whole + std::string(1, '\0') + "\xff")}, wanted), "-");
    EXPECT_EQ(scanned({pageOf(whole, "X-UNKNOWN")}, wanted), "-");
    EXPECT_EQ(scanned({pageOf("<tv>" + programme("A", "\xe8") + "</tv>", "ISO-8859-2")}, wanted), "1: č@A");
    EXPECT_EQ(scanned({}, wanted), "");
}

/// Documents large enough to be decoded beside the reader; the fault lies behind the first buffers.
TEST(XMLTVToEntries, ReadsLargePagesLikeSmallOnes)
{
    std::string document = "<tv>";
    for (int i = 0; i < 40'000; ++i)
        document += programme(i % 2 ? "A" : "B", "t" + std::to_string(i));
    const Endpoints endpoints;
    XMLTVToEntries converter{{QStringLiteral("A")}, false, now, endpoints};
    ASSERT_TRUE(converter.read(pageOf(document)));
    ASSERT_EQ(converter.entries().size(), 1u);
    const auto& entries = converter.entries()[0].entries;
    ASSERT_EQ(entries.size(), 20'000u);
    for (std::size_t i = 0; i < entries.size(); ++i)
        ASSERT_EQ(*entries[i].basic->identificator(), QStringLiteral("t%1").arg(2 * i + 1));
    EXPECT_FALSE(converter.read(pageOf(document + "\xff")));
    EXPECT_TRUE(converter.entries().empty());
    EXPECT_TRUE(converter.read(pageOf(document.substr(0, 400'000))));
    EXPECT_FALSE(converter.entries().empty());
}

} // namespace
} // namespace vidora
