#pragma once

#include <QString>

#include <optional>

namespace vidora {

/// Where a service of a domain is to be found.
struct ServiceLocation
{
    QString host;
    int port = 0;
    QString path; ///< that the service itself names; may be empty
};

/// Finds the services of a domain. A test puts in its own.
class ServiceLookup
{
public:
    virtual ~ServiceLookup() = default;
    /// `service`: as in "_caldavs._tcp". Nothing when there is none, or nobody can be asked. Blocks for a few seconds
    /// at most; any thread but the main one.
    virtual std::optional<ServiceLocation> find(const QString& service, const QString& domain) = 0;
};

/// By the records that the domain has in the DNS: SRV for host and port (RFC 2782), TXT for the path (RFC 6763, 6.4).
class DNSServiceLookup final : public ServiceLookup
{
public:
    std::optional<ServiceLocation> find(const QString& service, const QString& domain) override;
    /// What an answer of the DNS says: public for tests, since no test asks the real one. Of several places the one
    /// that is to be tried first.
    static std::optional<ServiceLocation> placeIn(const QByteArray& answer);
    static QString pathIn(const QByteArray& answer);
};

} // namespace vidora
