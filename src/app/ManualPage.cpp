#include "app/ManualPage.h"

#include "app/Command.h"
#include "platform/Settings.h"

namespace vidora {

namespace {

/// A text as it is to be printed: no character of it is a request or an escape, and its dashes can be copied.
QString plain(const QString& text)
{
    QString result = text;
    result.replace(QLatin1Char('\\'), QLatin1String("\\e")).replace(QLatin1Char('-'), QLatin1String("\\-"));
    const bool isRequest = result.startsWith(QLatin1Char('.')) || result.startsWith(QLatin1Char('\''));
    return isRequest ? QString(QLatin1String("\\&") + result) : result;
}

QString plain(const char* text)
{
    return plain(QString::fromUtf8(text));
}

QString bold(const char* text)
{
    return QLatin1String("\\fB") + plain(text) + QLatin1String("\\fR");
}

QString heading(const char* text)
{
    return QLatin1String(".SH ") + QLatin1String(text) + QLatin1Char('\n');
}

/// A sentence out of a meaning, which begins small and has no full stop.
QString sentence(const char* meaning)
{
    QString text = plain(meaning);
    text[0] = text[0].toUpper();
    return text.endsWith(QLatin1Char('.')) ? text : text + QLatin1Char('.');
}

QString entry(const QString& typed, const char* meaning)
{
    return QLatin1String(".TP\n") + typed + QLatin1Char('\n') + sentence(meaning) + QLatin1Char('\n');
}

QString typed(const CommandOption& option)
{
    return option.value ? bold(option.name) + QLatin1String(" \\fI") + plain(option.value) + QLatin1String("\\fR")
                        : bold(option.name);
}

QString entries(const std::vector<CommandOption>& options)
{
    QString text;
    for (const CommandOption& option : options)
        text += entry(typed(option), option.meaning);
    return text;
}

QString entryOf(const Command& command)
{
    QString usage = bold(command.name);
    if (*command.arguments)
        usage += QLatin1String(" \\fI") + plain(command.arguments) + QLatin1String("\\fR");
    for (const CommandOption& option : command.options)
        usage +=
            option.isRequired ? QString(QLatin1Char(' ') + typed(option)) : QStringLiteral(" [%1]").arg(typed(option));
    QString text = entry(usage, command.meaning);
    if (!command.options.empty())
        text += QLatin1String(".RS\n") + entries(command.options) + QLatin1String(".RE\n");
    return text;
}

QString commands()
{
    QString text;
    for (const CommandFamily* family : commandFamilies()) {
        for (const Command& command : *family) {
            if (*command.name)
                text += entryOf(command);
        }
    }
    return text;
}

QString settings()
{
    QString text;
    for (const Setting* setting : setting::ofUser) {
        text += entry(bold(setting->key), setting->meaning) +
                plain(QStringLiteral("Takes %1; %2 unless set.\n").arg(setting->range(), setting->usualText()));
    }
    return text;
}

constexpr auto files = R"(.TP
.I ~/.local/share/vidora
The selection, the favourites, the calendars of this device, and an imported guide with its icons.
.TP
.I ~/.cache/vidora
The lists of shows. May be removed at any time.
.TP
.I ~/.config/vidora/settings.json
The settings.
.TP
.I ~/.config/vidora/endpoints.json
Optional: addresses of providers, in place of the program's own.
)";

constexpr auto status = R"(.TP
.B 0
Done.
.TP
.B 1
Not done, or not all of it; standard error says why.
.TP
.B 2
Asked wrongly; nothing was tried.
.TP
.B 128+N
Ended by signal N; what had come was kept.
)";

constexpr auto environment = R"(.TP
.BR LANG ", " LANGUAGE
The language of all texts.
.TP
.BR XDG_DATA_HOME ", " XDG_CACHE_HOME ", " XDG_CONFIG_HOME
Where the files lie.
.TP
.B NO_COLOR
No colours on the terminal.
)";

} // namespace

QString manualPage(const QString& version)
{
    return QStringLiteral(".TH VIDORA 1 \"\" \"vidora %1\" \"User Commands\"\n").arg(version) + heading("NAME") +
           QLatin1String("vidora \\- a personal TV guide\n") + heading("SYNOPSIS") +
           QLatin1String("\\fBvidora\\fR [\\fICOMMAND\\fR] [\\fIOPTION\\fR]...\n") + heading("DESCRIPTION") +
           plain(commandNamed(QString())->meaning) + QLatin1Char('\n') +
           QLatin1String("X is a title, a part of it that only one has, or an id; case and accents don't count.\n") +
           heading("COMMANDS") + commands() + heading("OPTIONS") + entries(generalOptions()) + heading("SETTINGS") +
           settings() + heading("\"EXIT STATUS\"") + QLatin1String(status) + heading("ENVIRONMENT") +
           QLatin1String(environment) + heading("FILES") + QLatin1String(files) + heading("\"SEE ALSO\"") +
           QLatin1String(".BR vidora-inspect (1),\n.BR vidora-sample-region (1)\n");
}

} // namespace vidora
