// The blocks of links of Barrandov and the sections that they open.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanBarrandov, "barrandov.Barrandov Krimi", "barrandov.Barrandov");
    return 0;
}
