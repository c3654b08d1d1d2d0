#include "app/CommandLine.h"

#include <QCoreApplication>
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
        else if (equals < 0 && name == QLatin1String("--self-test"))
            line.selfTest = true;
        else if (name == QLatin1String("--home"))
            line.home = valueOf(name, argument, equals);
        else if (name == QLatin1String("--clock"))
            readClock(valueOf(name, argument, equals));
        else if (const auto hasValue = takesValue(name); hasValue && (*hasValue || equals < 0))
            line.options.insert(name, *hasValue ? valueOf(name, argument, equals).value_or(QString()) : QString());
        else
            fail(QCoreApplication::translate("vidora", "Unknown option %1.").arg(name));
    }

    std::optional<QString> valueOf(const QString& name, const QString& argument, qsizetype equals)
    {
        if (equals >= 0 && equals + 1 < argument.size())
            return argument.mid(equals + 1);
        if (equals < 0 && m_next < m_arguments.size())
            return m_arguments.at(m_next++);
        fail(QCoreApplication::translate("vidora", "%1 needs a value.").arg(name));
        return std::nullopt;
    }

    void readClock(const std::optional<QString>& text)
    {
        if (!text)
            return;
        m_result.line.clock = instantFromIsoText(*text);
        if (!m_result.line.clock)
            fail(QCoreApplication::translate("vidora", "--clock takes a time such as 2026-11-22T19:00:00Z."));
    }

    void checkCommand()
    {
        const CommandLine& line = m_result.line;
        if (line.command.isEmpty() || line.opensAddress())
            return;
        const auto arity = commands().constFind(line.command);
        if (arity == commands().cend())
            fail(QCoreApplication::translate("vidora", "Unknown command %1.").arg(line.command));
        else if (line.arguments.size() < arity->least)
            fail(QCoreApplication::translate("vidora", "%1 needs an argument.").arg(line.command));
        else if (line.arguments.size() > arity->most)
            fail(QCoreApplication::translate("vidora", "%1 does not take \"%2\".")
                     .arg(line.command, line.arguments.at(arity->most)));
        const auto allowed = optionsOfCommands().value(line.command);
        for (auto option = line.options.keyBegin(); option != line.options.keyEnd(); ++option) {
            if (!allowed.contains(*option))
                fail(QCoreApplication::translate("vidora", "%1 does not take %2.").arg(line.command, *option));
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

QString commandLineHelp()
{
    return QCoreApplication::translate("vidora",
                                       "Usage: vidora [COMMAND] [OPTION]...\n"
                                       "\n"
                                       "Without a command: the window; without a display, what is on now, after an\n"
                                       "update where one is due.\n"
                                       "\n"
                                       "  now               what is on now and next on the chosen channels\n"
                                       "  channel X         all coming shows of a channel, by days\n"
                                       "  category X        coming shows of a category\n"
                                       "  search TEXT       coming shows that contain a text\n"
                                       "  channels          the catalogue, the chosen channels marked\n"
                                       "  select X...       choose channels\n"
                                       "  unselect X...     give channels up\n"
                                       "  update            fetch what is missing or old\n"
                                       "  import ADDRESS    use an XMLTV guide of your own: an address or a file\n"
                                       "\n"
                                       "  favourite X       follow a title; --alarm MINUTES rings ahead of each\n"
                                       "                    broadcast, of --premieres or --replays only\n"
                                       "  unfavourite X     follow it no longer, and remove its alarms\n"
                                       "  favourites        the titles that are followed\n"
                                       "  alarm X --at TIME [--on CHANNEL] [--before MINUTES]\n"
                                       "                    ring ahead of one broadcast of a favourite\n"
                                       "  unalarm X [--at TIME] [--on CHANNEL]\n"
                                       "                    remove the alarm of one broadcast, or of all\n"
                                       "  alerts            the broadcasts of favourites that will ring\n"
                                       "  silent-hours [off | FROM TO]\n"
                                       "                    when favourites must not ring\n"
                                       "  calendars [X]     the calendars, or choose the one for alarms\n"
                                       "\n"
                                       "X is a title, a part of it that only one has, or an id.\n"
                                       "\n"
                                       "  --json            answers for programs\n"
                                       "  --home DIR        keep everything in this folder\n"
                                       "  --clock TIME      the guide as at another moment: 2026-11-22T19:00:00Z\n"
                                       "  --log             say on standard error what was fetched and found\n"
                                       "  --self-test       load every part of the window and quit\n");
}

} // namespace vidora
