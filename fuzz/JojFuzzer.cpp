// The day sections of JOJ Cinema.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanJoj, "joj.cinema", "joj.other");
    return 0;
}
