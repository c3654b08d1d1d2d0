// The tabs of DSK.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanDsk, "dsk.film", "dsk.doku");
    return 0;
}
