// The seven pages of Cinestar.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanCinestar, "cinestar.hr.11", "cinestar.hr.12");
    return 0;
}
