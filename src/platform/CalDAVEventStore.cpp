#include "platform/CalDAVEventStore.h"

#include "platform/Log.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <algorithm>

namespace vidora {

namespace {

constexpr std::size_t eventsPerRequest = 50;
constexpr QLatin1String readOnlyMark("/.readonly");

QString identifierOf(const QUrl& calendar)
{
    const QByteArray path = calendar.path(QUrl::FullyDecoded).toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha256).first(8).toHex());
}

void writeAttribute(const QString& path, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const auto present = AtomicFile::read(path, 64 * 1024);
    if (text.isEmpty() ? present.has_value() : present != bytes) {
        if (text.isEmpty())
            QFile::remove(path);
        else
            AtomicFile::write(path, bytes, AtomicFile::Access::OwnerOnly);
    }
}

bool sameEvent(const QByteArray& a, const QByteArray& b)
{
    const auto first = ICalendarEvent::read(a);
    const auto second = ICalendarEvent::read(b);
    return a == b || (first && second && first->uid == second->uid && first->single && second->single &&
                      first->event.title == second->event.title && first->event.location == second->event.location &&
                      first->event.url == second->event.url && first->event.startDate == second->event.startDate &&
                      first->event.endDate == second->event.endDate && first->event.alarms == second->event.alarms);
}

} // namespace

CalDAVEventStore::CalDAVEventStore(QString folder, QString source, CalDAVAccount account, URLSession& session,
                                   const Clock& clock, Random& random, Sleeper& sleeper, FileLayer& layer)
    : m_folder(folder)
    , m_accountAddress(account.address)
    , m_clock(clock)
    , m_layer(layer)
    , m_files(std::move(folder), std::move(source), clock, random, layer)
    , m_client(session, sleeper, std::move(account))
{
}

QString CalDAVEventStore::folderOf(const QString& calendar) const
{
    return m_folder + QLatin1Char('/') + calendar;
}

QString CalDAVEventStore::fileOf(const QString& calendar, const QString& name) const
{
    return folderOf(calendar) + QLatin1Char('/') + name;
}

