#pragma once

#include <cstdint>
#include <vector>

namespace vidora {

/// Position of the first occurrence of a word of at least one byte; `end` where there is none. Looks at sixteen places
/// at a time.
const std::uint8_t* findBytes(const std::uint8_t* begin, const std::uint8_t* end,
                              const std::vector<std::uint8_t>& word);

} // namespace vidora
