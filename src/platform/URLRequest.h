#pragma once

#include "platform/HeaderFields.h"
#include "platform/Instant.h"
#include "platform/URL.h"

#include <atomic>
#include <memory>
#include <optional>

namespace vidora {

enum class CachePolicy
{
    ReturnCacheDataElseLoad = 2, ///< what is in the cache, whatever its age, else the network
    ReturnCacheDataDontLoad = 3  ///< what is in the cache or nothing
};

/// How a request proves who sends it (RFC 7617, RFC 7616).
enum class URLAuthentication
{
    Basic,
    Digest
};

struct URLCredentials
{
    QString user;
    QString password;
    URLAuthentication authentication = URLAuthentication::Basic;
};

/// One request, of the method GET unless told otherwise. A value; the caller may change and repeat it.
struct URLRequest
{
    explicit URLRequest(URL address)
        : url(std::move(address))
    {
    }

    URL url;
    CachePolicy cachePolicy = CachePolicy::ReturnCacheDataElseLoad;
    /// The longest time without a byte from the other side, the connecting included.
    Milliseconds timeoutIntervalForRequest{20'000};
    /// The longest time for all of it.
    Milliseconds timeoutIntervalForResource{60'000};
    HeaderFields headerFields;
    /// A longer body, decoded, is an error, and so is the announcement of one; without, what the session takes.
    std::optional<qint64> maximumBodySize;
    /// Once it is true the request ends with an error, within a moment. Null: it is not to be ended early.
    std::shared_ptr<const std::atomic<bool>> cancelled;
    /// Requests of another method, with a body or with credentials never touch a cache.
    QByteArray httpMethod = "GET";
    std::optional<QByteArray> httpBody;
    /// Sent to the host of this request alone, in no log and no other process's sight.
    std::optional<URLCredentials> credentials;
    /// Whether a "file:" address may be read: for the user's own guide alone, never for an address that came out of a
    /// document, a catalogue or a redirect.
    bool allowsFile = false;
};

} // namespace vidora
