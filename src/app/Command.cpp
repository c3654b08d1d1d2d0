#include "app/Command.h"

#include "platform/Localized.h"

#include <QHash>

namespace vidora {

namespace {

QHash<QString, const Command*> commandsByName()
{
    QHash<QString, const Command*> commands;
    for (const CommandFamily* family : commandFamilies()) {
        for (const Command& command : *family)
            commands.insert(QString::fromLatin1(command.name), &command);
    }
    return commands;
}

} // namespace

QString Command::usage() const
{
    QString text = QLatin1String("vidora");
    for (const QString& part : {QString::fromLatin1(name), localized(arguments)}) {
        if (!part.isEmpty())
            text += QLatin1Char(' ') + part;
    }
    for (const CommandOption& option : options) {
        QString part = QString::fromLatin1(option.name);
        if (option.value)
            part += QLatin1Char(' ') + localized(option.value);
        text += option.isRequired ? QString(QLatin1Char(' ') + part) : QStringLiteral(" [%1]").arg(part);
    }
    return text;
}

std::vector<const CommandFamily*> commandFamilies()
{
    return {&showCommands(),  &channelCommands(),  &guideCommands(),  &favouriteCommands(),
            &alarmCommands(), &calendarCommands(), &settingCommands()};
}

const Command* commandNamed(const QString& name)
{
    static const QHash<QString, const Command*> commands = commandsByName();
    return commands.value(name);
}

const std::vector<CommandOption>& generalOptions()
{
    static const std::vector<CommandOption> options{
        {.name = "--json", .meaning = QT_TRANSLATE_NOOP("vidora", "answers for programs")},
        {.name = "--home",
         .value = QT_TRANSLATE_NOOP("vidora", "DIR"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "keep everything in this folder"),
         .kind = ValueKind::Folder},
        {.name = "--clock",
         .value = QT_TRANSLATE_NOOP("vidora", "TIME"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "the guide as at another moment: 2026-11-22T19:00:00Z"),
         .kind = ValueKind::Moment},
        {.name = "--log", .meaning = QT_TRANSLATE_NOOP("vidora", "say on standard error what was fetched and found")},
        {.name = "--help", .meaning = QT_TRANSLATE_NOOP("vidora", "this text; behind a command, what it takes")},
        {.name = "--version", .meaning = QT_TRANSLATE_NOOP("vidora", "the version of the program")},
        {.name = "--self-test", .meaning = QT_TRANSLATE_NOOP("vidora", "load every part of the window and quit")},
    };
    return options;
}

} // namespace vidora
