#pragma once

#include "calendar/DAVMultistatus.h"
#include "platform/Clock.h"
#include "platform/URLSession.h"

#include <QStringList>
#include <QUrl>

#include <atomic>
#include <functional>
#include <mutex>

namespace vidora {

/// An account on a calendar server. The password is the caller's to keep: see SecretStore.
struct CalDAVAccount
{
    QString address; ///< a host ("calendar.example.org") or an address; without a scheme "https:" is meant
    QString user;
    QString password; ///< null: it is asked for, once the server wants it
    /// Where the password is kept: asked on the thread of the request, at most once. Nothing when it can't be had.
    std::function<std::optional<QString>()> keptPassword = {};
    /// The origins ("https://dav.example.org") beside that of the address to which the user lets the password go.
    QStringList origins = {};
};

/// What came of a request, for the program, the log and the user; holds no secret.
struct [[nodiscard]] DAVResult
{
    enum class Outcome
    {
        Done,
        Missing,  ///< 404, 410
        Conflict, ///< 412: it is not as it was
        Refused,  ///< 401: user or password
        Rejected, ///< any other answer that says no: 400, 403, 409, 413, 415, 423, 507, ...
        Busy,     ///< 429, and 503 with a time to wait
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

    Outcome outcome = Outcome::Failed;
    Trouble trouble = Trouble::Other;
    QString answer;           ///< what was asked and what came, in one line
    bool hasAnswered = false; ///< whether the server answered, be it that it can't
    int status = 0;           ///< of HTTP; 0 without an answer
    std::optional<Seconds> retryAfter = {};
    QString elsewhere = {}; ///< the origin that Trouble::Elsewhere is about, where the user may allow it

    bool isDone() const { return outcome == Outcome::Done; }
};

/// The requests of an account over WebDAV (RFC 4918), with its password: the one place that attaches it.
///
/// The password goes to the origin (scheme, host and port) of the account's address and to those that the user has
/// allowed, and to no other; nor is anybody else asked anything. As it stands it goes only over HTTPS or to this
/// machine. An answer that got lost, or the server's own trouble, is tried once more; a host that can't be reached, or
/// asks for time, is not. Blocks; never on the main thread; requests of several threads run side by side.
class DAVConnection
{
public:
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
        DAVResult result;
        QByteArray body;
        HeaderFields headerFields;
        QUrl address; ///< after redirects
    };

    DAVConnection(URLSession& session, Sleeper& sleeper, CalDAVAccount account);

    const CalDAVAccount& account() const { return m_account; }
    Answer ask(Query query);
    /// The same, where the answer is a multistatus document.
    Answer askMultistatus(const Query& query, std::vector<DAVResponse>& responses, QString& syncToken);

    /// Whether the account's password may go to the origin of an address.
    bool isAllowed(const QUrl& address) const;
    /// The origin of an address as `CalDAVAccount::origins` has it; empty where the user can't be asked to allow it: it
    /// is not encrypted, or of another site than the account's.
    QString askableOrigin(const QUrl& address) const;
    /// Where a link of an answer leads; empty where it leads out of what is allowed, or can't be meant.
    QUrl resolved(const QUrl& base, const QString& href) const;
    std::optional<URLAuthentication> authentication() const;

    /// Any thread.
    int requestCount() const { return m_requestCount; }
    /// How many answers of whatever kind have come.
    int answerCount() const { return m_answerCount; }

    /// "https://dav.example.org:443": scheme, host and port, in one spelling.
    static QString originOf(const QUrl& address);
    /// The address that a user means by a host or an address; not valid for anything else.
    static QUrl addressOf(const QString& text);

private:
    Answer askOnce(const Query& query);
    bool learnAuthentication(Answer& answer, std::optional<URLAuthentication> used);
    bool hasPassword();
    std::optional<URLCredentials> credentialsFor(const QUrl& address) const;

    URLSession& m_session;
    Sleeper& m_sleeper;
    mutable std::mutex m_mutex; ///< of the account's password and the way to log in
    CalDAVAccount m_account;
    std::optional<URLAuthentication> m_authentication;
    std::atomic<int> m_requestCount = 0;
    std::atomic<int> m_answerCount = 0;
};

} // namespace vidora
