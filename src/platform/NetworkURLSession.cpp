#include "platform/NetworkURLSession.h"

#include "platform/AtomicFile.h"

#include <QUrl>

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <chrono>
#include <curl/curl.h>
#include <netinet/in.h>

namespace vidora {

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr qsizetype maximumHeaderSize = 256 * 1024;

URLResult failure(const QString& description, URLError::Kind kind = URLError::Kind::Other)
{
    return {std::nullopt, std::nullopt, URLError{description, {}, {}, kind}};
}

URLError::Kind kindOf(CURLcode code)
{
    switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
        return URLError::Kind::NoSuchHost;
    case CURLE_COULDNT_CONNECT:
        return URLError::Kind::NoConnection;
    case CURLE_SSL_CONNECT_ERROR:
        return URLError::Kind::NoEncryption;
    case CURLE_PEER_FAILED_VERIFICATION:
        return URLError::Kind::Certificate;
    case CURLE_OPERATION_TIMEDOUT:
        return URLError::Kind::TimedOut;
    default:
        return URLError::Kind::Other;
    }
}

struct HeaderList
{
    explicit HeaderList(const HeaderFields& fields)
    {
        for (const auto& [name, value] : fields.all()) {
            if (curl_slist* longer = curl_slist_append(list, QByteArray(name + ": " + value).constData()))
                list = longer;
        }
    }
    HeaderList(const HeaderList&) = delete;
    HeaderList& operator=(const HeaderList&) = delete;
    ~HeaderList() { curl_slist_free_all(list); }
    curl_slist* list = nullptr;
};

/// "localhost" and what lies below it (RFC 6761, 6.3), 127.0.0.0/8, ::1.
bool isThisMachine(const QString& host)
{
    if (host == QLatin1String("localhost") || host.endsWith(QLatin1String(".localhost")))
        return true;
    in_addr four{};
    in6_addr six{};
    const QByteArray text = host.toLatin1();
    if (::inet_pton(AF_INET, text.constData(), &four) == 1)
        return ntohl(four.s_addr) >> 24 == IN_LOOPBACKNET;
    return ::inet_pton(AF_INET6, text.constData(), &six) == 1 && IN6_IS_ADDR_LOOPBACK(&six);
}

QByteArray contentTypeOfFile(const QByteArray& bytes)
{
    if (bytes.startsWith(QByteArrayView("\3757zXZ\0", 6)))
        return "application/x-xz";
    return bytes.startsWith("\x1F\x8B") ? "application/x-gzip" : "text/plain";
}

} // namespace

/// What the transfers of a session have in common: cookies, host addresses, TLS sessions.
struct NetworkURLSession::Shared
{
    Shared()
    {
        curl_global_init(CURL_GLOBAL_DEFAULT);
        share = curl_share_init();
        curl_share_setopt(share, CURLSHOPT_LOCKFUNC, &lock);
        curl_share_setopt(share, CURLSHOPT_UNLOCKFUNC, &unlock);
        curl_share_setopt(share, CURLSHOPT_USERDATA, this);
        for (const curl_lock_data data : {CURL_LOCK_DATA_COOKIE, CURL_LOCK_DATA_DNS, CURL_LOCK_DATA_SSL_SESSION})
            curl_share_setopt(share, CURLSHOPT_SHARE, data);
    }
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;
    ~Shared() { curl_share_cleanup(share); }

    static void lock(CURL*, curl_lock_data data, curl_lock_access, void* self)
    {
        static_cast<Shared*>(self)->mutexes[data].lock();
    }
    static void unlock(CURL*, curl_lock_data data, void* self) { static_cast<Shared*>(self)->mutexes[data].unlock(); }

    CURLSH* share = nullptr;
    std::array<std::mutex, CURL_LOCK_DATA_LAST> mutexes;
};

/// One request at a time, over the connections that earlier ones left open.
class NetworkURLSession::Transfer
{
public:
    Transfer(CURLSH* share, const QByteArray& authorities);
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;
    ~Transfer()
    {
        curl_easy_cleanup(m_easy);
        curl_multi_cleanup(m_multi);
    }

