#include "calendar/FolderEventStore.h"

#include "calendar/EventMerge.h"
#include "calendar/ICalendarProperty.h"
#include "platform/Log.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <tuple>

namespace vidora {

namespace {

constexpr int maximalCalendars = 500;
constexpr QLatin1String ownCalendar("vidora");

QString identifierOf(const std::pair<QString, QString>& place)
{
    return place.first + QLatin1Char('/') + place.second;
}

/// The place that an identifier names; empty names for none. An identifier comes from outside: it must not lead out of
/// its folder.
std::pair<QString, QString> placeOf(const QString& identifier)
{
    const QStringList names = identifier.split(QLatin1Char('/'));
    const bool plain =
        names.size() == 2 && !names.at(0).startsWith(QLatin1Char('.')) && !names.at(1).startsWith(QLatin1Char('.'));
    return plain ? std::pair(names.at(0), names.at(1)) : std::pair<QString, QString>();
}

/// `more`: tells events of one address apart.
QString identityOf(const URL& url, const QString& more)
{
    const QString text = more.isEmpty() ? url.text() : url.text() + QLatin1Char(' ') + more;
    const QByteArray digest = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(digest.first(16).toHex());
}

QString freshIdentity(Random& random)
{
    QByteArray bytes;
    while (bytes.size() < 16)
        bytes.append(static_cast<char>(random.uniform(256)));
    return QString::fromLatin1(bytes.toHex());
}

/// An event as it is read back once it was written.
Event asWritten(Event event)
{
    event.title = ICalendarProperty::cleaned(event.title);
    event.location = ICalendarProperty::cleaned(event.location);
    event.startDate = std::chrono::floor<Seconds>(event.startDate);
    event.endDate = std::chrono::floor<Seconds>(event.endDate);
    return event;
}

EventStoreError failure(const QString& path, const FileResult& result)
{
    return {QStringLiteral("%1: %2").arg(path, result.text)};
}

} // namespace

FolderEventStore::FolderEventStore(QString folder, QString source, const Clock& clock, Random& random, FileLayer& layer)
    : m_folder(std::move(folder))
    , m_source(std::move(source))
    , m_clock(clock)
    , m_random(random)
    , m_layer(layer)
{
}

std::vector<FolderEventStore::Change> FolderEventStore::waitingChanges() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<Change> changes;
    for (const auto& [place, change] : m_waiting)
        changes.push_back({place.first, place.second, change.removed});
    return changes;
}

AuthorizationStatus FolderEventStore::authorizationStatusForEntityType(EntityType) const
{
    const auto calendars = readCalendars();
    if (std::any_of(calendars.begin(), calendars.end(), [](const Calendar& c) { return c.allowsContentModifications; }))
        return AuthorizationStatus::Authorized;
    return calendars.empty() ? AuthorizationStatus::NotDetermined : AuthorizationStatus::Denied;
}

void FolderEventStore::requestAccessToEntityType(EntityType type, const Completion& completion)
{
    std::optional<EventStoreError> error;
    if (authorizationStatusForEntityType(type) != AuthorizationStatus::Authorized) {
        const QString path = m_folder + QLatin1Char('/') + ownCalendar + QStringLiteral("/displayname");
        const FileResult made =
            AtomicFile::write(path, "Vidora", AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Synced, m_layer);
        if (made.failed())
            error = failure(path, made);
    }
    completion(authorizationStatusForEntityType(type) == AuthorizationStatus::Authorized, error);
}

void FolderEventStore::reset()
{
    const std::lock_guard lock(m_mutex);
    m_waiting.clear();
    m_folders.clear();
}

void FolderEventStore::refreshSourcesIfNecessary() {}

std::vector<Calendar> FolderEventStore::readCalendars() const
{
    std::vector<Calendar> calendars;
    const QStringList names = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names.mid(0, maximalCalendars))
        calendars.push_back(CalendarFolder(m_folder + QLatin1Char('/') + name).describe(name, m_source));
    std::sort(calendars.begin(), calendars.end(), [](const Calendar& a, const Calendar& b) {
        return std::tie(a.title, a.calendarIdentifier) < std::tie(b.title, b.calendarIdentifier);
    });
    return calendars;
}

std::vector<Calendar> FolderEventStore::calendarsForEntityType(EntityType)
{
    return readCalendars();
}

std::optional<Calendar> FolderEventStore::calendarWithIdentifier(const QString& identifier)
{
    const QString path = m_folder + QLatin1Char('/') + identifier;
    if (identifier.isEmpty() || identifier.startsWith(QLatin1Char('.')) || identifier.contains(QLatin1Char('/')) ||
        !QFileInfo(path).isDir())
        return std::nullopt;
    return CalendarFolder(path).describe(identifier, m_source);
}

std::optional<Calendar> FolderEventStore::defaultCalendarForNewEvents()
{
    std::optional<Calendar> result;
    for (const Calendar& calendar : readCalendars()) {
        if (calendar.allowsContentModifications && (!result || calendar.calendarIdentifier == ownCalendar))
            result = calendar;
    }
    return result;
}

