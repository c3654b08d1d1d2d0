#pragma once

#include "listings/Page.h"

namespace vidora {

/// Unpacks a whole xz file (the .xz file format 1.1, its first stream) and hands it over piece by piece. Faulty when it
/// is damaged, cut off, empty, needs an unusual amount of memory, or holds more than `limit` bytes.
Page::Outcome decodeXz(const QByteArray& file, qint64 limit, const Page::Sink& sink);

/// Unpacks a whole gzip file (RFC 1952, its first member) in the same way. A file that is cut off gives what can be
/// read of it.
Page::Outcome decodeGzip(const QByteArray& file, qint64 limit, const Page::Sink& sink);

} // namespace vidora
