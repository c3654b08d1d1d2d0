#include "calendar/CalDAVEventStore.h"

#include <QDir>

namespace vidora {

CalDAVEventStore::CalDAVEventStore(QString folder, QString source, CalDAVAccount account, URLSession& session,
                                   const Clock& clock, Random& random, Sleeper& sleeper, FileLayer& layer,
                                   Exchange exchange, ServiceLookup* services)
    : m_folder(folder)
    , m_accountAddress(account.address)
    , m_clock(clock)
    , m_exchange(exchange)
    , m_layer(layer)
    , m_files(std::move(folder), std::move(source), clock, random, layer)
    , m_client(session, sleeper, std::move(account), services)
{
    if (exchange == Exchange::InBackground)
        m_queue = DispatchQueue::serial(QStringLiteral("calendar server"), QualityOfService::Utility);
}

CalDAVEventStore::~CalDAVEventStore()
{
    m_queue.reset();
}

void CalDAVEventStore::exchange(std::function<void()> work)
{
    if (m_exchange == Exchange::Never)
        return;
    auto locked = [this, work = std::move(work)] {
        const std::lock_guard lock(m_exchangeMutex);
        work();
        if (m_hasChanged.exchange(false))
            notifyChanged();
    };
    if (m_queue)
        m_exchanges.async(*m_queue, std::move(locked));
    else
        locked();
}

QString CalDAVEventStore::folderOf(const QString& calendar) const
{
    return m_folder + QLatin1Char('/') + calendar;
}

QStringList CalDAVEventStore::mirrored() const
{
    return QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

CalDAVMirror& CalDAVEventStore::mirror(const QString& calendar)
{
    return m_mirrors.try_emplace(calendar, folderOf(calendar), m_layer).first->second;
}

AuthorizationStatus CalDAVEventStore::authorizationStatusForEntityType(EntityType type) const
{
    return m_files.authorizationStatusForEntityType(type);
}

void CalDAVEventStore::requestAccessToEntityType(EntityType type, const Completion& completion)
{
    std::optional<EventStoreError> error;
    if (m_exchange == Exchange::WhileCallerWaits)
        error = refresh();
    else
        refreshSourcesIfNecessary();
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
    if (error || !commit)
        return error;
    error = this->commit();
    if (auto present = error ? std::nullopt : m_files.eventWithIdentifier(event.eventIdentifier))
        event.asRead = present->asRead;
    return error;
}

std::optional<EventStoreError> CalDAVEventStore::removeEvent(const Event& event, EventSpan span, bool commit)
{
    auto error = m_files.removeEvent(event, span, false);
    return error || !commit ? error : this->commit();
}

std::optional<EventStoreError> CalDAVEventStore::commit()
{
    auto error = write();
    if (!error && !m_isPushQueued.exchange(true)) {
        exchange([this] {
            m_isPushQueued = false;
            pushAll();
        });
    }
    return error;
}

/// The order to send goes to the disk first: a change that is made and never sent would stay unknown to everybody else,
/// an order without its change does nothing.
std::optional<EventStoreError> CalDAVEventStore::write()
{
    const std::lock_guard lock(m_mutex);
    std::set<QString> touched;
    for (const FolderEventStore::Change& change : m_files.waitingChanges()) {
        mirror(change.calendarIdentifier)
            .order(change.fileName, change.removed ? CalDAVMirror::Change::Remove : CalDAVMirror::Change::Put,
                   ++m_lastOrder);
        touched.insert(change.calendarIdentifier);
    }
    for (const QString& calendar : touched) {
        if (!mirror(calendar).write())
            return EventStoreError{QStringLiteral("the changes can't be kept in %1").arg(folderOf(calendar))};
    }
    return m_files.commit();
}

int CalDAVEventStore::unsentChanges()
{
    const std::lock_guard lock(m_mutex);
    std::size_t count = 0;
    for (const QString& calendar : mirrored())
        count += mirror(calendar).outbox().size();
    return static_cast<int>(count);
}

std::vector<CalDAVEventStore::Refusal> CalDAVEventStore::refusals()
{
    const std::lock_guard lock(m_mutex);
    std::vector<Refusal> result;
    for (const Calendar& calendar : m_files.calendarsForEntityType(EntityType::Event)) {
        for (const auto& [name, refusal] : mirror(calendar.calendarIdentifier).refusals())
            result.push_back({calendar.title, refusal.title, refusal.reason});
    }
    return result;
}

void CalDAVEventStore::refreshSourcesIfNecessary()
{
    exchange([this] {
        if (!isWithin(m_refreshed, refreshInterval) && mayAsk())
            static_cast<void>(refreshAll()); // the log has what failed
    });
}

std::optional<EventStoreError> CalDAVEventStore::refresh()
{
    const std::lock_guard lock(m_exchangeMutex);
    m_isPauseRead = true;
    m_failed.reset();
    {
        const std::lock_guard mirrors(m_mutex);
        for (const QString& calendar : mirrored())
            mirror(calendar).retryRefused();
    }
    const DAVResult result = refreshAll();
    if (m_hasChanged.exchange(false))
        notifyChanged();
    return result.isDone() ? std::nullopt : std::optional(EventStoreError{result.answer});
}

} // namespace vidora
