#include "app/CommandLine.h"

#include "app/Command.h"
#include "app/Refusal.h"
#include "platform/Localized.h"

#include <QTime>

#include <algorithm>

namespace vidora {

namespace {

constexpr int mostMinutes = 7 * 24 * 60;

const CommandOption* optionNamed(const QString& name, const std::vector<CommandOption>& options)
{
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&](const CommandOption& option) { return name == QLatin1String(option.name); });
    return found == options.end() ? nullptr : &*found;
}

/// The option of this name that every command or any command takes: options may stand ahead of the command.
const CommandOption* optionNamed(const QString& name)
{
    const CommandOption* found = optionNamed(name, generalOptions());
    for (const CommandFamily* family : commandFamilies()) {
        for (const Command& command : *family)
            found = found ? found : optionNamed(name, command.options);
    }
    return found;
}

void checkMinutes(const QString& value, const QString& option)
{
    bool isNumber = false;
    const int minutes = value.toInt(&isNumber);
    if (!isNumber || minutes < 0 || minutes > mostMinutes)
        throw UsageError{
            localized("%1 takes a number of minutes from 0 to %2.").arg(option, QString::number(mostMinutes))};
}

void checkValue(const QString& value, const CommandOption& option)
{
    const QString name = QString::fromLatin1(option.name);
    const bool isMoment = instantFromIsoText(value).has_value();
    switch (option.kind) {
    case ValueKind::Minutes:
        return checkMinutes(value, name);
    case ValueKind::Time:
        if (!isMoment && !QTime::fromString(value, QStringLiteral("H:mm")).isValid())
            throw UsageError{localized("%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.").arg(name)};
        return;
    case ValueKind::Moment:
        if (!isMoment)
            throw UsageError{localized("%1 takes a time such as 2026-11-22T19:00:00Z.").arg(name)};
        return;
    case ValueKind::Text:
    case ValueKind::Title:
    case ValueKind::Channel:
    case ValueKind::File:
    case ValueKind::Folder:
        return;
    }
}

QString missing(const QString& what, const QString& needed)
{
    return localized("%1 needs %2.").arg(what, needed);
}

class Reader
{
public:
    explicit Reader(const QStringList& arguments)
        : m_arguments(arguments)
    {
    }

    CommandLineResult read()
    {
        try {
            while (m_next < m_arguments.size())
                readOne(m_arguments.at(m_next++));
            takeGeneralOptions();
            if (!m_line.command.isEmpty() && !m_line.opensAddress())
                checkCommand();
            return {m_line, std::nullopt};
        } catch (const UsageError& error) {
            return {m_line, error.message};
        }
    }

private:
    void readOne(const QString& argument)
    {
        if (m_optionsEnded || !argument.startsWith(QLatin1Char('-')) || argument.size() == 1)
            readWord(argument);
        else if (argument == QLatin1String("--"))
            m_optionsEnded = true;
        else if (argument == QLatin1String("-h"))
            m_line.options.insert(QStringLiteral("--help"), {});
        else
            readOption(argument);
    }

    void readWord(const QString& word)
    {
        const QString both = m_line.command + QLatin1Char(' ') + word;
        if (m_line.command.isEmpty())
            m_line.command = word;
        else if (m_line.arguments.isEmpty() && !m_optionsEnded && commandNamed(both))
            m_line.command = both;
        else
            m_line.arguments << word;
    }

    void readOption(const QString& argument)
    {
        const qsizetype equals = argument.indexOf(QLatin1Char('='));
        const QString name = argument.left(equals);
        const CommandOption* option = optionNamed(name);
        if (!option || (!option->value && equals >= 0))
            throw UsageError{localized("Unknown option %1.").arg(name)};
        m_line.options.insert(name, option->value ? valueOf(*option, argument, equals) : QString());
    }

    QString valueOf(const CommandOption& option, const QString& argument, qsizetype equals)
    {
        const bool isNext = equals < 0 && m_next < m_arguments.size();
        const QString value = isNext ? m_arguments.at(m_next++) : equals < 0 ? QString() : argument.mid(equals + 1);
        if (value.isEmpty())
            throw UsageError{missing(QString::fromLatin1(option.name), localized(option.value))};
        checkValue(value, option);
        return value;
    }

    void takeGeneralOptions()
    {
        const auto given = [this](const char* name) { return m_line.options.contains(QLatin1String(name)); };
        m_line.json = given("--json");
        m_line.log = given("--log");
        m_line.help = given("--help");
        m_line.version = given("--version");
        m_line.selfTest = given("--self-test");
        if (given("--home"))
            m_line.home = m_line.options.value(QStringLiteral("--home"));
        if (given("--clock"))
            m_line.clock = instantFromIsoText(m_line.options.value(QStringLiteral("--clock")));
    }

    void checkCommand() const
    {
        const Command* command = commandNamed(m_line.command);
        if (!command)
            throw UsageError{localized("Unknown command %1.").arg(m_line.command)};
        if (m_line.help)
            return;
        checkArguments(*command);
        checkOptions(*command);
        if (command->check)
            command->check(m_line);
    }

    void checkArguments(const Command& command) const
    {
        const QStringList& arguments = m_line.arguments;
        const bool isBlank = !arguments.isEmpty() && arguments.join(QString()).trimmed().isEmpty();
        if (arguments.size() < command.least || (isBlank && command.most > 0))
            throw UsageError{missing(m_line.command, localized(command.arguments))};
        if (arguments.size() > command.most)
            throw UsageError{localized("%1 does not take \"%2\".").arg(m_line.command, arguments.at(command.most))};
    }

    void checkOptions(const Command& command) const
    {
        for (const QString& name : m_line.options.keys()) {
            if (!optionNamed(name, generalOptions()) && !optionNamed(name, command.options))
                throw UsageError{localized("%1 does not take %2.").arg(m_line.command, name)};
        }
        for (const CommandOption& option : command.options) {
            const QString name = QString::fromLatin1(option.name);
            if (option.isRequired && !m_line.options.contains(name))
                throw UsageError{missing(m_line.command, name + QLatin1Char(' ') + localized(option.value))};
        }
    }

    const QStringList& m_arguments;
    qsizetype m_next = 0;
    bool m_optionsEnded = false;
    CommandLine m_line;
};

} // namespace

CommandLineResult readCommandLine(const QStringList& arguments)
{
    return Reader(arguments).read();
}

} // namespace vidora
