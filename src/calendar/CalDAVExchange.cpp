// What goes between a mirror and its server, in both directions.
#include "calendar/CalDAVEventStore.h"
#include "platform/Log.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <tuple>

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
        else // a name or colour that can't be written is seen by the next exchange again
            std::ignore = AtomicFile::write(path, bytes, AtomicFile::Access::OwnerOnly);
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
    const std::lock_guard lock(m_mutex);
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
    std::unique_lock lock(m_mutex);
    CalDAVMirror& known = mirror(calendar);
    lock.unlock();
    if (!remote.state.isEmpty() && remote.state == known.token)
        return true;
    CalDAVClient::Changes changes;
    if (!noteFailure(m_client.changes(remote, known.token, changes)))
        return false;
    lock.lock();
    std::set<QString> present;
    std::vector<CalDAVClient::RemoteEvent> wanted;
    for (const auto& event : changes.present) {
        if (const auto name = known.nameOf(event.address))
            present.insert(*name);
        if (isWanted(known, calendar, event))
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
    lock.unlock();
    const bool whole = bring(known, calendar, wanted);
    lock.lock();
    if (whole)
        known.token = changes.token;
    return write(known, calendar) && whole;
}

bool CalDAVEventStore::isWanted(const CalDAVMirror& mirror, const QString& calendar,
                                const CalDAVClient::RemoteEvent& event) const
{
    const auto name = mirror.nameOf(event.address);
    if (mirror.outbox.contains(name.value_or(event.address.fileName(QUrl::FullyDecoded))) ||
        event.size > ICalendarEvent::maximumSize)
        return false;
    // A copy that was lost here is no reason to lose the event there.
    const bool held = name && QFile::exists(fileOf(calendar, *name));
    return !held || event.tag.isEmpty() || mirror.items.at(*name).tag != event.tag;
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
        const std::lock_guard lock(m_mutex);
        for (const auto& event : events)
            keep(mirror, calendar, event);
    }
    return true;
}

void CalDAVEventStore::keep(CalDAVMirror& mirror, const QString& calendar, const CalDAVClient::RemoteEvent& event)
{
    const QString name = mirror.nameOf(event.address).value_or(mirror.nameFor(event.address));
    if (mirror.outbox.contains(name) || event.document.size() > ICalendarEvent::maximumSize)
        return;
    if (AtomicFile::write(fileOf(calendar, name), event.document, AtomicFile::Access::OwnerOnly,
                          AtomicFile::Durability::Unsynced, m_layer)
            .failed())
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
    std::unique_lock lock(m_mutex);
    CalDAVMirror& known = mirror(calendar);
    const auto outbox = known.outbox;
    lock.unlock();
    if (outbox.empty())
        return true;
    if (!mayAsk() || known.address.isEmpty())
        return false;
    bool answered = true;
    for (const auto& [name, order] : outbox) {
        const Outcome outcome = send(known, calendar, name, order);
        if (outcome == Outcome::Done) {
            const std::lock_guard done(m_mutex);
            if (known.isLatest(name, order))
                known.outbox.erase(name);
        } else if (outcome == Outcome::Rejected) {
            // This one event may be the matter; it waits for a better day, the others go on.
            Log::line(QStringLiteral("calendar server takes no change: %1").arg(m_client.lastAnswer()));
        } else {
            answered = noteFailure(outcome);
            break;
        }
    }
    lock.lock();
    return write(known, calendar) && answered;
}

CalDAVEventStore::Outcome CalDAVEventStore::send(CalDAVMirror& mirror, const QString& calendar, const QString& name,
                                                 const CalDAVMirror::Order& order)
{
    if (order.change == CalDAVMirror::Change::Put)
        return sendDocument(mirror, calendar, name, order);
    const auto item = mirror.items.find(name);
    const Outcome outcome =
        m_client.remove(mirror.addressOf(name), item == mirror.items.end() ? QString() : item->second.tag);
    if (outcome == Outcome::Conflict)
        return settle(mirror, calendar, name, order, std::nullopt);
    if (outcome != Outcome::Done && outcome != Outcome::Missing)
        return outcome;
    const std::lock_guard lock(m_mutex);
    if (mirror.isLatest(name, order))
        forget(mirror, calendar, name);
    else
        mirror.forget(name); // made anew meanwhile
    if (outcome == Outcome::Missing)
        mirror.token.clear();
    return Outcome::Done;
}

CalDAVEventStore::Outcome CalDAVEventStore::sendDocument(CalDAVMirror& mirror, const QString& calendar,
                                                         const QString& name, const CalDAVMirror::Order& order)
{
    const auto document = AtomicFile::read(fileOf(calendar, name), ICalendarEvent::maximumSize);
    if (!document)
        return Outcome::Done; // the order was kept, the change itself never came to be
    const auto item = mirror.items.find(name);
    const bool known = item != mirror.items.end();
    QString tag = known ? item->second.tag : QString();
    if (known && tag.isEmpty())
        return settle(mirror, calendar, name, order, document);
    const QUrl address = mirror.addressOf(name);
    const Outcome outcome = m_client.put(address, *document, tag);
    if (outcome == Outcome::Conflict || (known && outcome == Outcome::Missing))
        return settle(mirror, calendar, name, order, document);
    if (outcome != Outcome::Done)
        return outcome;
    if (tag.isEmpty()) // what the server made of it shows only when it is read
        return settle(mirror, calendar, name, order, document);
    const std::lock_guard lock(m_mutex);
    mirror.keep(name, address, tag);
    return Outcome::Done;
}

/// Takes over what the server has instead of the version that a change was made to.
CalDAVEventStore::Outcome CalDAVEventStore::settle(CalDAVMirror& mirror, const QString& calendar, const QString& name,
                                                   const CalDAVMirror::Order& order,
                                                   const std::optional<QByteArray>& sent)
{
    CalDAVClient::RemoteEvent remote;
    const Outcome outcome = m_client.get(mirror.addressOf(name), remote);
    const std::lock_guard lock(m_mutex);
    const auto item = mirror.items.find(name);
    const bool known = item != mirror.items.end();
    const bool latest = mirror.isLatest(name, order);
    if (outcome == Outcome::Missing && known) {
        if (latest)
            forget(mirror, calendar, name);
        else
            mirror.forget(name);
        mirror.token.clear(); // the next refresh looks at everything, should that answer have been a mistake
        return Outcome::Done;
    }
    // Neither there nor changed: what kept the server from taking our change is something else.
    if (outcome == Outcome::Missing || (known && !remote.tag.isEmpty() && remote.tag == item->second.tag))
        return Outcome::Rejected;
    if (outcome != Outcome::Done)
        return outcome;
    const bool ours = sent && sameEvent(*sent, remote.document);
    if (ours && !latest) { // a later change goes on top of it
        mirror.keep(name, remote.address, remote.tag);
        return Outcome::Done;
    }
    if (sent && !ours)
        Log::line(QStringLiteral("calendar event %1 was changed elsewhere; that stays").arg(name));
    mirror.outbox.erase(name);
    keep(mirror, calendar, remote);
    return Outcome::Done;
}

} // namespace vidora
