// The blocks of Nova.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanNova, "cz.nova.nova", "cz.nova.cinema");
    return 0;
}
