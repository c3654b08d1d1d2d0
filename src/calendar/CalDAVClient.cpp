#include "calendar/CalDAVClient.h"

namespace vidora {

namespace {

using Outcome = DAVResult::Outcome;

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

bool isPage(const HeaderFields& fields)
{
    return fields.value("Content-Type").value_or(QByteArray()).trimmed().toLower().startsWith("text/html");
}

/// A tag as the server gave it: gateways that compress what they pass on call it a weak one (RFC 9110, 8.8.3), which
/// would fit no condition any more.
QString strong(const QByteArray& tag)
{
    return QString::fromUtf8(tag.startsWith("W/") ? tag.mid(2) : tag);
}

QString tagOf(const HeaderFields& fields)
{
    return strong(fields.value("ETag").value_or(QByteArray()).trimmed());
}

/// An answer that came and is none to the question.
DAVResult notAnAnswer(DAVResult result, const char* what)
{
    result.outcome = Outcome::Failed;
    result.trouble = DAVResult::Trouble::NoCalendars;
    result.answer += QLatin1String(what);
    return result;
}

CalDAVClient::RemoteEvent eventOf(const QUrl& address, const DAVResponse& response)
{
    CalDAVClient::RemoteEvent event;
    event.address = address;
    event.tag = strong(response.text("getetag").trimmed());
    event.size = response.text("getcontentlength").trimmed().toLongLong();
    event.document = response.text("calendar-data");
    // An XML document can't hold the line ends of calendar data (RFC 5545, 3.1) unless they are written as references.
    if (!event.document.contains('\r'))
        event.document.replace("\n", "\r\n");
    return event;
}

/// Whether the server no longer knows what changed since a token (RFC 6578, 3.2; others say it with 400, 409 or 410).
bool hasForgotten(const DAVResult& result)
{
    return result.outcome == Outcome::Rejected || result.outcome == Outcome::Conflict || result.status == 410;
}

} // namespace

CalDAVClient::CalDAVClient(URLSession& session, Sleeper& sleeper, CalDAVAccount account, ServiceLookup* services)
    : m_connection(session, sleeper, std::move(account))
    , m_services(services)
{
}

DAVResult CalDAVClient::calendars(const QUrl& home, std::vector<RemoteCalendar>& result)
{
    const QByteArray properties =
        "<d:resourcetype/><d:displayname/><a:calendar-color/><d:current-user-privilege-set/>"
        "<c:supported-calendar-component-set/><d:supported-report-set/><d:sync-token/><s:getctag/>";
    std::vector<DAVResponse> responses;
    QString token;
    const auto answer =
        m_connection.askMultistatus({"PROPFIND", home, "1", DAVMultistatus::propfind(properties)}, responses, token);
    bool complete = false;
    for (const DAVResponse& response : responses) {
        RemoteCalendar calendar;
        calendar.address = m_connection.resolved(answer.address, response.href);
        complete = complete || samePlace(calendar.address, answer.address);
        if (calendar.address.isEmpty() || !response.has("resourcetype", "calendar") ||
            (response.elements.contains("supported-calendar-component-set") &&
             !response.has("supported-calendar-component-set", "VEVENT")))
            continue;
        calendar.title = QString::fromUtf8(response.text("displayname").trimmed());
        calendar.color = QString::fromUtf8(response.text("calendar-color").trimmed());
        for (const char* privilege : {"all", "write", "write-content"})
            calendar.writable = calendar.writable || response.has("current-user-privilege-set", privilege);
        calendar.synchronises = response.has("supported-report-set", "sync-collection");
        calendar.state = QString::fromUtf8(
            response.text(calendar.synchronises ? QByteArray("sync-token") : QByteArray("getctag")).trimmed());
        result.push_back(std::move(calendar));
    }
    // A list without the place that was asked about is no list, and says nothing about calendars that are not in it.
    return answer.result.isDone() && !complete ? notAnAnswer(answer.result, ", which is no list of calendars")
                                               : answer.result;
}

DAVResult CalDAVClient::look(const QUrl& address)
{
    std::vector<DAVResponse> responses;
    QString token;
    return m_connection
        .askMultistatus({"PROPFIND", address, "0", DAVMultistatus::propfind("<d:resourcetype/>")}, responses, token)
        .result;
}

DAVResult CalDAVClient::changes(const RemoteCalendar& calendar, const QString& token, Changes& result)
{
    const QByteArray properties = "<d:getetag/><d:getcontentlength/>";
    DAVConnection::Query query{"PROPFIND", calendar.address, "1", DAVMultistatus::propfind(properties)};
    if (calendar.synchronises)
        query = {"REPORT", calendar.address, "0",
                 "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<d:sync-collection xmlns:d=\"DAV:\"><d:sync-token>" +
                     token.toHtmlEscaped().toUtf8() + "</d:sync-token><d:sync-level>1</d:sync-level><d:prop>" +
                     properties + "</d:prop></d:sync-collection>"};
    std::vector<DAVResponse> responses;
    result = {};
    const auto answer = m_connection.askMultistatus(query, responses, result.token);
    if (hasForgotten(answer.result) && calendar.synchronises && !token.isEmpty())
        return changes(calendar, {}, result);
    result.whole = !calendar.synchronises || token.isEmpty();
    for (const DAVResponse& response : responses) {
        const QUrl address = m_connection.resolved(answer.address, response.href);
        if (response.status == 507) // RFC 6578, 3.6: there is more; the token says from where on
            result.whole = false;
        else if (address.isEmpty() || samePlace(address, calendar.address))
            continue;
        else if (response.status == 404 || response.status == 410)
            result.removed.push_back(address);
        else if (response.texts.contains("getetag"))
            result.present.push_back(eventOf(address, response));
    }
    if (!calendar.synchronises)
        result.token = calendar.state;
    return answer.result;
}

DAVResult CalDAVClient::fetch(const QUrl& calendar, const std::vector<QUrl>& addresses,
                              std::vector<RemoteEvent>& result)
{
    QByteArray body = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<c:calendar-multiget xmlns:d=\"DAV:\" "
                      "xmlns:c=\"urn:ietf:params:xml:ns:caldav\"><d:prop><d:getetag/><c:calendar-data/></d:prop>";
    for (const QUrl& address : addresses)
        body += "<d:href>" + QString::fromUtf8(pathOf(address)).toHtmlEscaped().toUtf8() + "</d:href>";
    std::vector<DAVResponse> responses;
    QString token;
    const auto answer =
        m_connection.askMultistatus({"REPORT", calendar, "1", body + "</c:calendar-multiget>"}, responses, token);
    for (const DAVResponse& response : responses) {
        const QUrl address = m_connection.resolved(answer.address, response.href);
        if (!address.isEmpty() && response.texts.contains("calendar-data"))
            result.push_back(eventOf(address, response));
    }
    return answer.result;
}

DAVResult CalDAVClient::get(const QUrl& address, RemoteEvent& result)
{
    DAVConnection::Query query{"GET", address, {}, {}};
    query.headerFields.set("Accept-Encoding", "identity"); // what is compressed on the way gets another tag
    auto answer = m_connection.ask(query);
    if (!answer.result.isDone())
        return answer.result;
    if (isPage(answer.headerFields) || !answer.body.contains("BEGIN:VCALENDAR"))
        return notAnAnswer(answer.result, ", which is no event");
    result = {address, tagOf(answer.headerFields), std::move(answer.body), 0};
    return answer.result;
}

DAVResult CalDAVClient::put(const QUrl& address, const QByteArray& document, QString& tag)
{
    DAVConnection::Query query{"PUT", address, {}, document};
    query.headerFields.set("Content-Type", "text/calendar; charset=utf-8");
    query.headerFields.set(tag.isEmpty() ? "If-None-Match" : "If-Match", tag.isEmpty() ? "*" : tag.toUtf8());
    const auto answer = m_connection.ask(query);
    if (!answer.result.isDone())
        return answer.result;
    if (isPage(answer.headerFields)) // a gateway that answers everything with its own page
        return notAnAnswer(answer.result, ", which is a page");
    tag = tagOf(answer.headerFields);
    return answer.result;
}

DAVResult CalDAVClient::remove(const QUrl& address, const QString& tag)
{
    DAVConnection::Query query{"DELETE", address, {}, {}};
    if (!tag.isEmpty())
        query.headerFields.set("If-Match", tag.toUtf8());
    const auto answer = m_connection.ask(query);
    return answer.result.status == 200 && isPage(answer.headerFields) ? notAnAnswer(answer.result, ", which is a page")
                                                                      : answer.result;
}

} // namespace vidora
