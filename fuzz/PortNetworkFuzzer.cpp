// The JSON documents of the port network.
#include "ScannedPages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vidora::ScannedPages(data, size).scan(vidora::scanPortNetwork, "12", "41");
    return 0;
}
