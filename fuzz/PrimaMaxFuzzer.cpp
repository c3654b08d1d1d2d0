// The rows of Prima Max.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanPrimaMax, "max.prima.example", "x");
    return 0;
}
