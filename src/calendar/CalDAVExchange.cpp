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
constexpr QLatin1String pauseFile("/.pause");

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

DAVResult done()
{
    DAVResult result;
    result.outcome = DAVResult::Outcome::Done;
    result.trouble = DAVResult::Trouble::None;
    result.hasAnswered = true;
    return result;
}

DAVResult notKept(const QString& folder)
{
    DAVResult result;
    result.answer = QStringLiteral("%1 can't be written").arg(folder);
    result.hasAnswered = true;
    return result;
}

} // namespace

/// True when nothing failed. Otherwise the server is left alone for a while.
bool CalDAVEventStore::noteFailure(const DAVResult& result)
{
    if (result.isDone())
        return true;
    Log::line(QStringLiteral("calendar server: %1").arg(result.answer));
    m_failed = m_clock.now();
    m_pause = result.outcome == Outcome::Refused ? pauseAfterRefusal : result.retryAfter.value_or(pauseAfterFailure);
    if (result.retryAfter) // the next process has to honour it as well
        writeAttribute(m_folder + pauseFile,
                       QStringLiteral("%1 %2").arg(unixMilliseconds(*m_failed)).arg(m_pause.count()));
    return false;
}

void CalDAVEventStore::readPause()
{
    if (std::exchange(m_isPauseRead, true))
        return;
    const QByteArrayList parts = AtomicFile::read(m_folder + pauseFile, 1024).value_or(QByteArray()).split(' ');
    if (parts.size() == 2) {
        m_failed = instantFromUnixMilliseconds(parts[0].toLongLong());
        m_pause = std::clamp(Seconds(parts[1].toLongLong()), Seconds(0), Seconds(24 * 60 * 60));
    }
}

/// Whether less than a period has gone by since a moment. A clock that was set back doesn't lengthen it.
bool CalDAVEventStore::isWithin(const std::optional<Instant>& moment, Seconds period) const
{
    const Instant now = m_clock.now();
    return moment && now >= *moment && now < *moment + period;
}

bool CalDAVEventStore::mayAsk()
{
    readPause();
    return !isWithin(m_failed, m_pause);
}

void CalDAVEventStore::noteChange(bool hasChanged)
{
    if (hasChanged)
        m_hasChanged = true;
}

/// Where the calendars lie is asked once for an account, and again when they lie there no more.
DAVResult CalDAVEventStore::findHomes()
{
    const QString file = m_folder + QStringLiteral("/.home");
    const QStringList known =
        QString::fromUtf8(AtomicFile::read(file, 64 * 1024).value_or(QByteArray())).split(QLatin1Char('\n'));
    if (known.size() >= 2 && known.front() == m_accountAddress) {
        for (const QString& home : known.mid(1))
            m_homes.emplace_back(home);
        return done();
    }
    const DAVResult result = m_client.discover(m_homes);
    if (!result.isDone())
        return result;
    QStringList lines{m_accountAddress};
    for (const QUrl& home : m_homes)
        lines << home.toString(QUrl::FullyEncoded);
    writeAttribute(file, lines.join(QLatin1Char('\n')));
    return result;
}

DAVResult CalDAVEventStore::listCalendars(std::vector<CalDAVClient::RemoteCalendar>& calendars)
{
    DAVResult result = m_homes.empty() ? findHomes() : done();
    if (!result.isDone())
        return result;
    for (const QUrl& home : m_homes) {
        result = m_client.calendars(home, calendars);
        if (result.isDone())
            continue;
        m_homes.clear();
        if (result.hasAnswered && result.outcome != Outcome::Failed && result.outcome != Outcome::Busy)
            QFile::remove(m_folder + QStringLiteral("/.home")); // it may have moved
        break;
    }
    return result;
}