CalendarFolder& FolderEventStore::folder(const QString& identifier)
{
    return m_folders.try_emplace(identifier, m_folder + QLatin1Char('/') + identifier).first->second;
}

Event FolderEventStore::complete(const Place& place, Event event, const Calendar& calendar) const
{
    event.eventIdentifier = identifierOf(place);
    event.calendar = calendar;
    event.asRead = nullptr;
    event.asRead = std::make_shared<const Event>(event);
    return event;
}

std::vector<Event> FolderEventStore::eventsMatchingPredicate(const EventPredicate& predicate)
{
    const std::lock_guard lock(m_mutex);
    std::vector<Event> events;
    for (const Calendar& wanted : predicate.calendars) {
        const auto calendar = calendarWithIdentifier(wanted.calendarIdentifier);
        if (!calendar || !folder(calendar->calendarIdentifier).refresh())
            throw EventStoreException(QStringLiteral("CalendarUnavailable"),
                                      QStringLiteral("calendar %1 can't be read").arg(wanted.title));
        const auto take = [&](const Place& place, const Event& event) {
            if (predicate.touches(event.startDate, event.endDate))
                events.push_back(complete(place, event, *calendar));
        };
        const QString& name = calendar->calendarIdentifier;
        for (const auto& [file, stored] : folder(name).events()) {
            if (!m_waiting.contains({name, file}))
                take({name, file}, stored.event);
        }
        for (const auto& [place, change] : m_waiting) {
            if (place.first == name && !change.removed)
                take(place, change.event);
        }
    }
    std::sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
        return std::tie(a.startDate, a.eventIdentifier) < std::tie(b.startDate, b.eventIdentifier);
    });
    return events;
}

std::optional<FolderEventStore::Found> FolderEventStore::find(const Place& place)
{
    const auto calendar = calendarWithIdentifier(place.first);
    if (!calendar)
        return std::nullopt;
    if (const auto change = m_waiting.find(place); change != m_waiting.end()) {
        if (change->second.removed)
            return std::nullopt;
        return Found{complete(place, change->second.event, *calendar)};
    }
    CalendarFolder& files = folder(place.first);
    files.refresh(place.second);
    const auto stored = files.events().find(place.second);
    if (stored == files.events().end())
        return std::nullopt;
    return Found{complete(place, stored->second.event, *calendar), stored->second.single};
}

std::optional<Event> FolderEventStore::eventWithIdentifier(const QString& identifier)
{
    const std::lock_guard lock(m_mutex);
    auto found = find(placeOf(identifier));
    return found ? std::optional(std::move(found->event)) : std::nullopt;
}

/// Why the event can't be changed or removed.
std::optional<EventStoreError> FolderEventStore::refusal(const Event& event)
{
    const auto calendar = calendarWithIdentifier(event.calendar.calendarIdentifier);
    if (!calendar || !calendar->allowsContentModifications)
        return EventStoreError{QStringLiteral("the calendar can't be written")};
    if (event.eventIdentifier.isEmpty())
        return std::nullopt;
    const Place place = placeOf(event.eventIdentifier);
    const auto found = find(place);
    if (!found)
        return EventStoreError{QStringLiteral("the event is gone")};
    if (place.first != event.calendar.calendarIdentifier)
        return EventStoreError{QStringLiteral("an event stays in its calendar")};
    return found->single ? std::nullopt : std::optional(EventStoreError{QStringLiteral("the event repeats")});
}

void FolderEventStore::add(Event& event)
{
    // Two devices that do the same at the same time must come to the same name.
    constexpr int mostNames = 4;
    for (int number = 0; number < mostNames && event.url; ++number) {
        const QString uid = identityOf(*event.url, number == 0 ? QString() : QString::number(number));
        const Place place{event.calendar.calendarIdentifier, uid + QStringLiteral(".ics")};
        const auto present = find(place);
        if (!present && !isTaken(place))
            return add(event, place, uid);
        if (!present || !present->single ||
            (present->event.url &&
             present->event.url != event.url)) // one that moved keeps its name; a server may drop it
            continue;
        if (!present->event.device.isEmpty() && present->event.device != event.device)
            break;
        event = laidOver(event, present->event); // be it moved by hand since
        return change(place, event);
    }
    QString uid = event.url ? identityOf(*event.url, event.device) : freshIdentity(m_random);
    if (isTaken({event.calendar.calendarIdentifier, uid + QStringLiteral(".ics")}))
        uid = freshIdentity(m_random);
    add(event, {event.calendar.calendarIdentifier, uid + QStringLiteral(".ics")}, uid);
}

void FolderEventStore::add(Event& event, const Place& place, const QString& uid)
{
    event = complete(place, event, event.calendar);
    m_waiting.insert_or_assign(place, Waiting{event, uid, false, true});
}

bool FolderEventStore::isTaken(const Place& place)
{
    return folder(place.first).hasFile(place.second) || m_waiting.contains(place);
}

