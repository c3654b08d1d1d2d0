#pragma once

#include "platform/Clock.h"
#include "sample-region/Fault.h"
#include "sample-region/Schedule.h"

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace httplib {
struct Request;
struct Response;
} // namespace httplib

namespace vidora::region {

struct Document;
struct Provider;
class SilentAddress;

/// The made-up region as HTTP sites on the loopback, one port for each provider. Serves from the constructor's end to
/// the destructor; all operations may be called on any thread.
class RegionServer
{
public:
    struct Options
    {
        std::uint64_t seed = 1;
        /// Port of the first provider; the others follow. 0 takes free ports.
        int port = 0;
        /// Whether a provider whose port is taken gets a free one.
        bool fallsBack = false;
        /// Whether to serve the addresses that stand in the catalogue, too. Without it, or where their ports are taken,
        /// the channels of such an address are left to their second sources, and streams to whoever has the ports.
        bool fixedAddress = false;
        Faults faults = {};
        Changes changes = {};
    };

    /// `clock` says for which days documents are made, `sleeper` waits where a fault asks for it; both outlive the
    /// server. Throws std::runtime_error where a port cannot be had.
    RegionServer(const Clock& clock, Sleeper& sleeper, const Options& options);
    ~RegionServer();
    RegionServer(const RegionServer&) = delete;
    RegionServer& operator=(const RegionServer&) = delete;

    /// The endpoint configuration that leads to this server, a JSON document in one line.
    const std::string& endpoints() const { return m_endpoints; }
    /// Origin of a provider ("n", "r.0", "-hbo.hu", ...); empty for an unknown one.
    std::string origin(std::string_view provider) const;
    void setFaults(Faults faults);
    /// What the provider has changed, from the next answer on.
    void setChanges(Changes changes);
    /// What was asked for since the start or the last `clearRequests`, in order: "PROVIDER/path?query".
    std::vector<std::string> requests() const;
    void clearRequests();

private:
    struct Site;
    void open(const Provider& provider, int port, bool fallsBack);
    void answer(const Provider& provider, const std::string& origin, const httplib::Request& request,
                httplib::Response& response);
    void send(httplib::Response& response, const Document& document, const Faults& faults, const std::string& origin);

    const Clock& m_clock;
    Sleeper& m_sleeper;
    Schedule m_schedule;
    mutable std::mutex m_mutex;
    Faults m_faults;
    std::vector<std::string> m_requests;
    std::string m_endpoints;
    std::vector<std::unique_ptr<Site>> m_sites;
    std::unique_ptr<SilentAddress> m_silent;
};

} // namespace vidora::region