/// What others did comes in ahead of what goes out, so that what goes out is made on top of it.
DAVResult CalDAVEventStore::refreshAll()
{
    std::vector<CalDAVClient::RemoteCalendar> calendars;
    const DAVResult listed = listCalendars(calendars);
    if (!noteFailure(listed))
        return listed;
    if (!takeCalendars(calendars))
        return notKept(m_folder);
    DAVResult last = done();
    for (const auto& remote : calendars) {
        const QString calendar = identifierOf(remote.address);
        DAVResult result = pull(calendar, remote);
        if (result.isDone())
            result = push(calendar);
        if (noteFailure(result))
            continue;
        last = result;
        if (!result.hasAnswered || result.outcome == Outcome::Refused || result.outcome == Outcome::Busy)
            return result;
        m_failed.reset(); // the trouble of one calendar is not that of the others
    }
    m_refreshed = m_clock.now();
    QFile::remove(m_folder + pauseFile);
    return last;
}

/// Makes the folders agree with the calendars that the server has.
bool CalDAVEventStore::takeCalendars(const std::vector<CalDAVClient::RemoteCalendar>& calendars)
{
    std::set<QString> present;
    {
        const std::lock_guard lock(m_mutex);
        for (const auto& remote : calendars) {
            const QString calendar = identifierOf(remote.address),
                          address = remote.address.toString(QUrl::FullyEncoded);
            const auto attribute = [&](const char* name) -> QString {
                return folderOf(calendar) + QLatin1String(name);
            };
            present.insert(calendar);
            const QString path = remote.address.path().section(QLatin1Char('/'), -2, -2);
            writeAttribute(attribute("/displayname"), remote.title.isEmpty() ? path : remote.title);
            writeAttribute(attribute("/color"), remote.color);
            writeAttribute(attribute("/.address"), address);
            writeAttribute(folderOf(calendar) + readOnlyMark, remote.writable ? QString() : QStringLiteral("1"));
            mirror(calendar).address = address;
            if (std::exchange(mirror(calendar).missingSince, std::nullopt) && !mirror(calendar).write())
                return false;
        }
    }
    for (const QString& calendar : mirrored()) {
        if (!present.contains(calendar) && !loseCalendar(calendar))
            return false;
    }
    return true;
}

/// A calendar that is not in the list. One answer is not believed: lists have gaps when a server is being worked on.
bool CalDAVEventStore::loseCalendar(const QString& calendar)
{
    std::unique_lock lock(m_mutex);
    CalDAVMirror& known = mirror(calendar);
    const QUrl address(known.address);
    lock.unlock();
    if (!address.isEmpty() && m_client.look(address).outcome != Outcome::Missing)
        return true;
    lock.lock();
    const Instant now = m_clock.now();
    if (!known.address.isEmpty() && (!known.missingSince || now < *known.missingSince + refreshInterval)) {
        if (!known.missingSince || now < *known.missingSince)
            known.missingSince = now;
        Log::line(QStringLiteral("calendar %1 is missing from the server").arg(known.address));
        return known.write();
    }
    Log::line(QStringLiteral("calendar %1 is gone from the server").arg(known.address));
    m_mirrors.erase(calendar);
    m_hasChanged = true;
    return QDir(folderOf(calendar)).removeRecursively();
}

DAVResult CalDAVEventStore::pull(const QString& calendar, const CalDAVClient::RemoteCalendar& remote)
{
    std::unique_lock lock(m_mutex);
    CalDAVMirror& known = mirror(calendar);
    const QString token = known.token;
    lock.unlock();
    if (!remote.state.isEmpty() && remote.state == token)
        return done();
    CalDAVClient::Changes changes;
    DAVResult result = m_client.changes(remote, token, changes);
    if (!result.isDone())
        return result;
    lock.lock();
    std::set<QString> present;
    std::vector<CalDAVClient::RemoteEvent> wanted;
    for (const auto& event : changes.present) {
        if (const auto name = known.nameOf(event.address))
            present.insert(*name);
        if (known.isWanted(event))
            wanted.push_back(event);
    }
    std::vector<QString> gone;
    for (const QUrl& address : changes.removed) {
        if (const auto name = known.nameOf(address))
            gone.push_back(*name);
    }
    if (changes.whole) {
        for (const QString& name : known.names()) {
            if (!present.contains(name))
                gone.push_back(name);
        }
    }
    for (const QString& name : gone) {
        if (!known.outbox().contains(name)) // what becomes of those shows when the change is sent
            noteChange(known.forget(name));
    }
    lock.unlock();
    result = bring(known, wanted);
    lock.lock();
    if (result.isDone())
        known.token = changes.token;
    return known.write() ? result : notKept(known.folder());
}

