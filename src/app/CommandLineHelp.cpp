#include "app/Command.h"
#include "app/CommandLine.h"
#include "platform/Localized.h"

namespace vidora {

namespace {

constexpr qsizetype meaningColumn = 22;
constexpr qsizetype lineWidth = 78;

/// Breaks a text into lines between its words; the first begins at a column, the others at `indentation`.
QString wrapped(const QString& text, qsizetype column, qsizetype indentation)
{
    QString result;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        if (column > indentation && column + 1 + word.size() > lineWidth) {
            result += QLatin1Char('\n') + QString(indentation, QLatin1Char(' '));
            column = indentation;
        } else if (!result.isEmpty()) {
            result += QLatin1Char(' ');
            ++column;
        }
        result += word;
        column += word.size();
    }
    return result + QLatin1Char('\n');
}

/// What is typed, and beside it what it does.
QString entry(const QString& typed, const char* meaning)
{
    QString text = QLatin1String("  ") + typed;
    if (text.size() + 1 < meaningColumn)
        text = text.leftJustified(meaningColumn);
    else
        text += QLatin1Char('\n') + QString(meaningColumn, QLatin1Char(' '));
    return text + wrapped(localized(meaning), meaningColumn, meaningColumn);
}

QString withWord(const char* name, const QString& word)
{
    const QString typed = QString::fromLatin1(name);
    return word.isEmpty() ? typed : typed + QLatin1Char(' ') + word;
}

QString entries(const std::vector<CommandOption>& options)
{
    QString text;
    for (const CommandOption& option : options)
        text += entry(withWord(option.name, option.value ? localized(option.value) : QString()), option.meaning);
    return text;
}

QString entries(const CommandFamily& family)
{
    QString text;
    for (const Command& command : family) {
        if (*command.name)
            text += entry(withWord(command.name, localized(command.arguments)), command.meaning);
    }
    return text + QLatin1Char('\n');
}

QString meaningOfNames()
{
    return wrapped(localized("X is a title, a part of it that only one has, or an id."), 0, 0);
}

QString usageLine(const QString& usage)
{
    return localized("Usage: %1").arg(usage) + QLatin1String("\n\n");
}

} // namespace

QString commandLineHelp()
{
    QString text = usageLine(QLatin1String("vidora ") + localized("[COMMAND] [OPTION]...")) +
                   wrapped(localized(commandNamed(QString())->meaning), 0, 0) + QLatin1Char('\n');
    for (const CommandFamily* family : commandFamilies())
        text += entries(*family);
    return text + meaningOfNames() + QLatin1Char('\n') + entries(generalOptions());
}

QString helpFor(const QString& name)
{
    const Command* command = name.isEmpty() ? nullptr : commandNamed(name);
    if (!command)
        return commandLineHelp();
    QString text = usageLine(command->usage()) + wrapped(localized(command->meaning), 0, 0) + QLatin1Char('\n');
    if (command->kind == ValueKind::Title || command->kind == ValueKind::Channel)
        text += meaningOfNames() + QLatin1Char('\n');
    if (!command->options.empty())
        text += entries(command->options) + QLatin1Char('\n');
    return text + entries(generalOptions());
}

QString helpHint(const QString& name)
{
    const QString command = !name.isEmpty() && commandNamed(name) ? QLatin1Char(' ') + name : QString();
    return localized("\"%1\" tells how.").arg(QLatin1String("vidora") + command + QLatin1String(" --help"));
}

} // namespace vidora
