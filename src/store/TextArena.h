#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace vidora {

/// Memory for bytes that are written once, read often and given back together. Taken from the system in large aligned
/// chunks with large pages where it has them, since for some hundred megabytes the faults of small pages would cost
/// more than the writing. For one thread at a time.
class TextArena
{
public:
    /// Room for `size` bytes, not initialised. Throws std::bad_alloc.
    std::uint8_t* take(std::size_t size);
    /// Gives the end of the stretch last taken back: `end` lies in it.
    void giveBackFrom(std::uint8_t* end) { m_next = end; }

private:
    struct Free
    {
        void operator()(std::uint8_t* chunk) const { std::free(chunk); }
    };
    std::vector<std::unique_ptr<std::uint8_t, Free>> m_chunks;
    std::uint8_t* m_next = nullptr;
    std::uint8_t* m_end = nullptr;
};

} // namespace vidora