DAVResult CalDAVEventStore::bring(CalDAVMirror& mirror, const std::vector<CalDAVClient::RemoteEvent>& wanted)
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
        const DAVResult result = m_client.fetch(QUrl(mirror.address), addresses, events);
        if (result.outcome == Outcome::TooLarge && addresses.size() > 1) {
            const std::size_t middle = first + addresses.size() / 2;
            parts.insert(parts.end(), {Part(first, middle), Part(middle, last)});
        } else if (result.outcome == Outcome::TooLarge) {
            Log::line(QStringLiteral("calendar event %1 is too large and is left out").arg(addresses[0].path()));
        } else if (!result.isDone()) {
            return result;
        }
        const std::lock_guard lock(m_mutex);
        for (const auto& event : events)
            noteChange(mirror.take(event, m_clock.now()));
    }
    return done();
}

void CalDAVEventStore::pushAll()
{
    for (const QString& calendar : mirrored()) {
        if (!noteFailure(push(calendar)))
            return;
    }
}

/// The first alone, which shows whether and how the server lets us in; then several at once.
DAVResult CalDAVEventStore::push(const QString& calendar)
{
    std::unique_lock lock(m_mutex);
    CalDAVMirror& known = mirror(calendar);
    std::vector<QString> names;
    for (const auto& [name, order] : known.outbox()) {
        if (!isWithin(order.refused, pauseAfterFailure)) // what it refused a moment ago it would refuse again
            names.push_back(name);
    }
    const bool hasAddress = !known.address.isEmpty();
    lock.unlock();
    if (names.empty() || !hasAddress || !mayAsk())
        return done();
    std::mutex failureMutex;
    DAVResult failure = send(known, names.front());
    std::atomic<bool> hasFailed = !failure.isDone();
    std::atomic<std::size_t> next = 1;
    const auto work = [&] {
        for (std::size_t index = next++; index < names.size() && !hasFailed; index = next++) {
            const DAVResult result = send(known, names[index]);
            if (result.isDone())
                continue;
            const std::lock_guard failing(failureMutex);
            failure = result;
            hasFailed = true;
        }
    };
    DispatchGroup others;
    for (int i = 1; i < requestsAtOnce && static_cast<std::size_t>(i) < names.size(); ++i)
        others.async(DispatchQueue::global(QualityOfService::Utility), work);
    work();
    others.wait();
    lock.lock();
    return known.write() ? failure : notKept(known.folder());
}

/// Done also when this one change can't be sent for now: the others go on.
DAVResult CalDAVEventStore::send(CalDAVMirror& mirror, const QString& name)
{
    constexpr int patience = 4; // with an event that somebody else changes at the same time
    DAVResult result = done();
    CalDAVMirror::Order order;
    for (int attempt = 0; attempt < patience; ++attempt) {
        {
            const std::lock_guard lock(m_mutex);
            const auto waiting = mirror.outbox().find(name);
            if (waiting == mirror.outbox().end())
                return done();
            order = waiting->second;
        }
        bool isSettled = true;
        result = sendOnce(mirror, name, order, isSettled);
        if (isSettled)
            break;
    }
    if (result.outcome != Outcome::Rejected && result.outcome != Outcome::Conflict)
        return result;
    Log::line(QStringLiteral("calendar server takes no change: %1").arg(result.answer));
    const std::lock_guard lock(m_mutex);
    mirror.noteRefused(name, order, result.answer, m_clock.now());
    return done();
}

