#include "store/TextArena.h"

#include <algorithm>
#include <new>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace vidora {

std::uint8_t* TextArena::take(std::size_t size)
{
    if (m_next == nullptr || std::size_t(m_end - m_next) < size) {
        constexpr std::size_t largePage = std::size_t(2) << 20;
        constexpr std::size_t usualChunk = 4 * largePage;
        const std::size_t wanted = std::max(size, usualChunk);
        const std::size_t chunk = (wanted + largePage - 1) / largePage * largePage;
        auto* const bytes = static_cast<std::uint8_t*>(std::aligned_alloc(largePage, chunk));
        if (bytes == nullptr)
            throw std::bad_alloc();
        m_chunks.emplace_back(bytes);
#if defined(__linux__)
        madvise(bytes, chunk, MADV_HUGEPAGE); // where the kernel refuses, small pages do
#endif
        m_next = bytes;
        m_end = bytes + chunk;
    }
    std::uint8_t* const taken = m_next;
    m_next += size;
    return taken;
}

} // namespace vidora
