#include "calendar/DAVConnection.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace vidora {

namespace {

using Outcome = DAVResult::Outcome;
using Trouble = DAVResult::Trouble;

constexpr int maximalRedirects = 5;
constexpr Milliseconds pauseBeforeRetry{500};
constexpr Seconds longestPause{24 * 60 * 60};
constexpr qsizetype mostWords = 200;

Outcome outcomeOf(int status, bool saysWhen)
{
    switch (status) {
    case 401:
        return Outcome::Refused;
    case 404:
    case 410:
        return Outcome::Missing;
    case 412:
        return Outcome::Conflict;
    case 429:
        return Outcome::Busy;
    case 503:
        return saysWhen ? Outcome::Busy : Outcome::Failed;
    case 507:
        return Outcome::Rejected;
    default:
        break;
    }
    if (status / 100 == 2)
        return Outcome::Done;
    return status / 100 == 4 ? Outcome::Rejected : Outcome::Failed;
}

Trouble troubleOf(const URLError& error)
{
    switch (error.kind) {
    case URLError::Kind::NoSuchHost:
        return Trouble::NoSuchHost;
    case URLError::Kind::NoConnection:
        return Trouble::NoConnection;
    case URLError::Kind::NoEncryption:
        return Trouble::NoEncryption;
    case URLError::Kind::Certificate:
        return Trouble::Certificate;
    case URLError::Kind::TimedOut:
    case URLError::Kind::Cancelled:
        return Trouble::TimedOut;
    case URLError::Kind::Other:
        break;
    }
    return Trouble::Other;
}

Trouble troubleOf(int status)
{
    switch (status) {
    case 401:
        return Trouble::Password;
    case 403:
        return Trouble::Forbidden;
    case 404:
    case 405:
    case 410:
    case 501:
        return Trouble::NoCalendars;
    case 429:
        return Trouble::Server;
    default:
        break;
    }
    if (status / 100 == 2)
        return Trouble::None;
    if (status / 100 == 3)
        return Trouble::Elsewhere;
    return status / 100 == 5 ? Trouble::Server : Trouble::Other;
}

/// Trouble that another request to the same host would meet again.
bool concernsTheHost(Trouble trouble)
{
    return trouble == Trouble::NoSuchHost || trouble == Trouble::NoConnection || trouble == Trouble::NoEncryption ||
           trouble == Trouble::Certificate || trouble == Trouble::TimedOut;
}

/// Whether a password may go there as it stands: encrypted, or not out of this machine.
bool keepsSecrets(const QUrl& address)
{
    const QString host = address.host();
    return address.scheme() == QLatin1String("https") || host == QLatin1String("localhost") ||
           host == QLatin1String("127.0.0.1") || host == QLatin1String("::1");
}

/// How long the server asks to be left alone (RFC 9110, 10.2.3): seconds, or a date beside its own.
std::optional<Seconds> retryAfterOf(const HeaderFields& fields)
{
    const auto value = fields.value("Retry-After");
    if (!value)
        return std::nullopt;
    bool isNumber = false;
    std::int64_t seconds = value->trimmed().toLongLong(&isNumber);
    if (!isNumber) {
        const auto moment = [](const QByteArray& text) {
            return QDateTime::fromString(
                QString::fromLatin1(text).trimmed().replace(QLatin1String("GMT"), QLatin1String("+0000")),
                Qt::RFC2822Date);
        };
        const QDateTime until = moment(*value), now = moment(fields.value("Date").value_or(QByteArray()));
        if (!until.isValid() || !now.isValid())
            return std::nullopt;
        seconds = now.secsTo(until);
    }
    return std::clamp(Seconds(seconds), Seconds(1), longestPause);
}

/// What a server says about a refusal, without the markup that it says it in.
QString wordsOf(const QByteArray& body)
{
    static const QRegularExpression markup(QStringLiteral("<(style|script)\\b.*?</\\1>|<[^<>]*>"),
                                           QRegularExpression::CaseInsensitiveOption |
                                               QRegularExpression::DotMatchesEverythingOption);
    const QString text = QString::fromUtf8(body.left(8 * 1024));
    const QString words = QString(text).replace(markup, QStringLiteral(" ")).simplified();
    if (!words.isEmpty())
        return words.left(mostWords);
    // An XML answer names a condition by an empty element (RFC 4918, 16).
    static const QRegularExpression condition(QStringLiteral("<(?:[\\w-]+:)?(?!error\\b)([\\w-]+)[^<>?]*/>"));
    return condition.match(text).captured(1);
}

} // namespace

