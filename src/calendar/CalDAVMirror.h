#pragma once

#include "calendar/CalDAVClient.h"
#include "platform/AtomicFile.h"

#include <QUrl>

#include <map>
#include <optional>

namespace vidora {

/// One calendar of a server as a folder of copies of its events, with what is known about it kept beside them in the
/// hidden file ".sync", so that the two come and go together. One thread at a time. What changes files says whether it
/// changed what a reader sees.
class CalDAVMirror
{
public:
    struct Item
    {
        QString href; ///< path on the server
        QString tag;  ///< of the version that the copy is of; empty when that isn't known
    };
    enum class Change
    {
        Put,
        Remove
    };

    /// A change that the server doesn't have. Its number, of no meaning after a restart, tells it from a later change
    /// of the same event.
    struct Order
    {
        Change change = Change::Put;
        std::uint64_t number = 0;
        std::optional<Event> base = {}; ///< the server's version that was changed; nothing for an event that is new
        int tries = 0;                  ///< how often the server has refused it
        std::optional<Instant> refused = {}; ///< when it did last
    };
    /// A change that the server would not take, however often it was sent.
    struct Refusal
    {
        Order order;
        QString title;
        QString reason;
    };

    /// How often a change that the server refuses is sent before it is set aside.
    static constexpr int mostTries = 3;

    /// Reads what is known. A missing or unreadable file is an empty mirror, all of which has to be fetched. So has the
    /// copy of an event that is missing or empty, as a loss of power may leave it. The layer outlives the mirror.
    CalDAVMirror(QString folder, FileLayer& layer);
    /// True when what is known is on the disk.
    [[nodiscard]] bool write() const;

    const QString& folder() const { return m_folder; }
    QString address;
    QString token; ///< up to which the server's changes are known
    /// Since when the server's list of calendars has been without this one; nothing while it is there.
    std::optional<Instant> missingSince;

    const std::map<QString, Order>& outbox() const { return m_outbox; } ///< by the name of the copy
    const std::map<QString, Refusal>& refusals() const { return m_refusals; }
    /// The tag of the version that a copy is of; nothing for an event that isn't known to be on the server.
    std::optional<QString> tagOf(const QString& name) const;
    std::optional<QString> nameOf(const QUrl& event) const;
    QUrl addressOf(const QString& name) const;
    /// The names of the events that are known to be on the server.
    std::vector<QString> names() const;
    std::optional<QByteArray> copyOf(const QString& name) const;

    /// Notes that the copy is about to be changed, ahead of the change.
    void order(const QString& name, Change change, std::uint64_t number);
    /// Whether the server's version has to be fetched.
    bool isWanted(const CalDAVClient::RemoteEvent& event) const;
    /// Takes over the server's version of an event. A change of ours that waits goes on top of it, unless it can't.
    bool take(const CalDAVClient::RemoteEvent& event, Instant now);
    /// The event is no longer on the server: the copy goes, and a change of it that waits with it.
    bool forget(const QString& name);
    /// The server has taken the document of an order, which now has this tag.
    void noteSent(const QString& name, const Order& order, const QByteArray& document, const QString& tag);
    /// The event of an order was removed from the server.
    void noteRemoved(const QString& name, const Order& order);
    /// There is nothing to be sent: the order was kept, the change itself never came to be.
    void cancel(const QString& name, const Order& order);
    /// The server has refused an order. Set aside after a few times: the event then takes part in pulls again.
    void noteRefused(const QString& name, const Order& order, const QString& reason, Instant now);
    /// Lets what was set aside be sent once more.
    void retryRefused();

private:
    QString fileOf(const QString& name) const;
    QString nameFor(const QUrl& event) const;
    bool isLatest(const QString& name, const Order& order) const;
    void keep(const QString& name, const QUrl& event, const QString& tag);
    void drop(const QString& name);
    bool replaceCopy(const QString& name, const QByteArray& document);
    bool putOnTop(const QString& name, const CalDAVClient::RemoteEvent& theirs, Instant now);

    const QString m_folder;
    FileLayer& m_layer;
    std::map<QString, Item> m_items;
    std::map<QString, Order> m_outbox;
    std::map<QString, Refusal> m_refusals;
    std::map<QString, QString> m_names; ///< of items, by decoded path
};

} // namespace vidora
