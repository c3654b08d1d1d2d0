#pragma once

#include "platform/Connectivity.h"
#include "platform/URLSession.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

namespace vidora {

/// The real session: HTTP and HTTPS, with certificates verified. Connections are kept and used again, cookies are
/// accepted from everyone and kept for the life of the session, a transfer encoding (gzip, deflate) is undone,
/// redirects are not followed. Where it is told that the machine has no network, a request to another machine waits for
/// one: after a resume the first of a channel's sources would fail otherwise and a lower one win. It waits as long as
/// the time for all of it leaves room for a try.
///
/// "file:" addresses are read where the request allows it: a regular file on this machine, delivered with status 200,
/// the content type that its first bytes tell, and "no-store", so that it is read again from where it lies at each
/// update.
class NetworkURLSession final : public URLSession
{
public:
    /// A body, decoded, of more bytes than `maximumBodySize` is an error. `authorities`: a file of certificates (PEM)
    /// that are trusted in place of the system's.
    /// `connectivity` outlives the session; without one requests don't wait.
    explicit NetworkURLSession(qint64 maximumBodySize = 512LL * 1024 * 1024, const QString& authorities = {},
                               Connectivity* connectivity = nullptr);
    /// No request may be running.
    ~NetworkURLSession() override;

    URLResult perform(const URLRequest& request) override;

    /// Ends the running requests with an error, and all later ones. For the end of the process; any thread.
    void invalidateAndCancel();

private:
    class Transfer;
    struct Shared;

    URLResult performOnceConnected(const URLRequest& request);
    URLResult run(const URLRequest& request);
    std::unique_ptr<Transfer> take();
    void giveBack(std::unique_ptr<Transfer> transfer);
    URLResult readFile(const URL& url) const;

    const qint64 m_maximumBodySize;
    const QByteArray m_authorities;
    Connectivity* const m_connectivity;
    std::atomic<bool> m_cancelled = false;
    std::unique_ptr<Shared> m_shared;
    std::mutex m_mutex;
    std::vector<std::unique_ptr<Transfer>> m_idle;
    std::vector<Transfer*> m_running;
};

} // namespace vidora
