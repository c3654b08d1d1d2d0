#include "calendar/CalDAVClient.h"

#include "calendar/DAVMultistatus.h"

namespace vidora {

namespace {

constexpr int maximalRedirects = 5;
constexpr Milliseconds pauseBeforeRetry{500};

QByteArray propfind(const QByteArray& properties)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<d:propfind xmlns:d=\"DAV:\" "
           "xmlns:c=\"urn:ietf:params:xml:ns:caldav\" xmlns:a=\"http://apple.com/ns/ical/\" "
           "xmlns:s=\"http://calendarserver.org/ns/\"><d:prop>" +
           properties + "</d:prop></d:propfind>";
}

QUrl resolved(const QUrl& base, const QString& href)
{
    return base.resolved(QUrl(href, QUrl::TolerantMode));
}

QByteArray pathOf(const QUrl& address)
{
    return address.path(QUrl::FullyEncoded).toUtf8();
}

bool samePlace(const QUrl& a, const QUrl& b)
{
    const auto path = [](const QUrl& url) -> QString {
        const QString text = url.path(QUrl::FullyDecoded);
        return text.endsWith(QLatin1Char('/')) ? text.chopped(1) : text;
    };
    return path(a) == path(b);
}

CalDAVClient::Outcome outcomeOf(int status)
{
    using Outcome = CalDAVClient::Outcome;
    switch (status) {
    case 401:
        return Outcome::Refused;
    case 404:
    case 410:
        return Outcome::Missing;
    case 412:
        return Outcome::Conflict;
    case 507:
        return Outcome::Rejected;
    default:
        break;
    }
    if (status / 100 == 2)
        return Outcome::Done;
    return status / 100 == 4 ? Outcome::Rejected : Outcome::Failed;
}

CalDAVClient::Trouble troubleOf(const URLError& error)
{
    using Trouble = CalDAVClient::Trouble;
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

CalDAVClient::Trouble troubleOf(int status)
{
    using Trouble = CalDAVClient::Trouble;
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
bool concernsTheHost(CalDAVClient::Trouble trouble)
{
    using Trouble = CalDAVClient::Trouble;
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

bool isPage(const HeaderFields& fields)
{
    return fields.value("Content-Type").value_or(QByteArray()).trimmed().toLower().startsWith("text/html");
}

CalDAVClient::RemoteEvent eventOf(const QUrl& address, const DAVResponse& response)
{
    CalDAVClient::RemoteEvent event;
    event.address = address;
    event.tag = QString::fromUtf8(response.text("getetag").trimmed());
    event.size = response.text("getcontentlength").trimmed().toLongLong();
    event.document = response.text("calendar-data");
    // An XML document can't hold the line ends of calendar data (RFC 5545, 3.1) unless they are written as references.
    if (!event.document.contains('\r'))
        event.document.replace("\n", "\r\n");
    return event;
}

} // namespace

CalDAVClient::CalDAVClient(URLSession& session, Sleeper& sleeper, CalDAVAccount account)
    : m_session(session)
    , m_sleeper(sleeper)
    , m_account(std::move(account))
{
}

bool CalDAVClient::learnAuthentication(const HeaderFields& fields, const QUrl& address)
{
    const QByteArray offers = fields.value("WWW-Authenticate").value_or(QByteArray()).toLower();
    std::optional<URLAuthentication> offered;
    if (offers.contains("digest"))
        offered = URLAuthentication::Digest;
    else if (offers.contains("basic") && keepsSecrets(address))
        offered = URLAuthentication::Basic;
    else if (offers.contains("basic"))
        m_lastTrouble = Trouble::OpenLine;
    if (!offered || m_authentication == offered)
        return false;
    if (!hasPassword()) {
        m_lastTrouble = Trouble::NoPassword;
        return false;
    }
    m_authentication = offered;
    return true;
}

bool CalDAVClient::hasPassword()
{
    if (m_account.password.isNull() && m_account.keptPassword) {
        m_account.password = m_account.keptPassword().value_or(QString());
        m_account.keptPassword = {};
    }
    return !m_account.password.isNull();
}

CalDAVClient::Outcome CalDAVClient::fail(Trouble trouble, const QString& answer)
{
    m_lastTrouble = trouble;
    m_lastAnswer = answer;
    return Outcome::Failed;
}

bool CalDAVClient::mayFollow(const QUrl& from, const QUrl& to) const
{
    if (to.scheme() != QLatin1String("https") && (to.scheme() != QLatin1String("http") || from.scheme() != to.scheme()))
        return false;
    return to.host() == from.host() || to.host().endsWith(QLatin1Char('.') + from.host());
}

CalDAVClient::Answer CalDAVClient::askOnce(const Query& query)
{
    Answer answer;
    answer.address = query.address;
    const auto url = URL::fromText(query.address.toString(QUrl::FullyEncoded));
    if (!url)
        return answer;
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
    if (m_authentication && (m_authentication == URLAuthentication::Digest || keepsSecrets(query.address)))
        request.credentials = URLCredentials{m_account.user, m_account.password, *m_authentication};
    ++m_requestCount;
    URLResult result = m_session.perform(request);
    m_lastAnswer = QString::fromLatin1(query.method) + QLatin1Char(' ') + query.address.path() + QStringLiteral(": ") +
                   (result.error ? result.error->description : QString::number(result.response->statusCode));
    m_hasAnswered = result.response.has_value();
    if (result.error && result.response && result.response->statusCode / 100 == 2)
        answer.outcome = Outcome::TooLarge;
    m_lastTrouble = result.error ? troubleOf(*result.error) : Trouble::Other;
    if (result.error || !result.response || !result.data)
        return answer;
    ++m_answerCount;
    m_lastTrouble = troubleOf(result.response->statusCode);
    answer.status = result.response->statusCode;
    answer.outcome = outcomeOf(answer.status);
    answer.headerFields = std::move(result.response->headerFields);
    answer.body = std::move(*result.data);
    return answer;
}

CalDAVClient::Answer CalDAVClient::ask(Query query)
{
    bool tried = false;
    bool introduced = false;
    for (int redirects = 0;;) {
        Answer answer = askOnce(query);
        if (answer.outcome == Outcome::Refused && !introduced &&
            learnAuthentication(answer.headerFields, query.address)) {
            introduced = true;
            continue;
        }
        const auto location = answer.headerFields.value("Location");
        if (answer.status / 100 == 3 && location && redirects < maximalRedirects) {
            const QUrl next = resolved(query.address, QString::fromUtf8(*location));
            if (mayFollow(query.address, next)) {
                query.address = next;
                ++redirects;
                continue;
            }
        }
        if (answer.outcome == Outcome::Failed && answer.status / 100 != 3 && !tried &&
            !concernsTheHost(m_lastTrouble)) {
            tried = true;
            m_sleeper.sleep(pauseBeforeRetry);
            continue;
        }
        return answer;
    }
}

CalDAVClient::Answer CalDAVClient::askMultistatus(const Query& query, std::vector<DAVResponse>& responses,
                                                  QString& syncToken)
{
    Answer answer = ask(query);
    if (answer.outcome != Outcome::Done)
        return answer;
    auto multistatus = answer.status == 207 ? DAVMultistatus::read(answer.body) : std::nullopt;
    if (!multistatus) {
        answer.outcome =
            fail(Trouble::NoCalendars, m_lastAnswer + QStringLiteral(", which is no calendar server's answer"));
        return answer;
    }
    responses = std::move(multistatus->responses);
    syncToken = multistatus->syncToken;
    return answer;
}

/// What a resource tells of the way to the calendars: the links to them and to the user's own resource.
CalDAVClient::Links CalDAVClient::linksIn(const QUrl& address)
{
    const QByteArray properties = "<d:current-user-principal/><c:calendar-home-set/>";
    std::vector<DAVResponse> responses;
    QString token;
    const Answer answer = askMultistatus({"PROPFIND", address, "0", propfind(properties)}, responses, token);
    Links links;
    links.outcome = answer.outcome;
    const auto link = [&](const DAVResponse& response, const char* property) -> QUrl {
        const QByteArray text = response.text(property).trimmed();
        const QUrl target = resolved(answer.address, QString::fromUtf8(text));
        return !text.isEmpty() && mayFollow(answer.address, target) ? target : QUrl();
    };
    for (const DAVResponse& response : responses) {
        links.home = links.home.isEmpty() ? link(response, "calendar-home-set") : links.home;
        links.principal = links.principal.isEmpty() ? link(response, "current-user-principal") : links.principal;
    }
    return links;
}

CalDAVClient::Outcome CalDAVClient::discover(QUrl& home)
{
    const QString text = m_account.address.trimmed();
    const bool whole = text.startsWith(QLatin1String("https://")) || text.startsWith(QLatin1String("http://"));
    QUrl given(whole ? text : QStringLiteral("https://") + text, QUrl::StrictMode);
    if (!given.isValid() || given.host().isEmpty()) {
        fail(Trouble::BadAddress, QStringLiteral("\"%1\" is no address").arg(text));
        return Outcome::Rejected;
    }
    given.setUserInfo({});
    QUrl wellKnown = given; // RFC 6764, 5
    wellKnown.setPath(QStringLiteral("/.well-known/caldav"));
    QUrl root = given;
    root.setPath(QStringLiteral("/"));
    const bool hasPath = given.path().size() > 1;
    Outcome outcome = Outcome::Failed;
    for (const QUrl& start : hasPath ? std::vector<QUrl>{given, wellKnown, root} : std::vector<QUrl>{wellKnown, root}) {
        Links links = linksIn(start);
        if (links.home.isEmpty() && !links.principal.isEmpty())
            links = linksIn(links.principal);
        if (!links.home.isEmpty()) {
            home = links.home;
            return Outcome::Done;
        }
        outcome = links.outcome;
        if (outcome == Outcome::Refused || concernsTheHost(m_lastTrouble))
            return outcome;
    }
    if (outcome != Outcome::Done)
        return outcome;
    fail(Trouble::NoCalendars, m_lastAnswer + QStringLiteral(", without a word of calendars"));
    return Outcome::Missing;
}

CalDAVClient::Findings CalDAVClient::examine()
{
    Findings findings;
    const bool done =
        discover(findings.home) == Outcome::Done && calendars(findings.home, findings.calendars) == Outcome::Done;
    if (!done)
        findings.trouble = m_lastTrouble == Trouble::None ? Trouble::Other : m_lastTrouble;
    findings.lastAnswer = m_lastAnswer;
    findings.authentication = m_authentication;
    return findings;
}

CalDAVClient::Outcome CalDAVClient::calendars(const QUrl& home, std::vector<RemoteCalendar>& result)
{
    const QByteArray properties =
        "<d:resourcetype/><d:displayname/><a:calendar-color/><d:current-user-privilege-set/>"
        "<c:supported-calendar-component-set/><d:supported-report-set/><d:sync-token/><s:getctag/>";
    std::vector<DAVResponse> responses;
    QString token;
    const Answer answer = askMultistatus({"PROPFIND", home, "1", propfind(properties)}, responses, token);
    bool complete = false;
    for (const DAVResponse& response : responses) {
        complete = complete || samePlace(resolved(answer.address, response.href), answer.address);
        if (!response.has("resourcetype", "calendar"))
            continue;
        if (response.elements.contains("supported-calendar-component-set") &&
            !response.has("supported-calendar-component-set", "VEVENT"))
            continue;
        RemoteCalendar calendar;
        calendar.address = resolved(answer.address, response.href);
        calendar.title = QString::fromUtf8(response.text("displayname").trimmed());
        calendar.color = QString::fromUtf8(response.text("calendar-color").trimmed());
        for (const char* privilege : {"all", "write", "write-content"})
            calendar.writable = calendar.writable || response.has("current-user-privilege-set", privilege);
        calendar.synchronises = response.has("supported-report-set", "sync-collection");
        calendar.state = QString::fromUtf8(
            response.text(calendar.synchronises ? QByteArray("sync-token") : QByteArray("getctag")).trimmed());
        if (mayFollow(answer.address, calendar.address))
            result.push_back(std::move(calendar));
    }
    // A list without the place that was asked about is no list, and says nothing about calendars that are not in it.
    return answer.outcome == Outcome::Done && !complete
               ? fail(Trouble::NoCalendars, m_lastAnswer + QStringLiteral(", which is no list of calendars"))
               : answer.outcome;
}

CalDAVClient::Outcome CalDAVClient::changes(const RemoteCalendar& calendar, const QString& token, Changes& result)
{
    const QByteArray properties = "<d:getetag/><d:getcontentlength/>";
    Query query{"PROPFIND", calendar.address, "1", propfind(properties)};
    if (calendar.synchronises)
        query = {"REPORT", calendar.address, "0",
                 "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<d:sync-collection xmlns:d=\"DAV:\"><d:sync-token>" +
                     token.toHtmlEscaped().toUtf8() + "</d:sync-token><d:sync-level>1</d:sync-level><d:prop>" +
                     properties + "</d:prop></d:sync-collection>"};
    std::vector<DAVResponse> responses;
    result = {};
    const Answer answer = askMultistatus(query, responses, result.token);
    const bool forgotten = answer.outcome == Outcome::Rejected || answer.outcome == Outcome::Conflict;
    if (forgotten && calendar.synchronises && !token.isEmpty())
        return changes(calendar, {}, result);
    result.whole = !calendar.synchronises || token.isEmpty();
    for (const DAVResponse& response : responses) {
        const QUrl address = resolved(answer.address, response.href);
        if (response.status == 507) // RFC 6578, 3.6: there is more; the token says from where on
            result.whole = false;
        else if (response.status == 404 || response.status == 410)
            result.removed.push_back(address);
        else if (!samePlace(address, calendar.address) && response.texts.contains("getetag"))
            result.present.push_back(eventOf(address, response));
    }
    if (!calendar.synchronises)
        result.token = calendar.state;
    return answer.outcome;
}

CalDAVClient::Outcome CalDAVClient::fetch(const QUrl& calendar, const std::vector<QUrl>& addresses,
                                          std::vector<RemoteEvent>& result)
{
    QByteArray body = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<c:calendar-multiget xmlns:d=\"DAV:\" "
                      "xmlns:c=\"urn:ietf:params:xml:ns:caldav\"><d:prop><d:getetag/><c:calendar-data/></d:prop>";
    for (const QUrl& address : addresses)
        body += "<d:href>" + QString::fromUtf8(pathOf(address)).toHtmlEscaped().toUtf8() + "</d:href>";
    std::vector<DAVResponse> responses;
    QString token;
    const Answer answer = askMultistatus({"REPORT", calendar, "1", body + "</c:calendar-multiget>"}, responses, token);
    for (const DAVResponse& response : responses) {
        if (response.texts.contains("calendar-data"))
            result.push_back(eventOf(resolved(answer.address, response.href), response));
    }
    return answer.outcome;
}

CalDAVClient::Outcome CalDAVClient::get(const QUrl& address, RemoteEvent& result)
{
    Answer answer = ask({"GET", address, {}, {}});
    if (answer.outcome != Outcome::Done)
        return answer.outcome;
    if (isPage(answer.headerFields) || !answer.body.contains("BEGIN:VCALENDAR"))
        return Outcome::Failed;
    result = {address, QString::fromUtf8(answer.headerFields.value("ETag").value_or(QByteArray())),
              std::move(answer.body), 0};
    return Outcome::Done;
}

CalDAVClient::Outcome CalDAVClient::put(const QUrl& address, const QByteArray& document, QString& tag)
{
    Query query{"PUT", address, {}, document};
    query.headerFields.set("Content-Type", "text/calendar; charset=utf-8");
    query.headerFields.set(tag.isEmpty() ? "If-None-Match" : "If-Match", tag.isEmpty() ? "*" : tag.toUtf8());
    const Answer answer = ask(query);
    if (answer.outcome != Outcome::Done)
        return answer.outcome;
    if (isPage(answer.headerFields)) // a gateway that answers everything with its own page
        return Outcome::Failed;
    tag = QString::fromUtf8(answer.headerFields.value("ETag").value_or(QByteArray()));
    return Outcome::Done;
}

CalDAVClient::Outcome CalDAVClient::remove(const QUrl& address, const QString& tag)
{
    Query query{"DELETE", address, {}, {}};
    if (!tag.isEmpty())
        query.headerFields.set("If-Match", tag.toUtf8());
    const Answer answer = ask(query);
    return answer.outcome == Outcome::Done && answer.status == 200 && isPage(answer.headerFields) ? Outcome::Failed
                                                                                                  : answer.outcome;
}

} // namespace vidora