DAVConnection::DAVConnection(URLSession& session, Sleeper& sleeper, CalDAVAccount account)
    : m_session(session)
    , m_sleeper(sleeper)
    , m_account(std::move(account))
{
}

QUrl DAVConnection::addressOf(const QString& text)
{
    const QString trimmed = text.trimmed();
    const bool isWhole = trimmed.startsWith(QLatin1String("https://"), Qt::CaseInsensitive) ||
                         trimmed.startsWith(QLatin1String("http://"), Qt::CaseInsensitive);
    QUrl address(isWhole ? trimmed : QStringLiteral("https://") + trimmed, QUrl::StrictMode);
    address.setUserInfo({});
    return address.host().isEmpty() ? QUrl() : address;
}

QString DAVConnection::originOf(const QUrl& address)
{
    const bool isSecure = address.scheme() == QLatin1String("https");
    return QStringLiteral("%1://%2:%3")
        .arg(address.scheme(), address.host().toLower())
        .arg(address.port(isSecure ? 443 : 80));
}

bool DAVConnection::isAllowed(const QUrl& address) const
{
    if (address.scheme() != QLatin1String("https") && address.scheme() != QLatin1String("http"))
        return false;
    const QString origin = originOf(address);
    return origin == originOf(addressOf(m_account.address)) ||
           std::any_of(m_account.origins.begin(), m_account.origins.end(),
                       [&](const QString& allowed) { return originOf(QUrl(allowed)) == origin; });
}

QString DAVConnection::askableOrigin(const QUrl& address) const
{
    const QString host = address.host(), own = addressOf(m_account.address).host();
    QString site = own.section(QLatin1Char('.'), 1);
    if (!site.contains(QLatin1Char('.'))) // "org" is nobody's
        site = own;
    const bool isOfSite = host == site || host.endsWith(QLatin1Char('.') + site);
    return address.scheme() == QLatin1String("https") && isOfSite ? originOf(address) : QString();
}

QUrl DAVConnection::resolved(const QUrl& base, const QString& href) const
{
    // What begins with two slashes names a host, and so does a path that does when it is resolved again.
    if (href.isEmpty() || href.startsWith(QLatin1String("//")) || href.startsWith(QLatin1Char('\\')))
        return {};
    const QUrl target = base.resolved(QUrl(href, QUrl::TolerantMode));
    return isAllowed(target) && !target.path().startsWith(QLatin1String("//")) ? target : QUrl();
}

std::optional<URLAuthentication> DAVConnection::authentication() const
{
    const std::lock_guard lock(m_mutex);
    return m_authentication;
}

std::optional<URLCredentials> DAVConnection::credentialsFor(const QUrl& address) const
{
    const std::lock_guard lock(m_mutex);
    const bool isSafe = m_authentication == URLAuthentication::Digest || keepsSecrets(address);
    if (!m_authentication || !isSafe || !isAllowed(address))
        return std::nullopt;
    return URLCredentials{m_account.user, m_account.password, *m_authentication};
}

/// Learns from a refusal how to log in. False when there is nothing to be learnt that was not used already.
bool DAVConnection::learnAuthentication(Answer& answer, std::optional<URLAuthentication> used)
{
    const QByteArray offers = answer.headerFields.value("WWW-Authenticate").value_or(QByteArray()).toLower();
    std::optional<URLAuthentication> offered;
    if (offers.contains("digest"))
        offered = URLAuthentication::Digest;
    else if (offers.contains("basic") && keepsSecrets(answer.address))
        offered = URLAuthentication::Basic;
    else if (offers.contains("basic"))
        answer.result.trouble = Trouble::OpenLine;
    if (!offered || used == offered)
        return false;
    const std::lock_guard lock(m_mutex);
    if (!hasPassword()) {
        answer.result.trouble = Trouble::NoPassword;
        return false;
    }
    m_authentication = offered;
    return true;
}

