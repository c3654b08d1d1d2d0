#pragma once

#include "calendar/CalDAVClient.h"
#include "calendar/CalDAVMirror.h"
#include "calendar/FolderEventStore.h"
#include "platform/DispatchQueue.h"

namespace vidora {

/// The calendars of an account on a CalDAV server (RFC 4791), by way of a folder on this machine that mirrors them.
///
/// Reads answer from the mirror. `commit` makes a change durable there, together with the order to send it, and sends
/// it then, and again at each later `commit` and refresh until the server has it: without a network nothing is lost,
/// and several changes of one event go as one. `refreshSourcesIfNecessary` brings in what others did, and then sends,
/// at most once in `refreshInterval`: one request for all calendars and two for each that changed. After a failure the
/// server is left alone for `pauseAfterFailure`, or for as long as it asks.
///
/// With `Exchange::InBackground` the two do not wait for the server: what is to be asked and sent is put on a queue of
/// the store's own, and reads answer from the mirror meanwhile. A server that can't be reached then holds up nobody.
/// Who reads learns from the change observer when to read again.
///
/// Nothing is sent but events that this program saved or removed, each on the condition that the server still has the
/// version the change was made to. Where it has another one, the change is put on top of that and sent again: what
/// others did to the event stays, but for the very properties that were changed here. An event that was removed there
/// stays removed. A change that the server refuses is set aside after a few times: see `refusals`.
class CalDAVEventStore final : public EventStore
{
public:
    enum class Exchange
    {
        WhileCallerWaits,
        InBackground,
        Never ///< the mirror is all there is; changes wait in it for another time
    };

    static constexpr Seconds refreshInterval{60};
    static constexpr Seconds pauseAfterFailure{60};
    static constexpr Seconds pauseAfterRefusal{15 * 60}; ///< servers lock out who keeps giving a wrong password
    static constexpr int requestsAtOnce = 6;

    /// A change that the server would not take.
    struct Refusal
    {
        QString calendar; ///< its title
        QString title;    ///< of the event
        QString reason;   ///< the request, the status, and the server's own words
    };

    /// `folder`: of the mirror, this account's alone. What is passed by reference must outlive the store; the session
    /// should bound its bodies: an event that is longer is left out.
    CalDAVEventStore(QString folder, QString source, CalDAVAccount account, URLSession& session, const Clock& clock,
                     Random& random, Sleeper& sleeper, FileLayer& layer = FileLayer::system(),
                     Exchange exchange = Exchange::WhileCallerWaits, ServiceLookup* services = nullptr);
    /// Waits for what is going on in the background.
    ~CalDAVEventStore() override;

    /// Asks the server now and waits for it, whatever was asked when: to test an account. What was set aside is sent
    /// once more. Nothing on success.
    std::optional<EventStoreError> refresh();
    /// Queues the block on the main queue once nothing is going on in the background.
    void whenExchanged(DispatchQueue::Block block) { m_exchanges.notify(DispatchQueue::main(), std::move(block)); }
    /// How many answers the server has given: who waits sees whether something is going on. Any thread.
    int answerCount() const { return m_client.answerCount(); }
    /// How many changes wait for the server.
    int unsentChanges();
    /// What was set aside, until the event is changed again, here or there.
    std::vector<Refusal> refusals();
    int requestCount() const { return m_client.requestCount(); }

    AuthorizationStatus authorizationStatusForEntityType(EntityType type) const override;
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
    using Outcome = CalDAVClient::Outcome;

    QString folderOf(const QString& calendar) const;
    QStringList mirrored() const;
    CalDAVMirror& mirror(const QString& calendar);
    bool noteFailure(const DAVResult& result);
    void readPause();
    bool isWithin(const std::optional<Instant>& moment, Seconds period) const;
    bool mayAsk();
    void exchange(std::function<void()> work);
    std::optional<EventStoreError> write();
    DAVResult findHomes();
    DAVResult listCalendars(std::vector<CalDAVClient::RemoteCalendar>& calendars);
    DAVResult refreshAll();
    bool takeCalendars(const std::vector<CalDAVClient::RemoteCalendar>& calendars);
    bool loseCalendar(const QString& calendar);
    DAVResult pull(const QString& calendar, const CalDAVClient::RemoteCalendar& remote);
    DAVResult bring(CalDAVMirror& mirror, const std::vector<CalDAVClient::RemoteEvent>& wanted);
    void pushAll();
    DAVResult push(const QString& calendar);
    DAVResult send(CalDAVMirror& mirror, const QString& name);
    DAVResult sendOnce(CalDAVMirror& mirror, const QString& name, const CalDAVMirror::Order& order, bool& isSettled);
    DAVResult settle(CalDAVMirror& mirror, const QString& name, const CalDAVMirror::Order& order, DAVResult sent,
                     bool& isSettled);
    DAVResult readVersion(const QUrl& calendar, const QUrl& address, const QString& unless,
                          CalDAVClient::RemoteEvent& remote);
    void noteChange(bool hasChanged);

    const QString m_folder;
    const QString m_accountAddress;
    const Clock& m_clock;
    const Exchange m_exchange;
    FileLayer& m_layer;
    FolderEventStore m_files;

    std::mutex m_exchangeMutex; ///< held while the server is asked; guards the following
    CalDAVClient m_client;
    std::vector<QUrl> m_homes;
    std::optional<Instant> m_refreshed;
    std::optional<Instant> m_failed;
    Seconds m_pause{0}; ///< after that
    bool m_isPauseRead = false;

    std::mutex m_mutex; ///< held for work on the disk alone, and whenever a mirror is looked at
    std::map<QString, CalDAVMirror> m_mirrors;
    std::uint64_t m_lastOrder = 0;

    std::atomic<bool> m_hasChanged = false; ///< the observer is to be told

    DispatchGroup m_exchanges;
    std::atomic<bool> m_isPushQueued = false;
    std::shared_ptr<DispatchQueue> m_queue; ///< null unless exchanges are in the background
};

} // namespace vidora
