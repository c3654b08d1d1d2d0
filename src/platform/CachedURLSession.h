#pragma once

#include "platform/URLCache.h"

namespace vidora {

/// A session with a cache in front of it. Answers by the request's cache policy.
class CachedURLSession final : public URLSession
{
public:
    /// Both outlive the session.
    CachedURLSession(URLSession& network, URLCache& cache);
    URLResult perform(const URLRequest& request) override;

private:
    URLSession& m_network;
    URLCache& m_cache;
};

} // namespace vidora
