#include "core/GuideImport.h"
#include "core/OwnGuideSession.h"
#include "support/TestDevice.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

const QString address = QStringLiteral("http://guide.example/guide.xml");
const QByteArray guide = R"(<tv>
  <channel id="one.rs"><display-name lang="sr-Latn">Prvi</display-name><display-name>Prvi HD</display-name>
    <icon src="http://guide.example/one.png"/></channel>
  <channel id="two"><display-name lang="hu"> </display-name><display-name>Két csatorna</display-name>
    <icon src="file:///etc/hostname"/></channel>
  <channel id="three"/><channel/><channel id="two"><display-name>Again</display-name></channel>
  <programme channel="one.rs" start="20261122190000 +0100" stop="20261122200000 +0100"><title>A</title></programme>
  <programme channel="two" start="20261123190000 +0100" stop="20261123200000 +0100"><title>B</title></programme>
  <programme channel="two" start="20261123190000" stop="20261123200000"><title>no offset</title></programme>
  <programme channel="unknown" start="20261123190000 +0100" stop="20261123200000 +0100"><title>C</title></programme>
</tv>)";

class GuideImportTest : public ::testing::Test
{
protected:
    std::variant<ImportReport, QString> import(const QString& source)
    {
        GuideIcons drawn(icons, clock);
        return GuideImport(session, catalogue, drawn).import(source, [this] { return isEnded; });
    }
    void expectRefused(const QString& source, const QString& words)
    {
        const auto outcome = import(source);
        ASSERT_TRUE(std::holds_alternative<QString>(outcome)) << qPrintable(source);
        EXPECT_TRUE(std::get<QString>(outcome).contains(words)) << qPrintable(std::get<QString>(outcome));
        EXPECT_FALSE(QFile::exists(catalogue)) << "everything stays as it was";
    }

    QTemporaryDir folder;
    QString catalogue = folder.filePath(QStringLiteral("documents/Data.plist"));
    QString icons = folder.filePath(QStringLiteral("documents/icons"));
    test::ScriptedSession session;
    FixedClock clock{*instantFromIsoText(u"2026-11-22T19:00:00Z")};
    bool isEnded = false;
};

TEST_F(GuideImportTest, makesACatalogueThatTheProgramKeepsWhole)
{
    session.answer(address, {200, guide, "text/xml", {}});
    const auto outcome = import(address);
    ASSERT_TRUE(std::holds_alternative<ImportReport>(outcome));
    const auto& report = std::get<ImportReport>(outcome);
    EXPECT_EQ(report.guide.programmes, 2U);
    EXPECT_EQ(report.guide.days, 2U);
    EXPECT_EQ(report.guide.channelsWithoutId, 1U);
    EXPECT_EQ(report.guide.channelsTwice, 1U);
    EXPECT_EQ(report.guide.programmesWithoutTimes, 1U);
    EXPECT_EQ(report.guide.programmesOfUnknownChannels, 1U);
    EXPECT_EQ(session.takeRequests(), QStringList{address}) << "icons are for later";
    EXPECT_EQ(GuideImport::addressOfCatalogue(catalogue)->text(), address);

    const TVStationIcons stored(icons);
    const ChannelData data = loadChannelData({catalogue, icons, folder.filePath(QStringLiteral("cache"))},
                                             [&](const QString& name) { return stored.iconNamed(name).has_value(); });
    ASSERT_EQ(data.size(), 3U);
    const auto channel = [&](const char* id) { return data.at(GuideImport::idOfChannel(QLatin1String(id))); };
    EXPECT_EQ(channel("one.rs").title(), u"Prvi");
    EXPECT_EQ(channel("one.rs").language(), u"sr");
    EXPECT_EQ(channel("one.rs").sources(), std::vector<QString>{QStringLiteral("tvpc.one.rs")});
    EXPECT_EQ(channel("two").title(), QString::fromUtf8("Két csatorna"));
    EXPECT_EQ(channel("two").language(), u"");
    EXPECT_EQ(channel("three").title(), u"three") << "a channel without a name is called by its id";
}

