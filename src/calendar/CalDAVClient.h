#pragma once

#include "calendar/Event.h"
#include "platform/Clock.h"
#include "platform/URLSession.h"

#include <QUrl>

#include <atomic>
#include <functional>

namespace vidora {

struct DAVResponse;

/// An account on a calendar server. The password is the caller's to keep: see SecretStore.
struct CalDAVAccount
{
    QString address; ///< a host ("calendar.example.org") or an address; without a scheme "https:" is meant
    QString user;
    QString password; ///< null: it is asked for, once the server wants it
    /// Where the password is kept: asked on the thread of the request, at most once. Nothing when it can't be had.
    std::function<std::optional<QString>()> keptPassword = {};
};

/// The requests of calendar access over WebDAV (RFC 4791, RFC 4918, RFC 6578): one operation of the protocol each,
/// without memory of calendars. Blocks; one thread at a time, never the main one.
///
/// Redirects are followed within the host that the account names and the hosts below it, and never from HTTPS to HTTP:
/// a password goes nowhere else, and as it stands only over HTTPS or to this machine. An answer that got lost, or the
/// server's own trouble, is tried once more; a host that can't be reached is not.
class CalDAVClient
{
public:
    enum class Outcome
    {
        Done,
        Missing,  ///< 404, 410
        Conflict, ///< 412: it is not as it was
        Refused,  ///< 401: user or password
        Rejected, ///< any other answer that says no: 400, 403, 409, 413, 415, 423, 507, ...
        TooLarge, ///< an answer came that can't be had whole
        Failed    ///< no answer, the server's own trouble, or something that is no answer to the question
    };
    /// Why a request came to nothing, as far as it can be told.
    enum class Trouble
    {
        None,
        BadAddress,
        NoSuchHost,
        NoConnection,
        NoEncryption,
        Certificate,
        TimedOut,
        NoPassword,  ///< the server wants one and none could be had
        Password,    ///< the server takes this user with this password for nobody
        OpenLine,    ///< the password would go over the line as it stands
        Forbidden,   ///< the user is known and may not
        Elsewhere,   ///< the server sends us to where no password of the account may go
        NoCalendars, ///< a server, but none of calendars at this address
        Server,      ///< the server's own trouble
        Other
    };
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
        std::optional<URLAuthentication> authentication;
        QUrl home; ///< empty when the trouble was to find it
        std::vector<RemoteCalendar> calendars;
    };

    CalDAVClient(URLSession& session, Sleeper& sleeper, CalDAVAccount account);

    /// The way to the calendars from the beginning, and what they are.
    Findings examine();
    /// The address below which the user's calendars lie.
    Outcome discover(QUrl& home);
    Outcome calendars(const QUrl& home, std::vector<RemoteCalendar>& result);
    /// What changed since the token; everything without one, and when the server has forgotten it.
    Outcome changes(const RemoteCalendar& calendar, const QString& token, Changes& result);
    /// The documents of events; those that are gone are left out.
    Outcome fetch(const QUrl& calendar, const std::vector<QUrl>& addresses, std::vector<RemoteEvent>& result);
    /// One event, byte for byte.
    Outcome get(const QUrl& address, RemoteEvent& result);
    /// Writes an event that has the tag, or does not exist when the tag is empty; the tag is the new one afterwards,
    /// empty when the server gives none.
    Outcome put(const QUrl& address, const QByteArray& document, QString& tag);
    /// Removes an event that has the tag, whatever it is like when the tag is empty.
    Outcome remove(const QUrl& address, const QString& tag);

    /// What came of the last request, for the log and the user; holds no secret.
    const QString& lastAnswer() const { return m_lastAnswer; }
    Trouble lastTrouble() const { return m_lastTrouble; }
    /// Whether the server answered the last request, be it that it can't.
    bool hasAnswered() const { return m_hasAnswered; }
    int requestCount() const { return m_requestCount; }
    /// How many answers of whatever kind have come. Any thread.
    int answerCount() const { return m_answerCount; }

private:
    struct Query
    {
        QByteArray method;
        QUrl address;
        QByteArray depth;
        QByteArray body;
        HeaderFields headerFields = {};
    };
    struct Answer
    {
        Outcome outcome = Outcome::Failed;
        int status = 0;
        QByteArray body;
        HeaderFields headerFields;
        QUrl address; ///< after redirects
    };

    struct Links
    {
        QUrl home;
        QUrl principal;
        Outcome outcome = Outcome::Failed;
    };

    Answer ask(Query query);
    Answer askOnce(const Query& query);
    bool learnAuthentication(const HeaderFields& fields, const QUrl& address);
    bool hasPassword();
    Outcome fail(Trouble trouble, const QString& answer);
    bool mayFollow(const QUrl& from, const QUrl& to) const;
    Answer askMultistatus(const Query& query, std::vector<DAVResponse>& responses, QString& syncToken);
    Links linksIn(const QUrl& address);

    URLSession& m_session;
    Sleeper& m_sleeper;
    CalDAVAccount m_account;
    std::optional<URLAuthentication> m_authentication;
    QString m_lastAnswer;
    bool m_hasAnswered = false;
    Trouble m_lastTrouble = Trouble::None;
    int m_requestCount = 0;
    std::atomic<int> m_answerCount = 0;
};

} // namespace vidora
