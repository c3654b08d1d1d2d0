#include "app/Command.h"
#include "app/CommandLine.h"

#include <gmock/gmock.h>
#include <set>

namespace vidora {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

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
    EXPECT_TRUE(readCommandLine(words("alarm|-h")).line.help) << "whatever else it needs";
    EXPECT_TRUE(readCommandLine(words("vidora://x")).line.opensAddress());
    EXPECT_FALSE(readCommandLine(words("search|vidora://x")).line.opensAddress());
}

TEST(CommandLine, KnowsCommandsOfTwoWords)
{
    const auto added = readCommandLine(words("calendars|--user|ana|add|host")).line;
    EXPECT_EQ(added.command, QStringLiteral("calendars add"));
    EXPECT_EQ(added.arguments, words("host"));
    EXPECT_EQ(readCommandLine(words("calendars|--|test")).line.arguments, words("test")) << "a calendar of that name";
    EXPECT_EQ(readCommandLine(words("calendars|my|test")).line.arguments, words("my|test"));
}

TEST(CommandLine, SaysWhatIsWrong)
{
    for (const char* text : {"nonsense",
                             "nonsense|--help",
                             "now|later",
                             "import",
                             "import|a|b",
                             "search",
                             "search| ",
                             "vidora://x|y",
                             "select",
                             "--nonsense",
                             "-j",
                             "--home",
                             "now|--home=",
                             "now|--json=1",
                             "--clock|yesterday",
                             "--clock",
                             "now|--at|20:00",
                             "alarm|X",
                             "alarm|X|--at|8",
                             "alarm|X|--at|20:00|--before|-1",
                             "favourite|X|--alarm|10081",
                             "favourite|X|--replays",
                             "favourite|X|--alarm|5|--premieres|--replays",
                             "silent-hours|on and off",
                             "silent-hours|25:00|07:00",
                             "silent-hours|07:00",
                             "calendars|add",
                             "calendars|add|host",
                             "calendars|--user|ana",
                             "calendars|test|--force"})
        EXPECT_TRUE(readCommandLine(words(text)).error) << text;
    EXPECT_EQ(readCommandLine(words("alarm|X")).error, QStringLiteral("alarm needs --at TIME."));
    EXPECT_EQ(readCommandLine(words("search")).error, QStringLiteral("search needs TEXT."));
}

TEST(CommandTable, IsWholeAndInTheHelp)
{
    const QString overview = commandLineHelp();
    std::set<QString> names;
    std::map<QString, std::pair<bool, ValueKind>> options; // options may stand ahead of the command
    for (const CommandFamily* family : commandFamilies()) {
        for (const Command& command : *family) {
            const QString name = QString::fromUtf8(command.name);
            EXPECT_TRUE(names.insert(name).second) << command.name;
            EXPECT_TRUE(command.run && *command.meaning && command.least <= command.most) << command.name;
            EXPECT_THAT(overview.toStdString(), HasSubstr("\n  " + std::string(command.name))) << command.name;
            const std::string help = helpFor(name).toStdString();
            EXPECT_THAT(help, StartsWith("Usage: vidora " + (name.isEmpty() ? "[COMMAND]" : name.toStdString())));
            for (const CommandOption& option : command.options) {
                EXPECT_THAT(help, HasSubstr("\n  " + std::string(option.name)));
                const auto form = std::pair(option.value != nullptr, option.kind);
                EXPECT_EQ(options.try_emplace(QString::fromUtf8(option.name), form).first->second, form)
                    << option.name << " is read alike everywhere";
            }
        }
    }
    for (const CommandOption& option : generalOptions())
        EXPECT_THAT(overview.toStdString(), HasSubstr("\n  " + std::string(option.name)));
    for (const QString& line : overview.split(QLatin1Char('\n')))
        EXPECT_LE(line.size(), 80) << line.toStdString();
}

} // namespace
} // namespace vidora
