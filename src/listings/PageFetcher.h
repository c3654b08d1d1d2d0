#pragma once

#include "listings/HTTPUserAgent.h"
#include "listings/Page.h"
#include "platform/Clock.h"
#include "platform/NetworkActivity.h"
#include "platform/NetworkAlerts.h"
#include "platform/URLCache.h"

namespace vidora {

/// What became of a fetch, for those who report on it.
struct PageOutcome
{
    QString address; ///< where the answer came from, behind a redirect
    bool fromCache = false;
    int status = 0; ///< 0: no answer
    qint64 bytes = 0;
    QString failure; ///< why there is no page; empty for a page

    /// "fetched, status 200, 4711 bytes", or what went wrong.
    QString text() const;
};

/// The one way in which documents of providers enter the program.
class PageFetcher
{
public:
    /// Everything outlives the fetcher. `session` answers out of `cache` where the request allows it.
    PageFetcher(URLSession& session, URLCache& cache, Sleeper& sleeper, NetworkActivity& activity,
                NetworkAlerts& alerts);

    /// Fetches a page, in two attempts at most with a pause of one second between them, and blocks until they are over:
    /// any thread but the main one. After a first answer without data that names a "Location" the request's address is
    /// replaced and the second attempt goes there; `request` keeps that address.
    ///
    /// Nothing when no answer came, it was no success (status 200 to 299), had no data, or is in a character set that
    /// is not known. The page of a damaged file is faulty, which shows when it is read. A user who waits and a pass in
    /// the background are served alike today; `userIsWaitingFor` tells which it is and is noted in the log.
    /// `outcome`, where given, gets the report.
    std::optional<Page> netPageForRequest(URLRequest& request, bool userIsWaitingFor, PageOutcome* outcome = nullptr);

    /// How a body is to be read, by the response's Content-Type: "application/x-xz" and "application/x-gzip" are files
    /// packed in themselves, of UTF-8; else the character set that stands behind "charset=", as it stands there; else
    /// UTF-8. Nothing for a character set that is not known.
    static std::optional<Page> pageFromData(QByteArray data, const URLResponse& response);

private:
    URLResult attempt(const URLRequest& request);

    URLSession& m_session;
    URLCache& m_cache;
    Sleeper& m_sleeper;
    NetworkActivity& m_activity;
    NetworkAlerts& m_alerts;
};

} // namespace vidora
