#pragma once

#include "calendar/DAVConnection.h"
#include "calendar/Event.h"
#include "platform/ServiceLookup.h"

namespace vidora {

/// The requests of calendar access over WebDAV (RFC 4791, RFC 6578, RFC 6764): one operation of the protocol each,
/// without memory of calendars. Blocks; never on the main thread; operations of several threads run side by side. For
/// where the password may go see DAVConnection.
class CalDAVClient
{
public:
    using Outcome = DAVResult::Outcome;
    using Trouble = DAVResult::Trouble;

    struct RemoteCalendar
    {
        QUrl address;
        QString title;
        QString color; ///< as the server writes it
        bool writable = false;
        bool synchronises = false; ///< RFC 6578
        QString state;             ///< sync token or tag; the same as long as nothing changes; may be empty
    };
    struct RemoteEvent
    {
        QUrl address;
        QString tag; ///< entity tag; empty when the server gives none
        QByteArray document;
        qint64 size = 0; ///< 0 when the server doesn't tell
    };
    struct Changes
    {
        std::vector<RemoteEvent> present; ///< without documents
        std::vector<QUrl> removed;
        QString token;
        bool whole = false; ///< `present` is all there is, not only what changed
    };

    /// What there is of an account: to tell the user.
    struct Findings
    {
        Trouble trouble = Trouble::None; ///< none: all was found
        QString lastAnswer;
        QString elsewhere; ///< with Trouble::Elsewhere: the origin that the user may allow; see CalDAVAccount::origins
        std::optional<URLAuthentication> authentication;
        std::vector<QUrl> homes; ///< empty when the trouble was to find them
        std::vector<RemoteCalendar> calendars;
    };

    /// `services`: to find the server of a domain; null: the domain's own host is asked.
    CalDAVClient(URLSession& session, Sleeper& sleeper, CalDAVAccount account, ServiceLookup* services = nullptr);

    /// The way to the calendars from the beginning, and what they are.
    Findings examine();
    /// The addresses below which the user's calendars lie.
    DAVResult discover(std::vector<QUrl>& homes);
    DAVResult calendars(const QUrl& home, std::vector<RemoteCalendar>& result);
    /// Whether there is something at this address.
    DAVResult look(const QUrl& address);
    /// What changed since the token; everything without one, and when the server has forgotten it.
    DAVResult changes(const RemoteCalendar& calendar, const QString& token, Changes& result);
    /// The documents of events; those that are gone are left out.
    DAVResult fetch(const QUrl& calendar, const std::vector<QUrl>& addresses, std::vector<RemoteEvent>& result);
    /// One event, byte for byte.
    DAVResult get(const QUrl& address, RemoteEvent& result);
    /// Writes an event that has the tag, or does not exist when the tag is empty; the tag is the new one afterwards,
    /// empty when the server gives none.
    DAVResult put(const QUrl& address, const QByteArray& document, QString& tag);
    /// Removes an event that has the tag, whatever it is like when the tag is empty.
    DAVResult remove(const QUrl& address, const QString& tag);

    /// Any thread.
    int requestCount() const { return m_connection.requestCount(); }
    int answerCount() const { return m_connection.answerCount(); }

private:
    struct Links
    {
        std::vector<QUrl> homes;
        QUrl principal;
        DAVResult result;
    };

    std::vector<QUrl> startingPoints(DAVResult& trouble) const;
    Links linksIn(const QUrl& address);

    DAVConnection m_connection;
    ServiceLookup* const m_services;
};

} // namespace vidora