/// `isSettled` is false afterwards where the order, on top of what the server has instead, is to be sent again.
DAVResult CalDAVEventStore::sendOnce(CalDAVMirror& mirror, const QString& name, const CalDAVMirror::Order& order,
                                     bool& isSettled)
{
    const bool isRemoval = order.change == CalDAVMirror::Change::Remove;
    std::unique_lock lock(m_mutex);
    const auto known = mirror.tagOf(name);
    const QUrl address = mirror.addressOf(name);
    const auto document = isRemoval ? std::nullopt : mirror.copyOf(name);
    if (!isRemoval && !document) {
        mirror.cancel(name, order);
        return done();
    }
    lock.unlock();
    QString tag = known.value_or(QString());
    if (tag.isEmpty() && (isRemoval || known)) // nothing goes that was not looked at
        return settle(mirror, name, order, done(), isSettled);
    const DAVResult result = isRemoval ? m_client.remove(address, tag) : m_client.put(address, *document, tag);
    if (result.outcome == Outcome::Conflict || (!isRemoval && known && result.outcome == Outcome::Missing))
        return settle(mirror, name, order, result, isSettled);
    if (!result.isDone() && !(isRemoval && result.outcome == Outcome::Missing))
        return result;
    lock.lock();
    if (isRemoval)
        mirror.noteRemoved(name, order);
    else
        mirror.noteSent(name, order, *document, tag);
    if (!result.isDone())
        mirror.token.clear(); // the next refresh looks at everything, should that answer have been a mistake
    lock.unlock();
    if (isRemoval || !tag.isEmpty())
        return done();
    // What the server made of it shows only when it is read.
    CalDAVClient::RemoteEvent remote;
    const DAVResult read = readVersion(QUrl(mirror.address), address, {}, remote);
    lock.lock();
    if (read.isDone())
        std::ignore = mirror.take(remote, m_clock.now()); // our own change is no news for the alarms
    return read.outcome == Outcome::Missing ? done() : read;
}

/// The server has something else than the version that a change was made to.
DAVResult CalDAVEventStore::settle(CalDAVMirror& mirror, const QString& name, const CalDAVMirror::Order& order,
                                   DAVResult sent, bool& isSettled)
{
    std::unique_lock lock(m_mutex);
    const auto known = mirror.tagOf(name);
    const QUrl address = mirror.addressOf(name), calendar(mirror.address);
    lock.unlock();
    CalDAVClient::RemoteEvent remote;
    DAVResult result = readVersion(calendar, address, known.value_or(QString()), remote);
    lock.lock();
    if (result.outcome == Outcome::Missing && (known || order.change == CalDAVMirror::Change::Remove)) {
        mirror.noteRemoved(name, order);
        mirror.token.clear(); // as above
        m_hasChanged = true;
        return done();
    }
    // Neither there nor changed: what keeps the server from taking our change is something else.
    if (result.outcome == Outcome::Missing || (result.isDone() && known && !known->isEmpty() && remote.tag == *known)) {
        sent.outcome = Outcome::Rejected;
        return sent;
    }
    if (!result.isDone())
        return result;
    noteChange(mirror.take(remote, m_clock.now()));
    isSettled = false;
    sent.outcome = Outcome::Conflict; // should it never come to an end
    return sent;
}

/// An event as it is on the server. Where its tag is `unless`, the other way of reading it is tried, whose answer no
/// gateway gives another tag.
DAVResult CalDAVEventStore::readVersion(const QUrl& calendar, const QUrl& address, const QString& unless,
                                        CalDAVClient::RemoteEvent& remote)
{
    const DAVResult result = m_client.get(address, remote);
    if (!result.isDone() || (!remote.tag.isEmpty() && remote.tag != unless))
        return result;
    std::vector<CalDAVClient::RemoteEvent> events;
    const DAVResult fetched = m_client.fetch(calendar, {address}, events);
    if (fetched.isDone() && events.size() == 1)
        remote = std::move(events.front());
    return fetched.isDone() ? result : fetched;
}

} // namespace vidora
