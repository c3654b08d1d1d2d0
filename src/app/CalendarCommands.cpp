#include "app/CalendarCommands.h"

#include "app/CalendarTroubles.h"
#include "app/ChannelNames.h"
#include "app/Refusal.h"
#include "app/ShowPrinter.h"
#include "platform/Localized.h"
#include "platform/Log.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

namespace vidora {

namespace {

void say(const QString& message)
{
    std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

/// What blocks, off the main thread, while the main thread listens to the system.
template<typename Work>
auto aside(const Work& work)
{
    std::optional<decltype(work())> result;
    DispatchQueue::global(QualityOfService::UserInitiated).async([&] {
        auto found = work();
        DispatchQueue::main().async([&result, found = std::move(found)] { result = found; });
    });
    DispatchQueue::runMain([&] { return result.has_value(); });
    return std::move(*result);
}

class CalendarRun
{
public:
    CalendarRun(const CommandLine& line, Device& device, const QString& password)
        : m_line(line)
        , m_device(device)
        , m_password(password)
        , m_engine(device.delegate().alarmEngine())
        , m_store(device.delegate().eventStore())
    {
    }

    int run();

private:
    CalendarAccounts& accounts() const { return *m_device.calendarAccounts(); }
    QString cantBeKept() const
    {
        return localized("%1 can't be written: nothing will be kept.")
            .arg(Device::calendarAccounts(m_device.folders()));
    }
    void settle();
    void answer(const QStringList& lines, const QJsonObject& json) const;
    /// What stands behind the word that tells what to do.
    QString name() const { return m_line.arguments.mid(1).join(QLatin1Char(' ')); }
    CalendarAccount namedAccount() const;
    Calendar namedCalendar() const;
    void refuseOption(const QString& option, bool unlessItFits) const;

    void list();
    void choose();
    void add();
    void test();
    void remove();

    bool test(const CalendarAccount& account, QStringList& lines, QJsonArray& json) const;
    static QString lineOf(const CalDAVClient::RemoteCalendar& calendar);

    const CommandLine& m_line;
    Device& m_device;
    const QString m_password;
    AlarmEngine& m_engine;
    EventStore& m_store;
    int m_status = 0;
};

int CalendarRun::run()
{
    settle();
    try {
        if (!m_device.calendarAccounts())
            throw Refusal{localized("With --clock there are no calendars, but in a home of its own: --home DIR.")};
        const QString verb = m_line.arguments.value(0);
        const bool isAddition = verb == QLatin1String("add");
        refuseOption(QStringLiteral("--user"), isAddition);
        refuseOption(QStringLiteral("--force"), verb == QLatin1String("remove"));
        if (isAddition)
            add();
        else if (verb == QLatin1String("test"))
            test();
        else if (verb == QLatin1String("remove"))
            remove();
        else if (verb.isEmpty())
            list();
        else
            choose();
        return m_status;
    } catch (const Refusal& refusal) {
        say(refusal.message);
        return 1;
    }
}

/// Waits until nothing is being done to the calendars.
void CalendarRun::settle()
{
    bool isIdle = false;
    DispatchQueue::main().async([&] { m_engine.whenIdle([&] { isIdle = true; }); });
    DispatchQueue::runMain([&] { return isIdle; });
}

void CalendarRun::answer(const QStringList& lines, const QJsonObject& json) const
{
    printText(m_line.json ? QString::fromUtf8(QJsonDocument(json).toJson())
                          : lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

CalendarAccount CalendarRun::namedAccount() const
{
    QStringList names;
    for (const CalendarAccount& account : accounts().accounts())
        names << account.name;
    if (names.isEmpty())
        throw Refusal{localized("There is no account. \"vidora calendars add ADDRESS --user NAME\" adds one.")};
    const QStringList candidates = candidatesFor(name(), names);
    if (candidates.size() != 1)
        throw Refusal{ambiguousName(name(), candidates, names)};
    return *accounts().accountNamed(candidates.front());
}

/// By its title, and where several have it by title and source.
Calendar CalendarRun::namedCalendar() const
{
    std::vector<Calendar> all = m_store.calendarsForEntityType(EntityType::Event);
    std::erase_if(all, [](const Calendar& calendar) { return !calendar.allowsContentModifications; });
    const QString wanted = m_line.arguments.join(QLatin1Char(' '));
    QStringList titles, labels;
    for (const Calendar& calendar : all) {
        titles << calendar.title;
        labels << QStringLiteral("%1 (%2)").arg(calendar.title, calendar.source);
    }
    QStringList candidates = candidatesFor(wanted, titles);
    if (candidates.size() == 1)
        return all[static_cast<std::size_t>(titles.indexOf(candidates.front()))];
    candidates = candidatesFor(wanted, labels);
    if (candidates.size() != 1)
        throw Refusal{ambiguousName(wanted, candidates, labels)};
    return all[static_cast<std::size_t>(labels.indexOf(candidates.front()))];
}

void CalendarRun::refuseOption(const QString& option, bool unlessItFits) const
{
    if (m_line.options.contains(option) && !unlessItFits)
        throw Refusal{
            localized("%1 does not take %2.")
                .arg((QStringList{m_line.command} + m_line.arguments.mid(0, 1)).join(QLatin1Char(' ')), option)};
}

void CalendarRun::list()
{
    const auto selected = m_engine.selectedCalendar();
    QJsonArray calendars, accountArray;
    QStringList lines;
    for (const Calendar& calendar : m_store.calendarsForEntityType(EntityType::Event)) {
        const bool isSelected = selected == calendar;
        calendars.append(QJsonObject{{QStringLiteral("title"), calendar.title},
                                     {QStringLiteral("source"), calendar.source},
                                     {QStringLiteral("writable"), calendar.allowsContentModifications},
                                     {QStringLiteral("selected"), isSelected}});
        const QString label = QStringLiteral("%1  (%2)").arg(calendar.title, calendar.source);
        lines << (isSelected ? QStringLiteral("* ") : QStringLiteral("  ")) +
                     (calendar.allowsContentModifications ? label : localized("%1: read-only").arg(label));
    }
    const QString folder = Device::calendars(m_device.folders());
    lines << localized("Calendars of this device lie in %1.").arg(folder);
    for (const CalendarAccount& account : accounts().accounts()) {
        const int waiting = accounts().storeOf(account)->unsentChanges();
        accountArray.append(QJsonObject{{QStringLiteral("name"), account.name},
                                        {QStringLiteral("address"), account.address},
                                        {QStringLiteral("user"), account.user},
                                        {QStringLiteral("waitingChanges"), waiting}});
        if (waiting > 0)
            lines << localized("%1: changes that wait for the server: %2. \"vidora calendars test\" tells why.")
                         .arg(account.name)
                         .arg(waiting);
    }
    answer(lines, {{QStringLiteral("calendars"), calendars},
                   {QStringLiteral("folder"), folder},
                   {QStringLiteral("accounts"), accountArray}});
}

void CalendarRun::choose()
{
    const Calendar calendar = namedCalendar();
    if (m_engine.hasEvents())
        throw Refusal{localized("You have to remove all your alerts before changing calendar")};
    m_engine.saveCalendar(calendar);
    settle();
    list();
}

QString CalendarRun::lineOf(const CalDAVClient::RemoteCalendar& calendar)
{
    const QString title = calendar.title.isEmpty() ? calendar.address.path() : calendar.title;
    return (calendar.writable ? localized("%1: can be written") : localized("%1: read-only")).arg(title);
}

void CalendarRun::add()
{
    const QString address = name();
    const QString user = m_line.options.value(QStringLiteral("--user"));
    if (address.isEmpty())
        throw Refusal{localized("%1 needs an argument.").arg(QStringLiteral("calendars add"))};
    if (user.isEmpty())
        throw Refusal{localized("%1 needs a value.").arg(QStringLiteral("--user"))};
    const CalendarAccount account = accounts().accountFor(address, user);
    const auto findings = aside([&] { return accounts().examine(account, m_password); });
    if (findings.trouble != CalDAVClient::Trouble::None)
        throw Refusal{localized("Nothing was added. %1 (%2)").arg(textOf(findings.trouble), findings.lastAnswer)};
    if (!aside([&] { return accounts().keepPassword(account, m_password); }) || !accounts().add(account))
        throw Refusal{cantBeKept()};
    const auto store = accounts().storeOf(account);
    if (const auto error = aside([&] { return store->refresh(); }))
        Log::line(QStringLiteral("events not fetched yet: %1").arg(error->localizedDescription));
    QStringList lines{localized("Added: %1").arg(account.name)};
    QJsonArray array;
    bool anyIsWritable = false;
    for (const auto& calendar : findings.calendars) {
        anyIsWritable = anyIsWritable || calendar.writable;
        lines << QStringLiteral("  ") + lineOf(calendar);
        array.append(
            QJsonObject{{QStringLiteral("title"), calendar.title}, {QStringLiteral("writable"), calendar.writable}});
    }
    lines << (anyIsWritable ? localized("\"vidora calendars NAME\" chooses the calendar for alarms.")
                            : localized("None of its calendars can be written: alarms can't live there."));
    answer(lines, {{QStringLiteral("added"), account.name}, {QStringLiteral("calendars"), array}});
}

bool CalendarRun::test(const CalendarAccount& account, QStringList& lines, QJsonArray& json) const
{
    const auto findings = aside([&] { return accounts().examine(account); });
    const bool works = findings.trouble == CalDAVClient::Trouble::None;
    QJsonObject object{{QStringLiteral("name"), account.name},
                       {QStringLiteral("address"), account.address},
                       {QStringLiteral("user"), account.user},
                       {QStringLiteral("works"), works}};
    lines << QStringLiteral("%1  (%2, %3)").arg(account.name, account.address, account.user);
    if (!findings.home.isEmpty()) {
        lines << QLatin1String("  ") + localized("Calendars are at %1.").arg(findings.home.toString());
        object.insert(QStringLiteral("home"), findings.home.toString());
        const QString login = !findings.authentication                               ? QStringLiteral("none")
                              : findings.authentication == URLAuthentication::Digest ? QStringLiteral("digest")
                                                                                     : QStringLiteral("basic");
        lines << QLatin1String("  ") + localized("Login: %1").arg(login);
        object.insert(QStringLiteral("login"), login);
    }
    QJsonArray calendars;
    for (const auto& calendar : findings.calendars) {
        lines << QStringLiteral("  ") + lineOf(calendar);
        calendars.append(
            QJsonObject{{QStringLiteral("title"), calendar.title}, {QStringLiteral("writable"), calendar.writable}});
    }
    object.insert(QStringLiteral("calendars"), calendars);
    const auto store = accounts().storeOf(account);
    if (works)
        aside([&] { return store->refresh().has_value(); });
    const int waiting = store->unsentChanges();
    object.insert(QStringLiteral("waitingChanges"), waiting);
    if (waiting > 0)
        lines << QLatin1String("  ") + localized("Changes that wait for the server: %1").arg(waiting);
    if (!works) {
        lines << QStringLiteral("  %1 (%2)").arg(textOf(findings.trouble), findings.lastAnswer);
        object.insert(QStringLiteral("error"), textOf(findings.trouble));
        object.insert(QStringLiteral("lastAnswer"), findings.lastAnswer);
    }
    json.append(object);
    return works;
}

void CalendarRun::test()
{
    const std::vector<CalendarAccount> tested =
        name().isEmpty() && !accounts().accounts().empty() ? accounts().accounts() : std::vector{namedAccount()};
    QStringList lines;
    QJsonArray json;
    for (const CalendarAccount& account : tested) {
        if (!test(account, lines, json))
            m_status = 1;
    }
    answer(lines, {{QStringLiteral("accounts"), json}});
}

void CalendarRun::remove()
{
    if (name().isEmpty())
        throw Refusal{localized("%1 needs an argument.").arg(QStringLiteral("calendars remove"))};
    const CalendarAccount account = namedAccount();
    const auto selected = m_engine.selectedCalendar();
    if (selected && selected->source == account.name && m_engine.hasEvents())
        throw Refusal{localized("You have to remove all your alerts before changing calendar")};
    auto store = accounts().storeOf(account);
    if (store->unsentChanges() > 0)
        aside([&] { return store->refresh().has_value(); });
    const int lost = store->unsentChanges();
    if (lost > 0 && !m_line.options.contains(QStringLiteral("--force")))
        throw Refusal{
            localized("Changes that wait for the server would be lost: %1. --force removes the account all the same.")
                .arg(lost)};
    store.reset();
    const bool isForgotten = aside([&] { return accounts().forgetPassword(account); });
    if (!accounts().remove(account))
        throw Refusal{cantBeKept()};
    if (!isForgotten)
        say(localized("The password is still in the keyring, which can't be reached."));
    answer({localized("Removed: %1. Its calendars stay on the server.").arg(account.name)},
           {{QStringLiteral("removed"), account.name}, {QStringLiteral("lostChanges"), lost}});
}

} // namespace

bool wantsCalendarPassword(const CommandLine& line)
{
    return line.command == QLatin1String("calendars") && line.arguments.size() == 2 &&
           line.arguments.front() == QLatin1String("add") && line.options.contains(QStringLiteral("--user"));
}

bool changesCalendars(const CommandLine& line)
{
    return line.command == QLatin1String("calendars") && !line.arguments.isEmpty();
}

int runCalendarCommand(const CommandLine& line, Device& device, const QString& password)
{
    return CalendarRun(line, device, password).run();
}

} // namespace vidora
