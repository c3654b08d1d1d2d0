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

void log(const QString& address, const URLRequest& request, bool userIsWaitingFor, const URLResult& result,
         const std::optional<Page>& page)
{
    if (!Log::enabled())
        return;
    QString line = QStringLiteral("page ") + address;
    if (request.url.text() != address)
        line += QStringLiteral(" -> ") + request.url.text();
    if (userIsWaitingFor)
        line += QStringLiteral(" (user waits)");
    if (result.error)
        line += QStringLiteral(": ") + result.error->description;
    else
        line += result.response && result.response->fromCache ? QStringLiteral(": from cache")
                                                              : QStringLiteral(": fetched");
    if (result.response)
        line += QStringLiteral(", status %1").arg(result.response->statusCode);
    if (result.data)
        line += QStringLiteral(", %1 bytes").arg(result.data->size());
    if (!page)
        line += result.data && !result.data->isEmpty() && isSuccess(result.response)
                    ? QStringLiteral(", unknown character set")
                    : QStringLiteral(", nothing");
    Log::line(line);
}

} // namespace

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

std::optional<Page> PageFetcher::netPageForRequest(URLRequest& request, bool userIsWaitingFor)
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
    log(address, request, userIsWaitingFor, result, page);
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