TEST_F(GuideImportTest, changesNothingWhenItIsEnded)
{
    session.answer(address, {200, guide, "text/xml", {}});
    isEnded = true;
    expectRefused(address, QStringLiteral("ended"));
}

TEST_F(GuideImportTest, refusesWhatIsNoGuide)
{
    session.answer(QStringLiteral("http://a.example/"), {200, "<html><body>hello</body></html>", "text/html", {}});
    session.answer(QStringLiteral("http://b.example/"), {200, QByteArray(), "text/xml", {}});
    session.answer(QStringLiteral("http://c.example/"), {404, "not here", "text/html", {}});
    session.answer(QStringLiteral("http://d.example/"), {200, "<tv></tv>", "text/xml", {}});
    session.answer(QStringLiteral("http://e.example/"), {200,
                                                         "\xfd"
                                                         "7zXZ" +
                                                             QByteArray(40, '\0'),
                                                         "x",
                                                         {}});
    expectRefused(QStringLiteral("http://a.example/"), QStringLiteral("no XMLTV guide"));
    expectRefused(QStringLiteral("http://b.example/"), QStringLiteral("is empty"));
    expectRefused(QStringLiteral("http://c.example/"), QStringLiteral("404"));
    expectRefused(QStringLiteral("http://d.example/"), QStringLiteral("no channels"));
    expectRefused(QStringLiteral("http://e.example/"), QStringLiteral("no XMLTV guide"));
    expectRefused(QStringLiteral("http://unreachable.example/"), QStringLiteral("can't be reached"));
    expectRefused(QStringLiteral("ftp://guide.example/"), QStringLiteral("no address of a guide"));
}

TEST(OwnGuideSession, followsRedirectsOfTheGuideAloneAndNeverToAFile)
{
    test::ScriptedSession network;
    network.answer(address, {302, {}, "text/html", "/moved"});
    network.answer(QStringLiteral("http://guide.example/moved"), {301, {}, "text/html", "https://other.example/g"});
    network.answer(QStringLiteral("https://other.example/g"), {200, guide, "application/octet-stream", {}});
    network.answer(QStringLiteral("http://else.example/"), {302, {}, "text/html", "/moved"});
    OwnGuideSession session(network, URL::fromText(address));
    EXPECT_EQ(session.perform(URLRequest(*URL::fromText(address))).response->statusCode, 200);
    EXPECT_EQ(session.perform(URLRequest(*URL::fromText(u"http://else.example/"))).response->statusCode, 302);

    network.answer(address, {302, {}, "text/html", "file:///etc/passwd"});
    network.takeRequests();
    EXPECT_EQ(session.perform(URLRequest(*URL::fromText(address))).response->statusCode, 302);
    EXPECT_EQ(network.takeRequests().size(), 1);
}

TEST(OwnGuideSession, tellsPackingAndCharacterSetByContent)
{
    const std::vector<std::tuple<QByteArray, QByteArray, QByteArray>> cases{
        {"\x1f\x8b...", "application/octet-stream", "application/x-gzip"},
        {QByteArray("\xfd"
                    "7zXZ\0..",
                    8),
         "text/xml", "application/x-xz"},
        {"<tv/>", "text/xml", "text/xml; charset=utf-8"},
        {"<?xml version='1.0' encoding='ISO-8859-2'?><tv/>", "text/xml", "text/xml; charset=ISO-8859-2"},
        {"<?xml version='1.0' encoding='ISO-8859-2'?><tv/>", "text/xml; charset=\"UTF-8\"; x=1",
         "text/xml; charset=UTF-8"},
    };
    for (const auto& [body, given, expected] : cases) {
        URLResponse response;
        response.headerFields.set("Content-Type", given);
        describeByContent(response, body);
        EXPECT_EQ(response.headerFields.value("Content-Type"), expected) << body.constData();
    }
}

} // namespace
} // namespace vidora
