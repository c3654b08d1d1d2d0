#include "app/ShellCompletion.h"

#include "app/Command.h"

#include <QMap>
#include <QStringList>

namespace vidora {

namespace {

/// All commands of one first word: "calendars", "calendars add" and so on.
struct Word
{
    QString meaning;
    QStringList next; ///< the second words
    std::vector<CommandOption> options;
    ValueKind arguments = ValueKind::Text;
};

QMap<QString, Word> firstWords()
{
    QMap<QString, Word> words;
    for (const CommandFamily* family : commandFamilies()) {
        for (const Command& command : *family) {
            const QStringList name = QString::fromLatin1(command.name).split(QLatin1Char(' '), Qt::SkipEmptyParts);
            if (name.isEmpty())
                continue;
            Word& word = words[name.front()];
            word.options.insert(word.options.end(), command.options.begin(), command.options.end());
            if (name.size() > 1) {
                word.next << name.back();
            } else {
                word.meaning = QString::fromUtf8(command.meaning);
                word.arguments = command.kind;
            }
        }
    }
    return words;
}

QStringList names(const std::vector<CommandOption>& options)
{
    QStringList names;
    for (const CommandOption& option : options)
        names << QString::fromLatin1(option.name);
    return names;
}

/// Those that take a value that is a folder, or is none.
QStringList withValue(const std::vector<CommandOption>& options, bool isFolder)
{
    QStringList names;
    for (const CommandOption& option : options) {
        if (option.value && (option.kind == ValueKind::Folder) == isFolder)
            names << QString::fromLatin1(option.name);
    }
    names.removeDuplicates();
    return names;
}

QString joined(const QStringList& words, const char* separator)
{
    return words.join(QLatin1String(separator));
}

/// In single quotes, as shells take it literally.
QString quoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\'');
}

constexpr auto bashFunction = R"(_vidora() {
    local current=${COMP_WORDS[COMP_CWORD]} command='' next='' files='' i
    local options='%1'
    COMPREPLY=()
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
        %2 | %5) ((++i)) ;;
        -*) ;;
        *) [ -n "$command" ] || command=${COMP_WORDS[i]} ;;
        esac
    done
    case $command in
    '') next='%3' ;;
%4    esac
    # The word ahead takes a value: of most of them nothing is known.
    case ${COMP_WORDS[COMP_CWORD - 1]} in
    %5) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
    %2) return ;;
    esac
    case $current in
    -*) mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current") ;;
    *) mapfile -t COMPREPLY < <(compgen ${files:+-f} -W "$next" -- "$current") ;;
    esac
} &&
    complete -o filenames -F _vidora vidora
)";

QString zshOption(const CommandOption& option)
{
    QString text = QString::fromLatin1(option.name) + (option.value ? QLatin1String("=[") : QLatin1String("[")) +
                   QString::fromUtf8(option.meaning).replace(QLatin1Char(':'), QLatin1String("\\:")) + QLatin1Char(']');
    if (option.value)
        text += QLatin1Char(':') + QString::fromLatin1(option.value) + QLatin1Char(':') +
                QLatin1String(option.kind == ValueKind::Folder ? "_directories" : "");
    return QLatin1Char(' ') + quoted(text);
}

QString zshArguments(const Word& word)
{
    if (!word.next.isEmpty())
        return QLatin1Char(' ') + quoted(QStringLiteral("1:command:(%1)").arg(joined(word.next, " ")));
    return QLatin1Char(' ') +
           quoted(QLatin1String("*:argument:") + QLatin1String(word.arguments == ValueKind::File ? "_files" : ""));
}

} // namespace

