// The week of Dolce Sport.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanDolceSport, "dolce-sport.1", "dolce-sport.2");
    return 0;
}
