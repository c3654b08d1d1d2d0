#include "app/CommandLine.h"
#include "platform/Localized.h"

namespace vidora {

namespace {

constexpr qsizetype meaningColumn = 20;
constexpr qsizetype lineWidth = 78;

/// A command or an option, and what it does. English keys of the translation; what is typed as it stands stays in it.
struct Entry
{
    const char* usage;
    const char* meaning;
};

constexpr Entry commands[] = {
    {"now", QT_TRANSLATE_NOOP("vidora", "what is on now and next on the chosen channels")},
    {"channel X", QT_TRANSLATE_NOOP("vidora", "all coming shows of a channel, by days")},
    {"category X", QT_TRANSLATE_NOOP("vidora", "coming shows of a category")},
    {QT_TRANSLATE_NOOP("vidora", "search TEXT"), QT_TRANSLATE_NOOP("vidora", "coming shows that contain a text")},
    {"channels", QT_TRANSLATE_NOOP("vidora", "the catalogue, the chosen channels marked")},
    {"select X...", QT_TRANSLATE_NOOP("vidora", "choose channels")},
    {"unselect X...", QT_TRANSLATE_NOOP("vidora", "give channels up")},
    {"update", QT_TRANSLATE_NOOP("vidora", "fetch what is missing or old")},
    {QT_TRANSLATE_NOOP("vidora", "import ADDRESS"),
     QT_TRANSLATE_NOOP("vidora", "use an XMLTV guide of your own: an address or a file")},
};

constexpr Entry alarmCommands[] = {
    {"favourite X", QT_TRANSLATE_NOOP("vidora", "follow a title; --alarm MINUTES rings ahead of each broadcast, of "
                                                "--premieres or --replays only")},
    {"unfavourite X", QT_TRANSLATE_NOOP("vidora", "follow it no longer, and remove its alarms")},
    {"favourites", QT_TRANSLATE_NOOP("vidora", "the titles that are followed")},
    {QT_TRANSLATE_NOOP("vidora", "alarm X --at TIME [--on CHANNEL] [--before MINUTES]"),
     QT_TRANSLATE_NOOP("vidora", "ring ahead of one broadcast of a favourite")},
    {QT_TRANSLATE_NOOP("vidora", "unalarm X [--at TIME] [--on CHANNEL]"),
     QT_TRANSLATE_NOOP("vidora", "remove the alarm of one broadcast, or of all")},
    {"alerts", QT_TRANSLATE_NOOP("vidora", "the broadcasts of favourites that will ring")},
    {QT_TRANSLATE_NOOP("vidora", "silent-hours [off | FROM TO]"),
     QT_TRANSLATE_NOOP("vidora", "when favourites must not ring")},
    {"calendars [X]", QT_TRANSLATE_NOOP("vidora", "the calendars, or choose the one for alarms")},
    {QT_TRANSLATE_NOOP("vidora", "calendars add ADDRESS --user NAME"),
     QT_TRANSLATE_NOOP("vidora", "use the calendars of a CalDAV server; asks for the password")},
    {QT_TRANSLATE_NOOP("vidora", "calendars test [NAME]"),
     QT_TRANSLATE_NOOP("vidora", "what the servers of the accounts say")},
    {QT_TRANSLATE_NOOP("vidora", "calendars remove NAME [--force]"),
     QT_TRANSLATE_NOOP("vidora", "use an account no more")},
};

constexpr Entry options[] = {
    {"--json", QT_TRANSLATE_NOOP("vidora", "answers for programs")},
    {QT_TRANSLATE_NOOP("vidora", "--home DIR"), QT_TRANSLATE_NOOP("vidora", "keep everything in this folder")},
    {QT_TRANSLATE_NOOP("vidora", "--clock TIME"),
     QT_TRANSLATE_NOOP("vidora", "the guide as at another moment: 2026-11-22T19:00:00Z")},
    {"--log", QT_TRANSLATE_NOOP("vidora", "say on standard error what was fetched and found")},
    {"--version", QT_TRANSLATE_NOOP("vidora", "the version of the program")},
    {"--self-test", QT_TRANSLATE_NOOP("vidora", "load every part of the window and quit")},
};

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

QString entryText(const Entry& entry)
{
    QString usage = QLatin1String("  ") + localized(entry.usage);
    if (usage.size() + 1 < meaningColumn)
        usage = usage.leftJustified(meaningColumn);
    else
        usage += QLatin1Char('\n') + QString(meaningColumn, QLatin1Char(' '));
    return usage + wrapped(localized(entry.meaning), meaningColumn, meaningColumn);
}

template<std::size_t Count>
QString paragraph(const Entry (&entries)[Count])
{
    QString text;
    for (const Entry& entry : entries)
        text += entryText(entry);
    return text + QLatin1Char('\n');
}

} // namespace

QString commandLineHelp()
{
    const QString introduction = localized(
        "Without a command: the window; without a display, what is on now, after an update where one is due.");
    const QString names = localized("X is a title, a part of it that only one has, or an id.");
    return localized("Usage: vidora [COMMAND] [OPTION]...") + QLatin1String("\n\n") + wrapped(introduction, 0, 0) +
           QLatin1Char('\n') + paragraph(commands) + paragraph(alarmCommands) + wrapped(names, 0, 0) +
           QLatin1Char('\n') + paragraph(options).chopped(1);
}

} // namespace vidora
