#pragma once

#include <string>
#include <string_view>

namespace vidora::region {

/// A gzip file (RFC 1952) of these bytes.
std::string gzipFile(std::string_view bytes);
/// An xz file of these bytes.
std::string xzFile(std::string_view bytes);

} // namespace vidora::region
