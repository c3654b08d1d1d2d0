// Replays every file of the folders named on the command line through a fuzz target, for builds without libFuzzer.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    std::size_t replayed = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& file : std::filesystem::recursive_directory_iterator(argv[i])) {
            if (!file.is_regular_file())
                continue;
            std::ifstream stream(file.path(), std::ios::binary);
            const std::vector<char> bytes((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++replayed;
        }
    }
    std::printf("%zu inputs replayed\n", replayed);
    return replayed == 0 ? 1 : 0; // an empty corpus would be a test that cannot fail
}
