#pragma once

#include "calendar/CalendarFolder.h"
#include "calendar/EventStore.h"
#include "platform/AtomicFile.h"
#include "platform/Clock.h"

#include <map>
#include <mutex>

namespace vidora {

/// Calendars in folders: every folder below one of the user's is a calendar in the vdir layout, which other calendar
/// programs and synchronisers read and write as well. Files are written whole and renamed into place. A change of an
/// event is applied to the bytes that lie there at that moment, and to nothing but the properties that were changed;
/// whatever else the folder holds is never touched.
///
/// A new event with an address gets its identity from that address, so that the same event made twice, here or by
/// another device that shares the folder, is one event, wherever the user has moved it. An event that another device
/// has marked as its own is not taken for the same one.
class FolderEventStore final : public EventStore
{
public:
    /// A change that waits for `commit`.
    struct Change
    {
        QString calendarIdentifier;
        QString fileName;
        bool removed = false;
    };

    /// `folder`: the folder of the calendars; need not exist. `source`: the title of the place, as calendars give it.
    /// Clock, chance and file layer must outlive the store.
    FolderEventStore(QString folder, QString source, const Clock& clock, Random& random,
                     FileLayer& layer = FileLayer::system());

    /// What `commit` would write, in no order that means anything. Any thread.
    std::vector<Change> waitingChanges() const;

    AuthorizationStatus authorizationStatusForEntityType(EntityType type) const override;
    /// Makes a calendar of this program's own when there is none that can be written.
    void requestAccessToEntityType(EntityType type, const Completion& completion) override;
    void reset() override;
    void refreshSourcesIfNecessary() override;
    std::vector<Calendar> calendarsForEntityType(EntityType type) override;
    std::optional<Calendar> calendarWithIdentifier(const QString& identifier) override;
    std::optional<Calendar> defaultCalendarForNewEvents() override;
    std::vector<Event> eventsMatchingPredicate(const EventPredicate& predicate) override;
    std::optional<Event> eventWithIdentifier(const QString& identifier) override;
    using EventStore::saveEvent;
    std::optional<EventStoreError> saveEvent(Event& event, EventSpan span, bool commit) override;
    std::optional<EventStoreError> removeEvent(const Event& event, EventSpan span, bool commit) override;
    std::optional<EventStoreError> commit() override;

private:
    struct Waiting
    {
        Event event;
        QString uid;
        bool removed = false;
        bool added = false;
        std::shared_ptr<const Event> base = nullptr; ///< what was changed; null for what was added or removed
    };
    /// Where an event lies: the folder's and the file's name.
    using Place = std::pair<QString, QString>;
    struct Found
    {
        Event event;
        bool single = true;
    };

    std::vector<Calendar> readCalendars() const;
    CalendarFolder& folder(const QString& identifier);
    Event complete(const Place& place, Event event, const Calendar& calendar) const;
    std::optional<Found> find(const Place& place);
    std::optional<EventStoreError> refusal(const Event& event);
    void add(Event& event);
    void add(Event& event, const Place& place, const QString& uid);
    bool isTaken(const Place& place);
    void change(const Place& place, const Event& event);
    std::optional<EventStoreError> writeAll();
    std::optional<EventStoreError> write(const Place& place, const Waiting& change);
    std::optional<EventStoreError> changeFile(const QString& path, const Waiting& change);
    std::optional<EventStoreError> removeFile(const Place& place, const QString& path);

    const QString m_folder;
    const QString m_source;
    const Clock& m_clock;
    Random& m_random;
    FileLayer& m_layer;
    mutable std::mutex m_mutex;
    std::map<QString, CalendarFolder> m_folders;
    std::map<Place, Waiting> m_waiting;
};

} // namespace vidora
