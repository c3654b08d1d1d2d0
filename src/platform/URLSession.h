#pragma once

#include "platform/URLRequest.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace vidora {

/// What came back ahead of the body.
struct URLResponse
{
    int statusCode = 0;
    HeaderFields headerFields;
    bool fromCache = false;
};

/// Why no whole response came.
struct URLError
{
    enum class Kind
    {
        Other,
        NoSuchHost,
        NoConnection,
        NoEncryption, ///< the other side speaks no TLS, or none that both know
        Certificate,  ///< the other side is not who it should be
        TimedOut,
        Cancelled
    };

    QString description;                 ///< for the log
    QString localizedFailureReason;      ///< for the user; may be empty
    QString localizedRecoverySuggestion; ///< for the user; may be empty
    Kind kind = Kind::Other;
};

/// The outcome of a request. An error comes without data: a body that was cut off is no body.
struct URLResult
{
    std::optional<QByteArray> data;
    std::optional<URLResponse> response;
    std::optional<URLError> error;
};

/// The one door to the network: whatever fetches goes through it.
class URLSession
{
public:
    virtual ~URLSession() = default;
    /// Performs the request and blocks until it is over; the request's time-outs end it. Any thread but the main one;
    /// requests of several threads run side by side. Redirects are answers like any other: they are not followed.
    virtual URLResult perform(const URLRequest& request) = 0;
};

} // namespace vidora
