#include "app/Command.h"
#include "app/ManualPage.h"
#include "app/ShellCompletion.h"
#include "platform/Settings.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace vidora {
namespace {

using ::testing::HasSubstr;

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

/// Every word that can be typed: commands, the second words of some, options.
QStringList words()
{
    QStringList words;
    const auto add = [&](const std::vector<CommandOption>& options) {
        for (const CommandOption& option : options)
            words << utf8(option.name);
    };
    for (const CommandFamily* family : commandFamilies()) {
        for (const Command& command : *family) {
            words << utf8(command.name).split(QLatin1Char(' '), Qt::SkipEmptyParts);
            add(command.options);
        }
    }
    add(generalOptions());
    return words;
}

QString output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60'000)) << program.toStdString();
    EXPECT_EQ(process.readAllStandardError().toStdString(), "") << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

TEST(Manual, NamesAllThatCanBeTyped)
{
    const std::string page = manualPage(utf8("1")).toStdString();
    QString fishWords = fishCompletion();
    fishWords.replace(utf8("-l "), utf8("--"));
    for (const QString& word : words()) {
        EXPECT_THAT(page, HasSubstr(QString(word).replace(utf8("-"), utf8("\\-")).toStdString()));
        for (const QString& completion : {bashCompletion(), zshCompletion(), fishWords})
            EXPECT_TRUE(completion.contains(word)) << word.toStdString();
    }
    for (const Setting* setting : setting::ofUser)
        EXPECT_THAT(page, HasSubstr(std::string("\\fB") + setting->key));
}

TEST(Manual, PagesOfTheOtherProgramsNameAllThatCanBeTyped)
{
    struct Program
    {
        const char *path, *page;
    };
    for (const Program& program : {Program{VIDORA_REGION_PROGRAM, "vidora-sample-region.1"},
                                   Program{VIDORA_INSPECT_PROGRAM, "vidora-inspect.1"}}) {
        QFile file(utf8(VIDORA_MANUAL_PAGES "/") + utf8(program.page));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << program.page;
        const QString page = QString::fromUtf8(file.readAll()).remove(QLatin1Char('\\'));
        static const QRegularExpression word(utf8("--[a-z-]+|^  [a-z-]+$"), QRegularExpression::MultilineOption);
        const QString help = output(utf8(program.path), {utf8("--help")});
        int found = 0;
        for (auto match = word.globalMatch(help); match.hasNext(); ++found) {
            const QString name = match.next().captured().trimmed();
            EXPECT_TRUE(page.contains(name)) << program.page << ": " << name.toStdString();
        }
        EXPECT_GT(found, 5) << program.page;
    }
}

TEST(ShellCompletion, CompletesInBash)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(utf8("completion")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bashCompletion().toUtf8());
    file.close();
    ASSERT_TRUE(QDir(folder.path()).mkpath(utf8("guides")));
    struct Case
    {
        const char *typed, *found;
    };
    for (const Case& c : {
             Case{"vidora unf", "unfavourite"},
             Case{"vidora --js", "--json"},
             Case{"vidora --home guides sel", "select"}, // the folder is no command
             Case{"vidora alarm News --b", "--before"},
             Case{"vidora now --b", ""}, // what another command takes
             Case{"vidora alarm News --at 2", ""},
             Case{"vidora calendars t", "test"},
             Case{"vidora import gui", "guides"},
             Case{"vidora search gui", ""},
             Case{"vidora --home gui", "guides"},
         }) {
        const QString script = utf8("cd '%1'; . ./completion; COMP_WORDS=(%2); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
                                    "_vidora; printf '%s' \"${COMPREPLY[*]}\"")
                                   .arg(folder.path(), utf8(c.typed));
        EXPECT_EQ(output(utf8("bash"), {utf8("-c"), script}), utf8(c.found)) << c.typed;
    }
}

} // namespace
} // namespace vidora