void FolderEventStore::change(const Place& place, const Event& event)
{
    if (const auto earlier = m_waiting.find(place); earlier != m_waiting.end()) {
        earlier->second.event = event;
        return;
    }
    const auto base = event.asRead ? event.asRead : find(place)->event.asRead;
    if (!sameContent(*base, asWritten(event)))
        m_waiting.insert_or_assign(place, Waiting{event, {}, false, false, base});
}

std::optional<EventStoreError> FolderEventStore::saveEvent(Event& event, EventSpan, bool commit)
{
    const std::lock_guard lock(m_mutex);
    if (auto error = refusal(event))
        return error;
    if (event.endDate < event.startDate)
        return EventStoreError{QStringLiteral("the event ends before it starts")};
    if (event.eventIdentifier.isEmpty())
        add(event);
    else
        change(placeOf(event.eventIdentifier), event);
    if (!commit)
        return std::nullopt;
    auto error = writeAll();
    if (!error) // what is changed from here on is changed against this
        event = complete(placeOf(event.eventIdentifier), event, event.calendar);
    return error;
}

std::optional<EventStoreError> FolderEventStore::removeEvent(const Event& event, EventSpan, bool commit)
{
    const std::lock_guard lock(m_mutex);
    if (event.eventIdentifier.isEmpty())
        return EventStoreError{QStringLiteral("the event was never saved")};
    if (auto error = refusal(event))
        return error;
    const Place place = placeOf(event.eventIdentifier);
    if (const auto earlier = m_waiting.find(place); earlier != m_waiting.end() && earlier->second.added)
        m_waiting.erase(earlier);
    else
        m_waiting.insert_or_assign(place, Waiting{event, {}, true, false});
    return commit ? writeAll() : std::nullopt;
}

std::optional<EventStoreError> FolderEventStore::commit()
{
    const std::lock_guard lock(m_mutex);
    return writeAll();
}

std::optional<EventStoreError> FolderEventStore::writeAll()
{
    std::optional<EventStoreError> first;
    for (auto change = m_waiting.begin(); change != m_waiting.end();) {
        const auto error = write(change->first, change->second);
        if (!error) {
            change = m_waiting.erase(change);
            continue;
        }
        Log::line(QStringLiteral("calendar not written: %1").arg(error->localizedDescription));
        if (!first)
            first = error;
        ++change;
    }
    return first;
}

/// Applies a change to what lies on the disk now: another program may have been there since the change was made.
std::optional<EventStoreError> FolderEventStore::write(const Place& place, const Waiting& change)
{
    const QString path = m_folder + QLatin1Char('/') + identifierOf(place);
    if (change.removed)
        return removeFile(place, path);
    if (QFile::exists(path))
        return changeFile(path, change);
    if (!change.added) {
        Log::line(QStringLiteral("calendar event %1 was removed elsewhere and stays so").arg(path));
        return std::nullopt;
    }
    const FileResult written =
        AtomicFile::write(path, ICalendarEvent::write(change.uid, change.event, m_clock.now()),
                          AtomicFile::Access::OwnerOnly, AtomicFile::Durability::Synced, m_layer);
    return written.failed() ? std::optional(failure(path, written)) : std::nullopt;
}

std::optional<EventStoreError> FolderEventStore::changeFile(const QString& path, const Waiting& change)
{
    constexpr int patience = 5; // with a program that writes the same file over and over
    for (int attempt = 1;; ++attempt) {
        const auto bytes = AtomicFile::read(path, ICalendarEvent::maximumSize);
        const auto present = bytes ? ICalendarEvent::read(*bytes) : std::nullopt;
        if (!present || !present->single) {
            Log::line(QStringLiteral("calendar event %1 was changed elsewhere and is left alone").arg(path));
            return std::nullopt;
        }
        const Event wanted =
            change.base ? merged(*change.base, change.event, present->event) : laidOver(change.event, present->event);
        const auto changed = ICalendarEvent::change(*bytes, wanted, m_clock.now());
        if (!changed)
            return std::nullopt;
        // A calendar that its owner shares with others stays shared.
        const bool shared = QFileInfo(path).permission(QFile::ReadOther);
        const FileResult replaced = AtomicFile::replace(
            path, *bytes, *changed, shared ? AtomicFile::Access::Everyone : AtomicFile::Access::OwnerOnly, m_layer);
        if (!replaced.failed())
            return std::nullopt;
        if (replaced.code != ESTALE || attempt == patience)
            return failure(path, replaced);
    }
}

std::optional<EventStoreError> FolderEventStore::removeFile(const Place& place, const QString& path)
{
    const auto bytes = AtomicFile::read(path, ICalendarEvent::maximumSize);
    const auto present = bytes ? ICalendarEvent::read(*bytes) : std::nullopt;
    if (QFile::exists(path) && (!present || !present->single)) {
        Log::line(QStringLiteral("calendar event %1 was changed elsewhere and is left alone").arg(path));
        return std::nullopt;
    }
    int error = m_layer.remove(path);
    if (error == 0 || error == ENOENT)
        error = m_layer.syncFolder(m_folder + QLatin1Char('/') + place.first);
    if (error == 0)
        return std::nullopt;
    return failure(path, {error, QString::fromStdString(std::generic_category().message(error))});
}

} // namespace vidora
