// The way to an account's calendars: RFC 6764, RFC 5397, RFC 4791.
#include "calendar/CalDAVClient.h"

namespace vidora {

namespace {

using Outcome = DAVResult::Outcome;
using Trouble = DAVResult::Trouble;

/// Trouble that another question to the same host would meet again.
bool endsTheSearch(const DAVResult& result)
{
    return result.outcome == Outcome::Refused || result.outcome == Outcome::Busy ||
           result.trouble == Trouble::NoSuchHost || result.trouble == Trouble::NoConnection ||
           result.trouble == Trouble::NoEncryption || result.trouble == Trouble::Certificate ||
           result.trouble == Trouble::TimedOut;
}

QUrl withPath(QUrl address, const QString& path)
{
    address.setPath(path);
    address.setQuery(QString());
    address.setFragment({});
    return address;
}

} // namespace

/// What a resource tells of the way to the calendars: the links to them and to the user's own resource.
CalDAVClient::Links CalDAVClient::linksIn(const QUrl& address)
{
    std::vector<DAVResponse> responses;
    QString token;
    const auto answer = m_connection.askMultistatus(
        {"PROPFIND", address, "0", DAVMultistatus::propfind("<d:current-user-principal/><c:calendar-home-set/>")},
        responses, token);
    Links links;
    links.result = answer.result;
    const auto follow = [&](const QString& href) {
        const QUrl target = m_connection.resolved(answer.address, href);
        const QUrl meant = href.startsWith(QLatin1String("//")) ? QUrl() : answer.address.resolved(QUrl(href));
        if (target.isEmpty() && !m_connection.isAllowed(meant))
            links.result.elsewhere = m_connection.askableOrigin(meant);
        return target;
    };
    for (const DAVResponse& response : responses) {
        for (const QString& href : response.linksOf("calendar-home-set")) {
            if (const QUrl home = follow(href); !home.isEmpty())
                links.homes.push_back(home);
        }
        for (const QString& href : response.linksOf("current-user-principal"))
            links.principal = links.principal.isEmpty() ? follow(href) : links.principal;
    }
    return links;
}

/// Where to begin, the likeliest first. A service of the domain on a host that no password may go to is passed over.
std::vector<QUrl> CalDAVClient::startingPoints(DAVResult& trouble) const
{
    const QString wellKnown = QStringLiteral("/.well-known/caldav"), root = QStringLiteral("/");
    const QString text = m_connection.account().address.trimmed();
    const QUrl given = DAVConnection::addressOf(text);
    if (!given.isValid())
        return {};
    std::vector<QUrl> result;
    if (given.path().size() > 1)
        result.push_back(given);
    else if (m_services && given.port() < 0 && !text.contains(QLatin1String("://"))) {
        if (const auto service = m_services->find(QStringLiteral("_caldavs._tcp"), given.host())) {
            QUrl there = withPath(given, service->path.startsWith(QLatin1Char('/')) ? service->path : wellKnown);
            there.setHost(service->host);
            there.setPort(service->port);
            if (m_connection.isAllowed(there))
                result.push_back(there);
            else
                trouble.elsewhere = m_connection.askableOrigin(there);
        }
    }
    result.push_back(withPath(given, wellKnown));
    result.push_back(withPath(given, root));
    return result;
}

DAVResult CalDAVClient::discover(std::vector<QUrl>& homes)
{
    homes.clear();
    DAVResult last;
    const std::vector<QUrl> starts = startingPoints(last);
    if (starts.empty()) {
        last.outcome = Outcome::Rejected;
        last.trouble = Trouble::BadAddress;
        last.answer = QStringLiteral("\"%1\" is no address").arg(m_connection.account().address);
        return last;
    }
    QString elsewhere = last.elsewhere;
    for (const QUrl& start : starts) {
        Links links = linksIn(start);
        if (links.homes.empty() && !links.principal.isEmpty())
            links = linksIn(links.principal);
        last = links.result;
        if (!links.homes.empty()) {
            homes = std::move(links.homes);
            return last;
        }
        elsewhere = elsewhere.isEmpty() ? last.elsewhere : elsewhere;
        if (endsTheSearch(last))
            break;
    }
    last.elsewhere = elsewhere;
    if (!elsewhere.isEmpty() && last.outcome != Outcome::Refused) {
        last.outcome = Outcome::Rejected;
        last.trouble = Trouble::Elsewhere;
    } else if (last.isDone()) {
        last.outcome = Outcome::Missing;
        last.trouble = Trouble::NoCalendars;
        last.answer += QStringLiteral(", without a word of calendars");
    }
    return last;
}

CalDAVClient::Findings CalDAVClient::examine()
{
    Findings findings;
    DAVResult result = discover(findings.homes);
    for (const QUrl& home : findings.homes) {
        if (result.isDone())
            result = calendars(home, findings.calendars);
    }
    if (!result.isDone())
        findings.trouble = result.trouble == Trouble::None ? Trouble::Other : result.trouble;
    findings.lastAnswer = result.answer;
    findings.elsewhere = result.elsewhere;
    findings.authentication = m_connection.authentication();
    return findings;
}

} // namespace vidora