QStringList CalDAVEventStore::mirrored() const
{
    return QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

CalDAVMirror& CalDAVEventStore::mirror(const QString& calendar)
{
    const auto known = m_mirrors.find(calendar);
    return known != m_mirrors.end() ? known->second
                                    : m_mirrors.emplace(calendar, CalDAVMirror::read(folderOf(calendar))).first->second;
}

/// True when nothing failed. Otherwise the server is left alone for a while.
bool CalDAVEventStore::noteFailure(Outcome outcome)
{
    if (outcome == Outcome::Done)
        return true;
    Log::line(QStringLiteral("calendar server: %1").arg(m_client.lastAnswer()));
    m_failed = m_clock.now();
    m_pause = outcome == Outcome::Refused ? pauseAfterRefusal : pauseAfterFailure;
    return false;
}

/// Whether less than a period has gone by since a moment. A clock that was set back doesn't lengthen it.
bool CalDAVEventStore::isWithin(const std::optional<Instant>& moment, Seconds period) const
{
    const Instant now = m_clock.now();
    return moment && now >= *moment && now < *moment + period;
}

bool CalDAVEventStore::mayAsk() const
{
    return !isWithin(m_failed, m_pause);
}

AuthorizationStatus CalDAVEventStore::authorizationStatusForEntityType(EntityType type) const
{
    return m_files.authorizationStatusForEntityType(type);
}

void CalDAVEventStore::requestAccessToEntityType(EntityType type, const Completion& completion)
{
    const auto error = refresh();
    completion(authorizationStatusForEntityType(type) == AuthorizationStatus::Authorized, error);
}

void CalDAVEventStore::reset()
{
    m_files.reset();
}

std::vector<Calendar> CalDAVEventStore::calendarsForEntityType(EntityType type)
{
    return m_files.calendarsForEntityType(type);
}

std::optional<Calendar> CalDAVEventStore::calendarWithIdentifier(const QString& identifier)
{
    return m_files.calendarWithIdentifier(identifier);
}

std::optional<Calendar> CalDAVEventStore::defaultCalendarForNewEvents()
{
    return m_files.defaultCalendarForNewEvents();
}

std::vector<Event> CalDAVEventStore::eventsMatchingPredicate(const EventPredicate& predicate)
{
    return m_files.eventsMatchingPredicate(predicate);
}

std::optional<Event> CalDAVEventStore::eventWithIdentifier(const QString& identifier)
{
    return m_files.eventWithIdentifier(identifier);
}

std::optional<EventStoreError> CalDAVEventStore::saveEvent(Event& event, EventSpan span, bool commit)
{
    auto error = m_files.saveEvent(event, span, false);
    return error || !commit ? error : this->commit();
}

std::optional<EventStoreError> CalDAVEventStore::removeEvent(const Event& event, EventSpan span, bool commit)
{
    auto error = m_files.removeEvent(event, span, false);
    return error || !commit ? error : this->commit();
}

std::optional<EventStoreError> CalDAVEventStore::commit()
{
    const std::lock_guard lock(m_mutex);
    auto error = write();
    if (!error)
        pushAll();
    return error;
}

/// The order to send goes to the disk first: a change that is made and never sent would stay unknown to everybody else,
/// an order without its change does nothing.
std::optional<EventStoreError> CalDAVEventStore::write()
{
    std::set<QString> touched;
    for (const FolderEventStore::Change& change : m_files.waitingChanges()) {
        mirror(change.calendarIdentifier).outbox[change.fileName] =
            change.removed ? CalDAVMirror::Change::Remove : CalDAVMirror::Change::Put;
        touched.insert(change.calendarIdentifier);
    }
    for (const QString& calendar : touched) {
        if (!write(mirror(calendar), calendar))
            return EventStoreError{QStringLiteral("the changes can't be kept in %1").arg(folderOf(calendar))};
    }
    return m_files.commit();
}

int CalDAVEventStore::unsentChanges()
{
    const std::lock_guard lock(m_mutex);
    std::size_t count = 0;
    for (const QString& calendar : mirrored())
        count += mirror(calendar).outbox.size();
    return static_cast<int>(count);
}

void CalDAVEventStore::refreshSourcesIfNecessary()
{
    const std::lock_guard lock(m_mutex);
    if (!isWithin(m_refreshed, refreshInterval) && mayAsk())
        refreshAll();
}

std::optional<EventStoreError> CalDAVEventStore::refresh()
{
    const std::lock_guard lock(m_mutex);
    m_failed.reset();
    if (refreshAll())
        return std::nullopt;
    return EventStoreError{m_client.lastAnswer()};
}

/// Where the calendars lie is asked once for an account, and again when they lie there no more.
bool CalDAVEventStore::findHome()
{
    const QString file = m_folder + QStringLiteral("/.home");
    const QStringList known =
        QString::fromUtf8(AtomicFile::read(file, 64 * 1024).value_or(QByteArray())).split(QLatin1Char('\n'));
    if (known.size() == 2 && known[0] == m_accountAddress && !known[1].isEmpty())
        m_home = QUrl(known[1]);
    else if (noteFailure(m_client.discover(m_home)))
        writeAttribute(file, m_accountAddress + QLatin1Char('\n') + m_home.toString(QUrl::FullyEncoded));
    return !m_home.isEmpty();
}

bool CalDAVEventStore::refreshAll()
{
    if (m_home.isEmpty() && !findHome())
        return false;
    std::vector<CalDAVClient::RemoteCalendar> calendars;
    const Outcome outcome = m_client.calendars(m_home, calendars);
    if (!noteFailure(outcome)) {
        m_home.clear();
        if (outcome != Outcome::Failed)
            QFile::remove(m_folder + QStringLiteral("/.home")); // it may have moved
        return false;
    }
    if (!takeCalendars(calendars))
        return false;
    bool complete = true;
    for (const auto& remote : calendars) {
        const QString calendar = identifierOf(remote.address);
        if (push(calendar) && pull(calendar, remote))
            continue;
        if (!m_client.hasAnswered() || m_pause == pauseAfterRefusal)
            return false;
        complete = false; // the trouble of one calendar is not that of the others
        m_failed.reset();
    }
    m_refreshed = m_clock.now();
    return complete;
}

/// Makes the folders agree with the calendars that the server has.
bool CalDAVEventStore::takeCalendars(const std::vector<CalDAVClient::RemoteCalendar>& calendars)
{
    std::set<QString> present;
    for (const auto& remote : calendars) {
        const QString calendar = identifierOf(remote.address);
        present.insert(calendar);
        writeAttribute(fileOf(calendar, QStringLiteral("displayname")),
                       remote.title.isEmpty() ? remote.address.path().section(QLatin1Char('/'), -2, -2) : remote.title);
        writeAttribute(fileOf(calendar, QStringLiteral("color")), remote.color);
        writeAttribute(folderOf(calendar) + readOnlyMark, remote.writable ? QString() : QStringLiteral("1"));
        mirror(calendar).address = remote.address.toString(QUrl::FullyEncoded);
    }
    for (const QString& calendar : mirrored()) {
        if (present.contains(calendar))
            continue;
        Log::line(QStringLiteral("calendar %1 is gone from the server").arg(mirror(calendar).address));
        m_mirrors.erase(calendar);
        if (!QDir(folderOf(calendar)).removeRecursively())
            return false;
    }
    return true;
}

bool CalDAVEventStore::pull(const QString& calendar, const CalDAVClient::RemoteCalendar& remote)
{
    CalDAVMirror& known = mirror(calendar);
    if (!remote.state.isEmpty() && remote.state == known.token)
        return true;
    CalDAVClient::Changes changes;
    if (!noteFailure(m_client.changes(remote, known.token, changes)))
        return false;
    std::set<QString> present;
    std::vector<CalDAVClient::RemoteEvent> wanted;
    for (const auto& event : changes.present) {
        const auto name = known.nameOf(event.address);
        if (name)
            present.insert(*name);
        const bool ours = known.outbox.contains(name.value_or(event.address.fileName(QUrl::FullyDecoded)));
        const bool same = name && !event.tag.isEmpty() && known.items[*name].tag == event.tag;
        // A copy that was lost here is no reason to lose the event there.
        const bool held = name && QFile::exists(fileOf(calendar, *name));
        if (!ours && !(same && held) && event.size <= ICalendarEvent::maximumSize)
            wanted.push_back(event);
    }
    std::vector<QString> gone;
    for (const QUrl& address : changes.removed) {
        if (const auto name = known.nameOf(address))
            gone.push_back(*name);
    }
    if (changes.whole) {
        for (const auto& [name, item] : known.items) {
            if (!present.contains(name))
                gone.push_back(name);
        }
    }
    for (const QString& name : gone) {
        if (!known.outbox.contains(name)) // what becomes of those shows when the change is sent
            forget(known, calendar, name);
    }
    const bool whole = bring(known, calendar, wanted);
    if (whole)
        known.token = changes.token;
    return write(known, calendar) && whole;
}

bool CalDAVEventStore::bring(CalDAVMirror& mirror, const QString& calendar,
                             const std::vector<CalDAVClient::RemoteEvent>& wanted)
{
    using Part = std::pair<std::size_t, std::size_t>; // first and behind the last
    std::vector<Part> parts;
    for (std::size_t first = 0; first < wanted.size(); first += eventsPerRequest)
        parts.emplace_back(first, std::min(wanted.size(), first + eventsPerRequest));
    while (!parts.empty()) {
        const auto [first, last] = parts.back();
        parts.pop_back();
        std::vector<QUrl> addresses;
        for (std::size_t i = first; i < last; ++i)
            addresses.push_back(wanted[i].address);
        std::vector<CalDAVClient::RemoteEvent> events;
        const Outcome outcome = m_client.fetch(QUrl(mirror.address), addresses, events);
        if (outcome == Outcome::TooLarge && addresses.size() > 1) {
            const std::size_t middle = first + addresses.size() / 2;
            parts.insert(parts.end(), {Part(first, middle), Part(middle, last)});
        } else if (outcome == Outcome::TooLarge) {
            Log::line(QStringLiteral("calendar event %1 is too large and is left out").arg(addresses[0].path()));
        } else if (!noteFailure(outcome)) {
            return false;
        }
        for (const auto& event : events)
            keep(mirror, calendar, event);
    }
    return true;
}

bool CalDAVEventStore::write(const CalDAVMirror& mirror, const QString& calendar) const
{
    return mirror.write(folderOf(calendar), m_layer);
}

void CalDAVEventStore::keep(CalDAVMirror& mirror, const QString& calendar, const CalDAVClient::RemoteEvent& event)
{
    const QString name = mirror.nameOf(event.address).value_or(mirror.nameFor(event.address));
    if (mirror.outbox.contains(name) || event.document.size() > ICalendarEvent::maximumSize)
        return;
    if (AtomicFile::write(fileOf(calendar, name), event.document, AtomicFile::Access::OwnerOnly,
                          AtomicFile::Durability::Unsynced, m_layer))
        return;
    mirror.keep(name, event.address, event.tag);
}

void CalDAVEventStore::forget(CalDAVMirror& mirror, const QString& calendar, const QString& name)
{
    m_layer.remove(fileOf(calendar, name));
    mirror.forget(name);
    mirror.outbox.erase(name);
}

void CalDAVEventStore::pushAll()
{
    for (const QString& calendar : mirrored()) {
        if (!push(calendar))
            return;
    }
}

/// False when the server is not to be asked any more for now.
bool CalDAVEventStore::push(const QString& calendar)
{
    CalDAVMirror& known = mirror(calendar);
    if (known.outbox.empty())
        return true;
    if (!mayAsk() || known.address.isEmpty())
        return false;
    bool answered = true;
    const auto outbox = known.outbox;
    for (const auto& [name, change] : outbox) {
        const Outcome outcome = send(known, calendar, name, change);
        if (outcome == Outcome::Done) {
            known.outbox.erase(name);
        } else if (outcome == Outcome::Rejected) {
            // This one event may be the matter; it waits for a better day, the others go on.
            Log::line(QStringLiteral("calendar server takes no change: %1").arg(m_client.lastAnswer()));
        } else {
            answered = noteFailure(outcome);
            break;
        }
    }
    return write(known, calendar) && answered;
}

CalDAVEventStore::Outcome CalDAVEventStore::send(CalDAVMirror& mirror, const QString& calendar, const QString& name,
                                                 CalDAVMirror::Change change)
{
    if (change == CalDAVMirror::Change::Put)
        return sendDocument(mirror, calendar, name);
    const auto item = mirror.items.find(name);
    const Outcome outcome =
        m_client.remove(mirror.addressOf(name), item == mirror.items.end() ? QString() : item->second.tag);
    if (outcome == Outcome::Conflict)
        return settle(mirror, calendar, name);
    if (outcome != Outcome::Done && outcome != Outcome::Missing)
        return outcome;
    forget(mirror, calendar, name);
    if (outcome == Outcome::Missing)
        mirror.token.clear();
    return Outcome::Done;
}

CalDAVEventStore::Outcome CalDAVEventStore::sendDocument(CalDAVMirror& mirror, const QString& calendar,
                                                         const QString& name)
{
    const auto document = AtomicFile::read(fileOf(calendar, name), ICalendarEvent::maximumSize);
    if (!document)
        return Outcome::Done; // the order was kept, the change itself never came to be
    const auto item = mirror.items.find(name);
    const bool known = item != mirror.items.end();
    QString tag = known ? item->second.tag : QString();
    if (known && tag.isEmpty())
        return settle(mirror, calendar, name);
    const QUrl address = mirror.addressOf(name);
    const Outcome outcome = m_client.put(address, *document, tag);
    if (outcome == Outcome::Conflict || (known && outcome == Outcome::Missing))
        return settle(mirror, calendar, name);
    if (outcome != Outcome::Done)
        return outcome;
    if (tag.isEmpty()) // what the server made of it shows only when it is read
        return settle(mirror, calendar, name);
    mirror.keep(name, address, tag);
    return Outcome::Done;
}

/// Takes over what the server has instead of the version that a change was made to.
CalDAVEventStore::Outcome CalDAVEventStore::settle(CalDAVMirror& mirror, const QString& calendar, const QString& name)
{
    CalDAVClient::RemoteEvent remote;
    const Outcome outcome = m_client.get(mirror.addressOf(name), remote);
    const auto item = mirror.items.find(name);
    const bool known = item != mirror.items.end();
    if (outcome == Outcome::Missing && known) {
        forget(mirror, calendar, name);
        mirror.token.clear(); // the next refresh looks at everything, should that answer have been a mistake
        return Outcome::Done;
    }
    // Neither there nor changed: what kept the server from taking our change is something else.
    if (outcome == Outcome::Missing || (known && !remote.tag.isEmpty() && remote.tag == item->second.tag))
        return Outcome::Rejected;
    if (outcome != Outcome::Done)
        return outcome;
    const auto local = AtomicFile::read(fileOf(calendar, name), ICalendarEvent::maximumSize);
    if (local && !sameEvent(*local, remote.document))
        Log::line(QStringLiteral("calendar event %1 was changed elsewhere; that stays").arg(name));
    mirror.outbox.erase(name);
    keep(mirror, calendar, remote);
    return Outcome::Done;
}

} // namespace vidora