QString bashCompletion()
{
    std::vector<CommandOption> all = generalOptions();
    QStringList cases;
    const QMap<QString, Word> words = firstWords();
    for (auto word = words.begin(); word != words.end(); ++word) {
        all.insert(all.end(), word->options.begin(), word->options.end());
        QStringList found;
        if (!word->options.empty())
            found << QStringLiteral("options+=' %1'").arg(joined(names(word->options), " "));
        if (!word->next.isEmpty())
            found << QStringLiteral("next='%1'").arg(joined(word->next, " "));
        if (word->arguments == ValueKind::File)
            found << QStringLiteral("files=yes");
        if (!found.isEmpty())
            cases << QStringLiteral("    %1) %2 ;;\n").arg(word.key(), joined(found, " "));
    }
    return QLatin1String("# bash completion of vidora(1)\n") +
           QString::fromLatin1(bashFunction)
               .arg(joined(names(generalOptions()), " "), joined(withValue(all, false), " | "),
                    joined(QStringList(words.keys()), " "), cases.join(QString()), joined(withValue(all, true), " | "));
}

QString zshCompletion()
{
    QString general, described, cases;
    for (const CommandOption& option : generalOptions())
        general += QLatin1String(" \\\n       ") + zshOption(option);
    const QMap<QString, Word> words = firstWords();
    for (auto word = words.begin(); word != words.end(); ++word) {
        described +=
            QLatin1String("        ") + quoted(word.key() + QLatin1Char(':') + word->meaning) + QLatin1Char('\n');
        cases += QStringLiteral("    %1) _arguments $general").arg(word.key());
        for (const CommandOption& option : word->options)
            cases += QLatin1String(" \\\n       ") + zshOption(option);
        cases += QLatin1String(" \\\n       ") + zshArguments(*word) + QLatin1String(" ;;\n");
    }
    return QStringLiteral("#compdef vidora\n"
                          "_vidora() {\n"
                          "    local -a general commands\n"
                          "    local state line\n"
                          "    general=(%1)\n"
                          "    commands=(\n%2    )\n"
                          "    _arguments -C $general '1: :->command' '*:: :->arguments'\n"
                          "    case $state in\n"
                          "    command) _describe command commands; return ;;\n"
                          "    arguments) ;;\n"
                          "    *) return ;;\n"
                          "    esac\n"
                          "    case $words[1] in\n%3    esac\n"
                          "}\n"
                          "_vidora \"$@\"\n")
        .arg(general, described, cases);
}

QString fishCompletion()
{
    const auto line = [](const QString& condition, const QString& rest, const QString& meaning) -> QString {
        return QLatin1String("complete -c vidora") +
               (condition.isEmpty() ? QString() : QLatin1String(" -n ") + quoted(condition)) + QLatin1Char(' ') + rest +
               QLatin1String(" -d ") + quoted(meaning) + QLatin1Char('\n');
    };
    const auto option = [&](const QString& condition, const CommandOption& given) {
        QString rest = QLatin1String("-l ") + QString::fromLatin1(given.name).mid(2);
        if (given.value)
            rest += QLatin1String(given.kind == ValueKind::Folder ? " -x -a '(__fish_complete_directories)'" : " -x");
        return line(condition, rest, QString::fromUtf8(given.meaning));
    };
    QString text = QLatin1String("# fish completion of vidora(1)\ncomplete -c vidora -f\n");
    for (const CommandOption& given : generalOptions())
        text += option({}, given);
    const QMap<QString, Word> words = firstWords();
    for (auto word = words.begin(); word != words.end(); ++word) {
        const QString seen = QLatin1String("__fish_seen_subcommand_from ") + word.key();
        text += line(QStringLiteral("__fish_use_subcommand"), QLatin1String("-a ") + word.key(), word->meaning);
        for (const CommandOption& given : word->options)
            text += option(seen, given);
        for (const QString& next : word->next)
            text += line(seen, QLatin1String("-a ") + next, word->meaning);
        if (word->arguments == ValueKind::File)
            text += QStringLiteral("complete -c vidora -n %1 -F\n").arg(quoted(seen));
    }
    return text;
}

} // namespace vidora
