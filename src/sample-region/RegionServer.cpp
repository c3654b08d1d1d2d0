#include "sample-region/RegionServer.h"

#include "sample-region/Pictures.h"
#include "sample-region/Provider.h"
#include "sample-region/Streams.h"

#include <atomic>
#include <httplib.h>
#include <stdexcept>
#include <thread>

namespace vidora::region {

namespace {

constexpr const char* loopback = "127.0.0.1";

const Provider& fixedProvider()
{
    static const Provider provider{"http", xmltvPage};
    return provider;
}

/// The query's day or page number, whatever the site calls it. A span of days is both its ends, one after the other.
std::string dateParameter(const httplib::Request& request)
{
    for (const char* name : {"date", "day", "epg_date", "dan", "page"})
        if (request.has_param(name))
            return request.get_param_value(name);
    return request.get_param_value("i_datetime_from") + request.get_param_value("i_datetime_to");
}

std::string keyParameter(const httplib::Request& request)
{
    return request.get_param_value(request.has_param("kanal_id") ? "kanal_id" : "channel_id");
}

/// What every site has: pictures of shows, icons, streams.
std::optional<Document> media(const std::string& path)
{
    constexpr std::string_view pictures = "/images/", icons = "/icons/";
    if (path.rfind(pictures, 0) == 0)
        return Document{showPicture(path), "image/png"};
    if (path.rfind(icons, 0) == 0)
        for (const RegionChannel& channel : regionChannels())
            if (channel.icon() == path.substr(icons.size()))
                return Document{channelIcon(channel), "image/svg+xml"};
    return streamDocument(path);
}

void removeAll(std::string& text, const std::string& marker)
{
    for (std::size_t at = text.find(marker); at != std::string::npos; at = text.find(marker, at))
        text.erase(at, marker.size());
}

/// What a fault makes of a request, ahead of the document.
void spoil(DocumentRequest& request, const Fault& fault)
{
    constexpr int otherFortnight = 14;
    if (fault.kind == Fault::Kind::SixDays)
        request.sixDays = true;
    if (fault.kind == Fault::Kind::Shift || fault.kind == Fault::Kind::NoToday)
        request.dayShift = fault.kind == Fault::Kind::NoToday ? otherFortnight : fault.number();
}

void spoil(Document& document, const Fault& fault)
{
    if (fault.kind == Fault::Kind::Missing)
        removeAll(document.body, fault.argument);
    if (fault.kind == Fault::Kind::Charset)
        document.contentType =
            document.contentType.substr(0, document.contentType.find(';')) + "; charset=" + fault.argument;
    if (fault.kind == Fault::Kind::Empty)
        document.body.clear();
}

/// Announces the whole body and sends a part of it.
void sendCut(httplib::Response& response, const Document& document, const Fault& fault)
{
    const std::size_t sent =
        fault.argument.empty() ? document.body.size() / 2 : std::min(document.body.size(), std::size_t(fault.number()));
    response.set_content_provider(
        document.body.size() + 1, document.contentType.c_str(),
        [part = document.body.substr(0, sent)](std::size_t, std::size_t, httplib::DataSink& sink) {
            sink.write(part.data(), part.size());
            return false;
        });
}

} // namespace

struct RegionServer::Site
{
    std::string_view provider;
    std::string origin;
    httplib::Server server;
    std::atomic<bool> over = false;
    std::thread thread;

    /// Returns when the site takes connections. `port` 0 takes a free one; false where it cannot be had.
    bool start(int port)
    {
        // Without this option a second region could share the port, and requests would go to either.
        server.set_socket_options([](socket_t socket) {
            const int yes = 1;
            setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        });
        constexpr std::size_t workers = 2;
        server.new_task_queue = [] { return new httplib::ThreadPool(workers); };
        server.set_keep_alive_max_count(1); // an idle connection would hold a worker
        const int bound =
            port == 0 ? server.bind_to_any_port(loopback) : (server.bind_to_port(loopback, port) ? port : -1);
        if (bound < 0)
            return false;
        origin = "http://" + std::string(loopback) + ":" + std::to_string(bound);
        thread = std::thread([this] {
            server.listen_after_bind();
            over = true;
        });
        while (!server.is_running() && !over)
            std::this_thread::yield();
        return true;
    }

