#pragma once

#include <QString>

#include <vector>

namespace vidora {

class CommandSession;
struct CommandLine;

/// What a value on the command line is, for its check and its completion.
enum class ValueKind
{
    Text,
    Minutes, ///< a number, up to a week
    Time,    ///< a time of day, or a moment in the form of RFC 3339
    Moment,  ///< the latter alone
    Title,   ///< of something, or a part of it
    Channel, ///< the title of one, a part of it, or an id
    File,
    Folder
};

/// An option. Texts are English keys of the translation.
struct CommandOption
{
    const char* name;            ///< with its dashes
    const char* value = nullptr; ///< the word that stands for its value in the help; null for one without
    const char* meaning = "";
    ValueKind kind = ValueKind::Text;
    bool isRequired = false;
};

/// A command of the command line: all that reading it, its help, completion, manual page and run need. Adding one is
/// an entry in the table of its family, and a function.
struct Command
{
    /// Empty for what happens without a command. Two words where the first alone is a command as well.
    const char* name;
    const char* arguments = ""; ///< the words that stand for them in the help; "[...]" where they may be left out
    const char* meaning = "";
    qsizetype least = 0;
    qsizetype most = 0;
    ValueKind kind = ValueKind::Text; ///< of its arguments
    std::vector<CommandOption> options = {};
    /// With how many arguments it changes something in the home, and so waits until no other process uses it.
    qsizetype changesWith = never;
    bool fetches = false; ///< uses the providers, and goes on where nothing can be kept
    bool asksPassword = false;
    /// What options and arguments must fulfil together. Throws UsageError. May be null.
    void (*check)(const CommandLine& line) = nullptr;
    /// Does it. Throws Refusal where it can't be done.
    void (*run)(CommandSession& session) = nullptr;

    static constexpr qsizetype any = 1'000'000; ///< arguments
    static constexpr qsizetype never = any + 1;

    QString usage() const; ///< "vidora alarm X --at TIME [--on CHANNEL]", in the user's language
};

/// A part of the commands that belongs together.
using CommandFamily = std::vector<Command>;

const CommandFamily& showCommands();
const CommandFamily& channelCommands();
const CommandFamily& guideCommands();
const CommandFamily& favouriteCommands();
const CommandFamily& alarmCommands();
const CommandFamily& calendarCommands();
const CommandFamily& settingCommands();

/// All of them, in the order of the help.
std::vector<const CommandFamily*> commandFamilies();
/// Null where there is none.
const Command* commandNamed(const QString& name);
/// The options that every command takes.
const std::vector<CommandOption>& generalOptions();

} // namespace vidora
