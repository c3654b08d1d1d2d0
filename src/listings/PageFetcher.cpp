#include "listings/PageFetcher.h"

#include "platform/Log.h"

namespace vidora {

namespace {

constexpr int maximumAttempts = 2;
constexpr Milliseconds pauseBetweenAttempts{1000};

bool isSuccess(const std::optional<URLResponse>& response)
{
    return response && response->statusCode >= 200 && response->statusCode < 300;
}

/// Where a response without data points to.
std::optional<URL> location(const std::optional<URLResponse>& response)
{
    const auto field = response ? response->headerFields.value("Location") : std::nullopt;
    return field ? URL::fromText(QString::fromUtf8(*field)) : std::nullopt;
}

QByteArray charsetOfContentType(const QByteArray& contentType)
{
    constexpr QByteArrayView mark("charset=");
    const qsizetype at = contentType.indexOf(mark);
    const QByteArray name = at < 0 ? QByteArray() : contentType.mid(at + mark.size());
    return name.size() > 1 ? name.toUpper() : QByteArray("UTF-8");
}

PageOutcome outcomeOf(const URLRequest& request, const URLResult& result, bool hasData, bool hasPage)
{
    PageOutcome outcome;
    outcome.address = request.url.text();
    outcome.bytes = result.data ? result.data->size() : 0;
    if (result.response) {
        outcome.fromCache = result.response->fromCache;
        outcome.status = result.response->statusCode;
    }
    if (result.error)
        outcome.failure = result.error->description;
    else if (!hasData)
        outcome.failure = isSuccess(result.response) ? QStringLiteral("empty") : QStringLiteral("no success");
    else if (!hasPage)
        outcome.failure = QStringLiteral("unknown character set");
    return outcome;
}

void log(const QString& address, bool userIsWaitingFor, const PageOutcome& outcome)
{
    if (!Log::enabled())
        return;
    QString line = QStringLiteral("page ") + address;
    if (outcome.address != address)
        line += QStringLiteral(" -> ") + outcome.address;
    if (userIsWaitingFor)
        line += QStringLiteral(" (user waits)");
    Log::line(line + QStringLiteral(": ") + outcome.text());
}

} // namespace

QString PageOutcome::text() const
{
    if (status == 0)
        return failure;
    QString text = fromCache ? QStringLiteral("from cache") : QStringLiteral("fetched");
    text += QStringLiteral(", status %1, %2 bytes").arg(status).arg(bytes);
    return failure.isEmpty() ? text : text + QStringLiteral(", ") + failure;
}

PageFetcher::PageFetcher(URLSession& session, URLCache& cache, Sleeper& sleeper, NetworkActivity& activity,
                         NetworkAlerts& alerts)
    : m_session(session)
    , m_cache(cache)
    , m_sleeper(sleeper)
    , m_activity(activity)
    , m_alerts(alerts)
{
}

URLResult PageFetcher::attempt(const URLRequest& request)
{
    URLResult result;
    m_activity.startNetworkActivity();
    try {
        result = m_session.perform(request);
    } catch (const std::exception& exception) {
        Log::line(QStringLiteral("netPageForRequest exception=%1").arg(QString::fromUtf8(exception.what())));
    }
    m_activity.stopNetworkActivity();
    if (!result.data && result.error)
        m_alerts.noRemoteHostAlert(*result.error);
    return result;
}

std::optional<Page> PageFetcher::netPageForRequest(URLRequest& request, bool userIsWaitingFor, PageOutcome* outcome)
{
    const QString address = request.url.text();
    URLResult result;
    bool hasData = false;
    for (int attempts = 0; attempts < maximumAttempts && !hasData; ++attempts) {
        if (attempts > 0)
            m_sleeper.sleep(pauseBetweenAttempts);
        result = attempt(request);
        hasData = isSuccess(result.response) && result.data && !result.data->isEmpty();
        if (attempts > 0 || hasData)
            continue;
        if (auto target = location(result.response)) {
            request.url = *std::move(target);
            request.allowsFile = false; // that was allowed for the user's own address, not for where it leads
        }
    }
    std::optional<Page> page;
    if (hasData)
        page = pageFromData(*result.data, *result.response);
    else
        m_cache.removeCachedResponseForRequest(request);
    const PageOutcome report = outcomeOf(request, result, hasData, page.has_value());
    log(address, userIsWaitingFor, report);
    if (outcome)
        *outcome = report;
    return page;
}

std::optional<Page> PageFetcher::pageFromData(QByteArray data, const URLResponse& response)
{
    const QByteArray contentType = response.headerFields.value("Content-Type").value_or(QByteArray());
    if (contentType == "application/x-xz")
        return Page::fromBytes(std::move(data), Page::Container::Xz, "UTF-8");
    if (contentType == "application/x-gzip")
        return Page::fromBytes(std::move(data), Page::Container::Gzip, "UTF-8");
    QByteArray charset = charsetOfContentType(contentType);
    if (!Page::isKnownCharset(charset))
        return std::nullopt;
    return Page::fromBytes(std::move(data), Page::Container::None, std::move(charset));
}

} // namespace vidora
