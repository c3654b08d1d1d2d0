// The Romanian pages.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanRomania, "cc.romania", "cc.romania");
    return 0;
}