bool DAVConnection::hasPassword()
{
    if (m_account.password.isNull() && m_account.keptPassword) {
        m_account.password = m_account.keptPassword().value_or(QString());
        m_account.keptPassword = {};
    }
    return !m_account.password.isNull();
}

DAVConnection::Answer DAVConnection::askOnce(const Query& query)
{
    Answer answer;
    answer.address = query.address;
    const auto url = URL::fromText(query.address.toString(QUrl::FullyEncoded));
    if (!url || !isAllowed(query.address)) {
        answer.result.trouble = Trouble::Elsewhere;
        answer.result.answer = QStringLiteral("%1 was not asked").arg(query.address.toString(QUrl::RemoveUserInfo));
        return answer;
    }
    URLRequest request(*url);
    request.timeoutIntervalForRequest = Seconds(15);
    request.headerFields = query.headerFields;
    request.httpMethod = query.method;
    if (!query.depth.isEmpty())
        request.headerFields.set("Depth", query.depth);
    if (!query.body.isEmpty()) {
        request.httpBody = query.body;
        if (!request.headerFields.value("Content-Type"))
            request.headerFields.set("Content-Type", "application/xml; charset=utf-8");
    }
    request.credentials = credentialsFor(query.address);
    ++m_requestCount;
    URLResult result = m_session.perform(request);
    DAVResult& told = answer.result;
    told.answer = QString::fromLatin1(query.method) + QLatin1Char(' ') + query.address.path() + QStringLiteral(": ") +
                  (result.error ? result.error->description : QString::number(result.response->statusCode));
    told.hasAnswered = result.response.has_value();
    if (result.error && result.response && result.response->statusCode / 100 == 2)
        told.outcome = Outcome::TooLarge;
    told.trouble = result.error ? troubleOf(*result.error) : Trouble::Other;
    if (result.error || !result.response || !result.data)
        return answer;
    ++m_answerCount;
    told.status = result.response->statusCode;
    answer.headerFields = std::move(result.response->headerFields);
    answer.body = std::move(*result.data);
    told.retryAfter = retryAfterOf(answer.headerFields);
    told.trouble = troubleOf(told.status);
    told.outcome = outcomeOf(told.status, told.retryAfter.has_value());
    if (told.status >= 400) {
        const QString words = wordsOf(answer.body);
        told.answer += words.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(words);
    }
    return answer;
}

DAVConnection::Answer DAVConnection::ask(Query query)
{
    bool tried = false;
    bool introduced = false;
    for (int redirects = 0;;) {
        const auto used = authentication();
        Answer answer = askOnce(query);
        DAVResult& result = answer.result;
        if (result.outcome == Outcome::Refused && !introduced) {
            introduced = true;
            if (authentication() != used || learnAuthentication(answer, used))
                continue;
        }
        const auto location = answer.headerFields.value("Location");
        if (result.status / 100 == 3 && location) {
            const QUrl next = query.address.resolved(QUrl(QString::fromUtf8(*location), QUrl::TolerantMode));
            const QUrl allowed = resolved(query.address, QString::fromUtf8(*location));
            if (!allowed.isEmpty() && redirects++ < maximalRedirects) {
                query.address = allowed;
                continue;
            }
            result.elsewhere = isAllowed(next) ? QString() : askableOrigin(next);
        }
        if (result.outcome == Outcome::Failed && result.status / 100 != 3 && !tried &&
            result.trouble != Trouble::Elsewhere && !concernsTheHost(result.trouble)) {
            tried = true;
            m_sleeper.sleep(pauseBeforeRetry);
            continue;
        }
        return answer;
    }
}

DAVConnection::Answer DAVConnection::askMultistatus(const Query& query, std::vector<DAVResponse>& responses,
                                                    QString& syncToken)
{
    Answer answer = ask(query);
    if (!answer.result.isDone())
        return answer;
    auto multistatus = answer.result.status == 207 ? DAVMultistatus::read(answer.body) : std::nullopt;
    if (!multistatus) {
        answer.result.outcome = Outcome::Failed;
        answer.result.trouble = Trouble::NoCalendars;
        answer.result.answer += QStringLiteral(", which is no calendar server's answer");
        return answer;
    }
    responses = std::move(multistatus->responses);
    syncToken = multistatus->syncToken;
    return answer;
}

} // namespace vidora
