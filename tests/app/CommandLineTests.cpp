#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

QStringList words(const char* line)
{
    return QString::fromUtf8(line).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

TEST(CommandLine, TakesOptionsAnywhere)
{
    for (const char* text : {"--json|--home|/h|search|a|b|--clock=2026-11-22T19:00:00Z|--log",
                             "search|--home=/h|a|--json|b|--log|--clock|2026-11-22T19:00:00Z"}) {
        const auto [line, error] = readCommandLine(words(text));
        ASSERT_FALSE(error) << text;
        EXPECT_EQ(line.command, QStringLiteral("search"));
        EXPECT_EQ(line.arguments, words("a|b"));
        EXPECT_TRUE(line.json && line.log && !line.help);
        EXPECT_EQ(line.home, QStringLiteral("/h"));
        EXPECT_EQ(line.clock, instantFromIsoText(QStringLiteral("2026-11-22T19:00:00Z")));
    }
    const auto ended = readCommandLine(words("channel|--|--json")).line;
    EXPECT_EQ(ended.arguments, words("--json"));
    EXPECT_FALSE(ended.json);
    EXPECT_TRUE(readCommandLine({}).line.command.isEmpty());
    EXPECT_TRUE(readCommandLine(words("nonsense|-h")).line.help);
    EXPECT_TRUE(readCommandLine(words("vidora://x")).line.opensAddress());
    EXPECT_FALSE(readCommandLine(words("search|vidora://x")).line.opensAddress());
}

TEST(CommandLine, SaysWhatIsWrong)
{
    for (const char* text : {"nonsense", "now|later", "import", "import|a|b", "search", "vidora://x|y", "select",
                             "--nonsense", "--home", "now|--home=", "now|--json=1", "--clock|yesterday", "--clock"})
        EXPECT_TRUE(readCommandLine(words(text)).error) << text;
}

} // namespace
} // namespace vidora