    URLResult run(const URLRequest& request, qint64 maximumBodySize, const std::atomic<bool>& cancelled);
    void wakeUp() { curl_multi_wakeup(m_multi); }

private:
    void setUp(const URLRequest& request);
    std::optional<URLError> wait(const URLRequest& request, const std::atomic<bool>& cancelled);
    static std::size_t bodyArrived(char* bytes, std::size_t, std::size_t size, void* self);
    static std::size_t headerArrived(char* bytes, std::size_t, std::size_t size, void* self);
    bool takeHeaderLine(const QByteArray& line);

    CURLM* const m_multi;
    CURL* const m_easy;
    qint64 m_maximumBodySize = 0;
    qsizetype m_headerSize = 0;
    QByteArray m_body;
    URLResponse m_response;
    SteadyClock::time_point m_lastByte;
    QString m_refusal; ///< why a callback of ours broke the transfer off
};

NetworkURLSession::Transfer::Transfer(CURLSH* share, const QByteArray& authorities)
    : m_multi(curl_multi_init())
    , m_easy(curl_easy_init())
{
    curl_easy_setopt(m_easy, CURLOPT_SHARE, share);
    curl_easy_setopt(m_easy, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(m_easy, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(m_easy, CURLOPT_COOKIEFILE, "");
    curl_easy_setopt(m_easy, CURLOPT_ACCEPT_ENCODING, "gzip, deflate");
    curl_easy_setopt(m_easy, CURLOPT_NOSIGNAL, 1L);
    // A name that doesn't resolve must not hold up the thread after its time is over.
    curl_easy_setopt(m_easy, CURLOPT_QUICK_EXIT, 1L);
    curl_easy_setopt(m_easy, CURLOPT_WRITEFUNCTION, &bodyArrived);
    curl_easy_setopt(m_easy, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(m_easy, CURLOPT_HEADERFUNCTION, &headerArrived);
    curl_easy_setopt(m_easy, CURLOPT_HEADERDATA, this);
    if (!authorities.isEmpty()) {
        curl_easy_setopt(m_easy, CURLOPT_CAINFO, authorities.constData());
        curl_easy_setopt(m_easy, CURLOPT_CAPATH, nullptr);
    }
}

URLResult NetworkURLSession::Transfer::run(const URLRequest& request, qint64 maximumBodySize,
                                           const std::atomic<bool>& cancelled)
{
    m_maximumBodySize = std::min(maximumBodySize, request.maximumBodySize.value_or(maximumBodySize));
    m_headerSize = 0;
    m_body = QByteArray("");
    m_response = URLResponse();
    m_refusal.clear();
    const HeaderList headers(request.headerFields);
    curl_easy_setopt(m_easy, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(m_maximumBodySize));
    curl_easy_setopt(m_easy, CURLOPT_URL, request.url.text().toUtf8().constData());
    curl_easy_setopt(m_easy, CURLOPT_HTTPHEADER, headers.list);
    setUp(request);
    curl_multi_add_handle(m_multi, m_easy);
    std::optional<URLError> error = wait(request, cancelled);
    curl_multi_remove_handle(m_multi, m_easy);
    curl_easy_setopt(m_easy, CURLOPT_HTTPHEADER, nullptr);

    URLResult result;
    if (m_response.statusCode != 0)
        result.response = std::move(m_response);
    if (!error)
        result.data = std::exchange(m_body, {});
    result.error = std::move(error);
    m_body = {};
    return result;
}

/// Method, body and credentials; the handle still has those of the request before.
void NetworkURLSession::Transfer::setUp(const URLRequest& request)
{
    curl_easy_setopt(m_easy, CURLOPT_HTTPGET, 1L);
    if (request.httpBody) {
        curl_easy_setopt(m_easy, CURLOPT_POST, 1L);
        curl_easy_setopt(m_easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.httpBody->size()));
        curl_easy_setopt(m_easy, CURLOPT_POSTFIELDS, request.httpBody->constData());
    }
    const bool plain = request.httpMethod == "GET" && !request.httpBody;
    curl_easy_setopt(m_easy, CURLOPT_CUSTOMREQUEST, plain ? nullptr : request.httpMethod.constData());

    curl_easy_setopt(m_easy, CURLOPT_USERNAME, nullptr);
    curl_easy_setopt(m_easy, CURLOPT_PASSWORD, nullptr);
    if (request.credentials) {
        const bool digest = request.credentials->authentication == URLAuthentication::Digest;
        curl_easy_setopt(m_easy, CURLOPT_HTTPAUTH, digest ? CURLAUTH_DIGEST : CURLAUTH_BASIC);
        curl_easy_setopt(m_easy, CURLOPT_USERNAME, request.credentials->user.toUtf8().constData());
        curl_easy_setopt(m_easy, CURLOPT_PASSWORD, request.credentials->password.toUtf8().constData());
    }
}

/// Drives the transfer to its end. Nothing for a whole response, else what went wrong.
std::optional<URLError> NetworkURLSession::Transfer::wait(const URLRequest& request, const std::atomic<bool>& cancelled)
{
    const auto end = SteadyClock::now() + request.timeoutIntervalForResource;
    // The session's end wakes a transfer up; a request's own is looked for.
    const Milliseconds longestNap = request.cancelled ? Milliseconds(100) : Seconds(60);
    m_lastByte = SteadyClock::now();
    int running = 1;
    while (curl_multi_perform(m_multi, &running) == CURLM_OK && running > 0) {
        const auto deadline = std::min(end, m_lastByte + request.timeoutIntervalForRequest);
        const auto left = std::chrono::ceil<Milliseconds>(deadline - SteadyClock::now());
        if (cancelled || (request.cancelled && *request.cancelled))
            return failure(QStringLiteral("cancelled"), URLError::Kind::Cancelled).error;
        if (left <= Milliseconds::zero())
            return failure(QStringLiteral("timed out"), URLError::Kind::TimedOut).error;
        curl_multi_poll(m_multi, nullptr, 0, static_cast<int>(std::min(left, longestNap).count()), nullptr);
    }
    int queued = 0;
    const CURLMsg* message = curl_multi_info_read(m_multi, &queued);
    if (!m_refusal.isNull())
        return failure(m_refusal).error;
    if (!message || message->msg != CURLMSG_DONE)
        return failure(QStringLiteral("transfer failed")).error;
    const CURLcode code = message->data.result;
    return code == CURLE_OK ? std::nullopt : failure(QString::fromUtf8(curl_easy_strerror(code)), kindOf(code)).error;
}

std::size_t NetworkURLSession::Transfer::bodyArrived(char* bytes, std::size_t, std::size_t size, void* self)
{
    auto& transfer = *static_cast<Transfer*>(self);
    transfer.m_lastByte = SteadyClock::now();
    if (static_cast<qint64>(size) > transfer.m_maximumBodySize - transfer.m_body.size()) {
        transfer.m_refusal = QStringLiteral("body too large");
        return 0;
    }
    transfer.m_body.append(bytes, static_cast<qsizetype>(size));
    return size;
}

std::size_t NetworkURLSession::Transfer::headerArrived(char* bytes, std::size_t, std::size_t size, void* self)
{
    auto& transfer = *static_cast<Transfer*>(self);
    transfer.m_lastByte = SteadyClock::now();
    return transfer.takeHeaderLine(QByteArray(bytes, static_cast<qsizetype>(size))) ? size : 0;
}

bool NetworkURLSession::Transfer::takeHeaderLine(const QByteArray& line)
{
    m_headerSize += line.size();
    if (m_headerSize > maximumHeaderSize) {
        m_refusal = QStringLiteral("header too large");
        return false;
    }
    if (line.startsWith("HTTP/")) { // of an interim response or of the final one, whose fields alone count
        m_response = URLResponse();
        m_response.statusCode = line.mid(line.indexOf(' ') + 1, 3).toInt();
    } else if (const qsizetype colon = line.indexOf(':'); colon > 0 && m_body.isEmpty()) {
        m_response.headerFields.add(line.left(colon), line.mid(colon + 1).trimmed());
    }
    return true;
}

NetworkURLSession::NetworkURLSession(qint64 maximumBodySize, const QString& authorities, Connectivity* connectivity)
    : m_maximumBodySize(maximumBodySize)
    , m_authorities(authorities.toUtf8())
    , m_connectivity(connectivity)
    , m_shared(std::make_unique<Shared>())
{
}

NetworkURLSession::~NetworkURLSession() = default;

URLResult NetworkURLSession::perform(const URLRequest& request)
{
    if (m_cancelled)
        return failure(QStringLiteral("cancelled"), URLError::Kind::Cancelled);
    const QString scheme = request.url.scheme();
    if (scheme == QLatin1String("file") && request.allowsFile)
        return readFile(request.url);
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https"))
        return failure(QStringLiteral("unsupported address"));
    const bool isAway = m_connectivity && !m_connectivity->isConnected() && !isThisMachine(request.url.host());
    return isAway ? performOnceConnected(request) : run(request);
}

URLResult NetworkURLSession::performOnceConnected(const URLRequest& request)
{
    const auto isCancelled = [&] { return m_cancelled || (request.cancelled && *request.cancelled); };
    const auto begin = SteadyClock::now();
    // Monitors err: what is left when the waiting ends is enough for a try.
    m_connectivity->wait(begin + request.timeoutIntervalForResource - request.timeoutIntervalForRequest, isCancelled);
    if (isCancelled())
        return failure(QStringLiteral("cancelled"), URLError::Kind::Cancelled);
    URLRequest rest = request;
    rest.timeoutIntervalForResource -= std::chrono::floor<Milliseconds>(SteadyClock::now() - begin);
    return run(rest);
}

URLResult NetworkURLSession::run(const URLRequest& request)
{
    auto transfer = take();
    URLResult result = transfer->run(request, m_maximumBodySize, m_cancelled);
    giveBack(std::move(transfer));
    return result;
}

std::unique_ptr<NetworkURLSession::Transfer> NetworkURLSession::take()
{
    const std::lock_guard lock(m_mutex);
    std::unique_ptr<Transfer> transfer;
    if (m_idle.empty()) {
        transfer = std::make_unique<Transfer>(m_shared->share, m_authorities);
    } else {
        transfer = std::move(m_idle.back());
        m_idle.pop_back();
    }
    m_running.push_back(transfer.get());
    return transfer;
}

void NetworkURLSession::giveBack(std::unique_ptr<Transfer> transfer)
{
    const std::lock_guard lock(m_mutex);
    m_running.erase(std::find(m_running.begin(), m_running.end(), transfer.get()));
    m_idle.push_back(std::move(transfer));
}

URLResult NetworkURLSession::readFile(const URL& url) const
{
    const QUrl address(url.text(), QUrl::StrictMode);
    const QString host = url.host();
    if (!address.isLocalFile() || !(host.isEmpty() || host == QLatin1String("localhost")))
        return failure(QStringLiteral("not a file of this machine"));
    auto bytes = AtomicFile::read(address.path(QUrl::FullyDecoded), m_maximumBodySize);
    if (!bytes)
        return failure(QStringLiteral("file can't be read"));
    URLResponse response;
    response.statusCode = 200;
    response.headerFields.set("Content-Type", contentTypeOfFile(*bytes));
    response.headerFields.set("Cache-Control", "no-store");
    return {std::move(bytes), std::move(response), std::nullopt};
}

void NetworkURLSession::invalidateAndCancel()
{
    const std::lock_guard lock(m_mutex);
    m_cancelled = true;
    for (Transfer* transfer : m_running)
        transfer->wakeUp();
    if (m_connectivity)
        m_connectivity->wakeUp();
}

} // namespace vidora
