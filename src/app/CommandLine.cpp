#include "app/CommandLine.h"

#include "platform/Localized.h"

#include <QHash>

namespace vidora {

namespace {

struct Arity
{
    qsizetype least;
    qsizetype most;
};

constexpr qsizetype any = 1'000'000;

const QHash<QString, Arity>& commands()
{
    static const QHash<QString, Arity> table{
        {QStringLiteral("update"), {0, 0}},        {QStringLiteral("now"), {0, 0}},
        {QStringLiteral("channel"), {1, any}},     {QStringLiteral("category"), {1, any}},
        {QStringLiteral("search"), {1, any}},      {QStringLiteral("channels"), {0, 0}},
        {QStringLiteral("select"), {1, any}},      {QStringLiteral("unselect"), {1, any}},
        {QStringLiteral("import"), {1, 1}},        {QStringLiteral("favourite"), {1, any}},
        {QStringLiteral("unfavourite"), {1, any}}, {QStringLiteral("favourites"), {0, 0}},
        {QStringLiteral("alarm"), {1, any}},       {QStringLiteral("unalarm"), {1, any}},
        {QStringLiteral("alerts"), {0, 0}},        {QStringLiteral("silent-hours"), {0, 2}},
        {QStringLiteral("calendars"), {0, any}},
    };
    return table;
}

/// The options of single commands, and whether they take a value.
const QHash<QString, QHash<QString, bool>>& optionsOfCommands()
{
    static const QHash<QString, QHash<QString, bool>> table{
        {QStringLiteral("favourite"),
         {{QStringLiteral("--alarm"), true},
          {QStringLiteral("--premieres"), false},
          {QStringLiteral("--replays"), false}}},
        {QStringLiteral("alarm"),
         {{QStringLiteral("--at"), true}, {QStringLiteral("--on"), true}, {QStringLiteral("--before"), true}}},
        {QStringLiteral("unalarm"), {{QStringLiteral("--at"), true}, {QStringLiteral("--on"), true}}},
        {QStringLiteral("calendars"), {{QStringLiteral("--user"), true}, {QStringLiteral("--force"), false}}},
    };
    return table;
}

/// Whether an option of any command takes a value; nothing for one that there is not.
std::optional<bool> takesValue(const QString& name)
{
    for (const auto& options : optionsOfCommands()) {
        const auto found = options.constFind(name);
        if (found != options.cend())
            return *found;
    }
    return std::nullopt;
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
        while (m_next < m_arguments.size() && !m_result.error)
            readOne(m_arguments.at(m_next++));
        if (!m_result.error && !m_result.line.help)
            checkCommand();
        return m_result;
    }

private:
    void readOne(const QString& argument)
    {
        CommandLine& line = m_result.line;
        if (m_optionsEnded || !argument.startsWith(QLatin1String("--")) || argument.size() == 2) {
            if (!m_optionsEnded && argument == QLatin1String("--"))
                m_optionsEnded = true;
            else if (!m_optionsEnded && argument == QLatin1String("-h"))
                line.help = true;
            else if (line.command.isEmpty())
                line.command = argument;
            else
                line.arguments << argument;
            return;
        }
        const qsizetype equals = argument.indexOf(QLatin1Char('='));
        const QString name = argument.left(equals);
        if (equals < 0 && name == QLatin1String("--json"))
            line.json = true;
        else if (equals < 0 && name == QLatin1String("--log"))
            line.log = true;
        else if (equals < 0 && name == QLatin1String("--help"))
            line.help = true;
        else if (equals < 0 && name == QLatin1String("--version"))
            line.version = true;
        else if (equals < 0 && name == QLatin1String("--self-test"))
            line.selfTest = true;
        else if (name == QLatin1String("--home"))
            line.home = valueOf(name, argument, equals);
        else if (name == QLatin1String("--clock"))
            readClock(valueOf(name, argument, equals));
        else if (const auto hasValue = takesValue(name); hasValue && (*hasValue || equals < 0))
            line.options.insert(name, *hasValue ? valueOf(name, argument, equals).value_or(QString()) : QString());
        else
            fail(localized("Unknown option %1.").arg(name));
    }

    std::optional<QString> valueOf(const QString& name, const QString& argument, qsizetype equals)
    {
        if (equals >= 0 && equals + 1 < argument.size())
            return argument.mid(equals + 1);
        if (equals < 0 && m_next < m_arguments.size())
            return m_arguments.at(m_next++);
        fail(localized("%1 needs a value.").arg(name));
        return std::nullopt;
    }

    void readClock(const std::optional<QString>& text)
    {
        if (!text)
            return;
        m_result.line.clock = instantFromIsoText(*text);
        if (!m_result.line.clock)
            fail(localized("--clock takes a time such as 2026-11-22T19:00:00Z."));
    }

    void checkCommand()
    {
        const CommandLine& line = m_result.line;
        if (line.command.isEmpty() || line.opensAddress())
            return;
        const auto arity = commands().constFind(line.command);
        if (arity == commands().cend())
            fail(localized("Unknown command %1.").arg(line.command));
        else if (line.arguments.size() < arity->least ||
                 (!line.arguments.isEmpty() && line.arguments.join(QString()).trimmed().isEmpty()))
            fail(localized("%1 needs an argument.").arg(line.command));
        else if (line.arguments.size() > arity->most)
            fail(localized("%1 does not take \"%2\".").arg(line.command, line.arguments.at(arity->most)));
        const auto allowed = optionsOfCommands().value(line.command);
        for (auto option = line.options.keyBegin(); option != line.options.keyEnd(); ++option) {
            if (!allowed.contains(*option))
                fail(localized("%1 does not take %2.").arg(line.command, *option));
        }
    }

    void fail(const QString& message) { m_result.error = message; }

    const QStringList& m_arguments;
    qsizetype m_next = 0;
    bool m_optionsEnded = false;
    CommandLineResult m_result;
};

} // namespace

CommandLineResult readCommandLine(const QStringList& arguments)
{
    return Reader(arguments).read();
}

} // namespace vidora
