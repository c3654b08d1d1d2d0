#include "app/CalendarTroubles.h"
#include "app/ChannelNames.h"
#include "app/Command.h"
#include "app/CommandSession.h"
#include "platform/Localized.h"
#include "platform/Log.h"

#include <algorithm>

namespace vidora {

namespace {

CalendarAccounts& accountsOf(CommandSession& session)
{
    if (!session.device().calendarAccounts())
        throw Refusal{localized("With --clock there are no calendars, but in a home of its own: --home DIR.")};
    return *session.device().calendarAccounts();
}

Refusal cantBeKept(CommandSession& session)
{
    return {localized("%1 can't be written: nothing will be kept.")
                .arg(Device::calendarAccounts(session.device().folders()))};
}

CalendarAccount namedAccount(CommandSession& session)
{
    const CalendarAccounts& accounts = accountsOf(session);
    QStringList names;
    for (const CalendarAccount& account : accounts.accounts())
        names << account.name;
    if (names.isEmpty())
        throw Refusal{localized("There is no account. \"vidora calendars add ADDRESS --user NAME\" adds one.")};
    return *accounts.accountNamed(textNamed(session.argument(), names));
}

/// By its title, and where several have it by title and source.
Calendar namedCalendar(CommandSession& session)
{
    std::vector<Calendar> all = session.delegate().eventStore().calendarsForEntityType(EntityType::Event);
    std::erase_if(all, [](const Calendar& calendar) { return !calendar.allowsContentModifications; });
    QStringList titles, labels;
    for (const Calendar& calendar : all) {
        titles << calendar.title;
        labels << QStringLiteral("%1 (%2)").arg(calendar.title, calendar.source);
    }
    const QStringList candidates = candidatesFor(session.argument(), titles);
    const qsizetype index = candidates.size() == 1 ? titles.indexOf(candidates.front())
                                                   : labels.indexOf(textNamed(session.argument(), labels));
    return all[static_cast<std::size_t>(index)];
}

void list(CommandSession& session)
{
    const CalendarAccounts& accounts = accountsOf(session);
    const auto selected = session.alarms().selectedCalendar();
    QJsonArray calendars, accountArray;
    QStringList lines;
    for (const Calendar& calendar : session.delegate().eventStore().calendarsForEntityType(EntityType::Event)) {
        const bool isSelected = selected == calendar;
        calendars.append(QJsonObject{{QStringLiteral("title"), calendar.title},
                                     {QStringLiteral("source"), calendar.source},
                                     {QStringLiteral("writable"), calendar.allowsContentModifications},
                                     {QStringLiteral("selected"), isSelected}});
        const QString label = QStringLiteral("%1  (%2)").arg(calendar.title, calendar.source);
        lines << (isSelected ? QStringLiteral("* ") : QStringLiteral("  ")) +
                     (calendar.allowsContentModifications ? label : localized("%1: read-only").arg(label));
    }
    const QString folder = Device::calendars(session.device().folders());
    lines << localized("Calendars of this device lie in %1.").arg(folder);
    for (const CalendarAccount& account : accounts.accounts()) {
        const int waiting = accounts.storeOf(account)->unsentChanges();
        accountArray.append(QJsonObject{{QStringLiteral("name"), account.name},
                                        {QStringLiteral("address"), account.address},
                                        {QStringLiteral("user"), account.user},
                                        {QStringLiteral("waitingChanges"), waiting}});
        if (waiting > 0)
            lines << localized("%1: changes that wait for the server: %2. \"vidora calendars test\" tells why.")
                         .arg(account.name)
                         .arg(waiting);
    }
    const auto lost = session.alarms().lostCalendar();
    if (lost && selected)
        lines << localized(
                     "The calendar \"%1\" of your alarms is gone. New ones are made in \"%2\"; \"vidora calendars "
                     "NAME\" chooses another.")
                     .arg(*lost, selected->title);
    session.answer(lines.join(QLatin1Char('\n')), {{QStringLiteral("calendars"), calendars},
                                                   {QStringLiteral("folder"), folder},
                                                   {QStringLiteral("lost"), lost ? QJsonValue(*lost) : QJsonValue()},
                                                   {QStringLiteral("accounts"), accountArray}});
}

void choose(CommandSession& session)
{
    const Calendar calendar = namedCalendar(session);
    if (session.alarms().hasEvents())
        throw Refusal{localized("You have to remove all your alerts before changing calendar")};
    session.alarms().saveCalendar(calendar);
    session.settle();
    list(session);
}

void calendars(CommandSession& session)
{
    accountsOf(session);
    session.line().arguments.isEmpty() ? list(session) : choose(session);
}

QString lineOf(const CalDAVClient::RemoteCalendar& calendar)
{
    const QString title = calendar.title.isEmpty() ? calendar.address.path() : calendar.title;
    return (calendar.writable ? localized("%1: can be written") : localized("%1: read-only")).arg(title);
}

void add(CommandSession& session)
{
    CalendarAccounts& accounts = accountsOf(session);
    CalendarAccount account = accounts.accountFor(session.argument(), session.option("--user").value_or(QString()));
    if (const auto origin = session.option("--also"))
        account.origins << *origin;
    const auto findings = session.aside([&] { return accounts.examine(account, session.password()); });
    if (!findings.elsewhere.isEmpty())
        throw Refusal{localized("The calendars of this account lie at %1. To let the password go there: --also %1")
                          .arg(findings.elsewhere)};
    if (findings.trouble != CalDAVClient::Trouble::None)
        throw Refusal{localized("Nothing was added. %1 (%2)").arg(textOf(findings.trouble), findings.lastAnswer)};
    if (!session.aside([&] { return accounts.keepPassword(account, session.password()); }) || !accounts.add(account))
        throw cantBeKept(session);
    const auto store = accounts.storeOf(account);
    if (const auto error = session.aside([&] { return store->refresh(); }))
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
    session.answer(lines.join(QLatin1Char('\n')),
                   {{QStringLiteral("added"), account.name}, {QStringLiteral("calendars"), array}});
}

bool test(const CalendarAccount& account, CommandSession& session, QStringList& lines, QJsonArray& json)
{
    CalendarAccounts& accounts = accountsOf(session);
    const auto findings = session.aside([&] { return accounts.examine(account); });
    const bool works = findings.trouble == CalDAVClient::Trouble::None;
    QJsonObject object{{QStringLiteral("name"), account.name},
                       {QStringLiteral("address"), account.address},
                       {QStringLiteral("user"), account.user},
                       {QStringLiteral("works"), works}};
    lines << QStringLiteral("%1  (%2, %3)").arg(account.name, account.address, account.user);
    for (const QUrl& home : findings.homes)
        lines << QLatin1String("  ") + localized("Calendars are at %1.").arg(home.toString());
    if (!findings.homes.empty()) {
        object.insert(QStringLiteral("home"), findings.homes.front().toString());
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
    const auto store = accounts.storeOf(account);
    if (works)
        session.aside([&] { return store->refresh().has_value(); });
    const int waiting = store->unsentChanges();
    object.insert(QStringLiteral("waitingChanges"), waiting);
    if (waiting > 0)
        lines << QLatin1String("  ") + localized("Changes that wait for the server: %1").arg(waiting);
    QJsonArray refusals;
    for (const CalDAVEventStore::Refusal& refusal : store->refusals()) {
        lines << QLatin1String("  ") + localized("The server does not take the change of \"%1\" in %2: %3")
                                           .arg(refusal.title, refusal.calendar, refusal.reason);
        refusals.append(QJsonObject{{QStringLiteral("title"), refusal.title},
                                    {QStringLiteral("calendar"), refusal.calendar},
                                    {QStringLiteral("reason"), refusal.reason}});
    }
    object.insert(QStringLiteral("refusals"), refusals);
    if (!works) {
        lines << QStringLiteral("  %1 (%2)").arg(textOf(findings.trouble), findings.lastAnswer);
        object.insert(QStringLiteral("error"), textOf(findings.trouble));
        object.insert(QStringLiteral("lastAnswer"), findings.lastAnswer);
    }
    json.append(object);
    return works && refusals.isEmpty();
}

void test(CommandSession& session)
{
    const std::vector<CalendarAccount> all = accountsOf(session).accounts();
    const std::vector<CalendarAccount> tested =
        session.argument().isEmpty() && !all.empty() ? all : std::vector{namedAccount(session)};
    QStringList lines;
    QJsonArray json;
    for (const CalendarAccount& account : tested) {
        if (!test(account, session, lines, json))
            session.fail();
    }
    session.answer(lines.join(QLatin1Char('\n')), {{QStringLiteral("accounts"), json}});
}

void remove(CommandSession& session)
{
    CalendarAccounts& accounts = accountsOf(session);
    const CalendarAccount account = namedAccount(session);
    const auto selected = session.alarms().selectedCalendar();
    if (selected && selected->source == account.name && session.alarms().hasEvents())
        throw Refusal{localized("You have to remove all your alerts before changing calendar")};
    auto store = accounts.storeOf(account);
    if (store->unsentChanges() > 0)
        session.aside([&] { return store->refresh().has_value(); });
    const int lost = store->unsentChanges();
    if (lost > 0 && !session.has("--force"))
        throw Refusal{
            localized("Changes that wait for the server would be lost: %1. --force removes the account all the same.")
                .arg(lost)};
    store.reset();
    const bool isForgotten = session.aside([&] { return accounts.forgetPassword(account); });
    if (!accounts.remove(account))
        throw cantBeKept(session);
    if (!isForgotten)
        say(localized("The password is still in the keyring, which can't be reached."));
    session.answer(localized("Removed: %1. Its calendars stay on the server.").arg(account.name),
                   {{QStringLiteral("removed"), account.name}, {QStringLiteral("lostChanges"), lost}});
}

} // namespace

const CommandFamily& calendarCommands()
{
    static const CommandFamily family{
        {.name = "calendars",
         .arguments = "[X]",
         .meaning = QT_TRANSLATE_NOOP("vidora", "the calendars, or choose the one for alarms"),
         .most = Command::any,
         .kind = ValueKind::Title,
         .changesWith = 1,
         .run = calendars},
        {.name = "calendars add",
         .arguments = QT_TRANSLATE_NOOP("vidora", "ADDRESS"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "use the calendars of a CalDAV server; asks for the password"),
         .least = 1,
         .most = 1,
         .options = {{.name = "--user",
                      .value = QT_TRANSLATE_NOOP("vidora", "NAME"),
                      .meaning = QT_TRANSLATE_NOOP("vidora", "the name to log in with"),
                      .isRequired = true},
                     {.name = "--also",
                      .value = QT_TRANSLATE_NOOP("vidora", "ADDRESS"),
                      .meaning = QT_TRANSLATE_NOOP("vidora", "where else the password may go")}},
         .changesWith = 0,
         .asksPassword = true,
         .run = add},
        {.name = "calendars test",
         .arguments = QT_TRANSLATE_NOOP("vidora", "[NAME]"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "what the servers of the accounts say"),
         .most = Command::any,
         .changesWith = 0,
         .run = test},
        {.name = "calendars remove",
         .arguments = QT_TRANSLATE_NOOP("vidora", "NAME"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "use an account no more"),
         .least = 1,
         .most = Command::any,
         .options = {{.name = "--force",
                      .meaning = QT_TRANSLATE_NOOP("vidora", "even where changes wait that the server does not have")}},
         .changesWith = 0,
         .run = remove},
    };
    return family;
}

} // namespace vidora