    ~Site()
    {
        server.stop();
        if (thread.joinable())
            thread.join();
    }
};

RegionServer::RegionServer(const Clock& clock, Sleeper& sleeper, const Options& options)
    : m_clock(clock)
    , m_sleeper(sleeper)
    , m_schedule(options.seed, options.changes)
    , m_faults(options.faults)
{
    std::vector<std::string> origins;
    for (const Provider& provider : providers()) {
        const int port = options.port == 0 ? 0 : options.port + int(m_sites.size());
        open(provider, port, options.fallsBack);
        origins.push_back(m_sites.back()->origin);
    }
    m_endpoints = endpointsJson(origins);
    if (options.fixedAddress) {
        m_silent = std::make_unique<SilentAddress>(silentPort);
        try {
            open(fixedProvider(), fixedPort, false);
        } catch (const std::runtime_error&) {
            // another region has it: what it serves is of the same kind
        }
    }
}

RegionServer::~RegionServer() = default;

void RegionServer::open(const Provider& provider, int port, bool fallsBack)
{
    auto site = std::make_unique<Site>();
    site->provider = provider.name;
    site->server.Get(".*",
                     [this, &provider, &site = *site](const httplib::Request& request, httplib::Response& response) {
                         answer(provider, site.origin, request, response);
                     });
    if (!site->start(port) && !(fallsBack && site->start(0)))
        throw std::runtime_error("port " + std::to_string(port) + " cannot be had");
    m_sites.push_back(std::move(site));
}

void RegionServer::answer(const Provider& provider, const std::string& origin, const httplib::Request& request,
                          httplib::Response& response)
{
    const std::string target = std::string(provider.name) + request.target;
    Faults faults;
    std::optional<Schedule> schedule;
    {
        const std::lock_guard lock(m_mutex);
        schedule = m_schedule;
        m_requests.push_back(target);
        for (const Fault& fault : m_faults)
            if (fault.matches(target))
                faults.push_back(fault);
    }
    DocumentRequest wanted{*schedule, m_clock.now(), 0, request.path, dateParameter(request), keyParameter(request),
                           origin,    false};
    for (const Fault& fault : faults)
        spoil(wanted, fault);
    wanted.now += wanted.dayShift * dayStep;
    std::optional<Document> document = media(request.path);
    if (!document)
        document = provider.document(wanted);
    response.status = document ? 200 : 404;
    if (!document)
        document = Document{"<html><body><h1>404</h1></body></html>\n", "text/html; charset=utf-8"};
    for (const Fault& fault : faults)
        spoil(*document, fault);
    send(response, *document, faults, origin);
}

void RegionServer::send(httplib::Response& response, const Document& document, const Faults& faults,
                        const std::string& origin)
{
    const Fault* cut = nullptr;
    for (const Fault& fault : faults) {
        if (fault.kind == Fault::Kind::Delay)
            m_sleeper.sleep(Milliseconds(fault.number()));
        if (fault.kind == Fault::Kind::Status)
            response.status = fault.number();
        if (fault.kind == Fault::Kind::Redirect)
            return response.set_redirect((fault.argument.front() == '/' ? origin : "") + fault.argument);
        if (fault.kind == Fault::Kind::Cut)
            cut = &fault;
    }
    if (cut)
        sendCut(response, document, *cut);
    else
        response.set_content(document.body, document.contentType);
}

std::string RegionServer::origin(std::string_view provider) const
{
    for (const auto& site : m_sites)
        if (site->provider == provider)
            return site->origin;
    return {};
}

void RegionServer::setChanges(Changes changes)
{
    const std::lock_guard lock(m_mutex);
    m_schedule = Schedule(m_schedule.seed(), std::move(changes));
}

void RegionServer::setFaults(Faults faults)
{
    const std::lock_guard lock(m_mutex);
    m_faults = std::move(faults);
}

std::vector<std::string> RegionServer::requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

void RegionServer::clearRequests()
{
    const std::lock_guard lock(m_mutex);
    m_requests.clear();
}

} // namespace vidora::region
