// The days of HBO.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanHbo, "-hbo.hr.1", "-hbo.hr.2");
    return 0;
}
