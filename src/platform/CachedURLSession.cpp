#include "platform/CachedURLSession.h"

namespace vidora {

CachedURLSession::CachedURLSession(URLSession& network, URLCache& cache)
    : m_network(network)
    , m_cache(cache)
{
}

URLResult CachedURLSession::perform(const URLRequest& request)
{
    if (request.httpMethod != "GET" || request.httpBody || request.credentials)
        return m_network.perform(request);
    if (auto entry = m_cache.cachedResponseForRequest(request)) {
        entry->response.fromCache = true;
        return {std::move(entry->data), std::move(entry->response), std::nullopt};
    }
    if (request.cachePolicy == CachePolicy::ReturnCacheDataDontLoad)
        return {std::nullopt, std::nullopt, URLError{QStringLiteral("not in the cache"), {}, {}}};
    URLResult result = m_network.perform(request);
    if (result.data && result.response && !result.error)
        m_cache.storeCachedResponse({*result.data, *result.response}, request);
    return result;
}

} // namespace vidora
