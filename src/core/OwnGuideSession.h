#pragma once

#include "platform/URLSession.h"

namespace vidora {

/// A session that treats one address, that of the guide which the user imported, the way users expect of any address
/// they give: redirects are followed, and how the document is packed and encoded is told by its first bytes where the
/// server doesn't say. Only this address may be a file. All other requests go through as they are.
class OwnGuideSession final : public URLSession
{
public:
    /// `network` outlives the session. Without a guide nothing is special.
    OwnGuideSession(URLSession& network, std::optional<URL> guide);

    URLResult perform(const URLRequest& request) override;

private:
    URLResult follow(URLRequest request);

    URLSession& m_network;
    const std::optional<URL> m_guide;
};

/// Sets "Content-Type" to what the reader of pages understands of this document: the kind of packing by the first
/// bytes; else the character set that the server gave, or the one that the XML declaration names.
void describeByContent(URLResponse& response, const QByteArray& data);

} // namespace vidora
