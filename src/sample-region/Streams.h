#pragma once

#include "platform/Descriptor.h"
#include "sample-region/Documents.h"

namespace vidora::region {

/// Streams of the region's channels (HTTP Live Streaming, RFC 8216): "/stream/NAME.m3u8" of a channel that has one, and
/// the pieces that its playlist names. All channels show the same test picture, of a few seconds. Nothing for any other
/// path.
std::optional<Document> streamDocument(const std::string& path);

/// An address of the loopback that takes connections and never says a word, as a stream whose server hangs.
class SilentAddress
{
public:
    /// `port` 0 takes a free one. Without success `port()` is 0.
    explicit SilentAddress(int port);
    int port() const { return m_port; }

private:
    Descriptor m_socket;
    int m_port = 0;
};

} // namespace vidora::region
