// The Italian feeds, nested and flat.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanPalinsesto, "_D1", "_C5");
    return 0;
}
