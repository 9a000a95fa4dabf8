// Runs a fuzz target once over each file named, and over each file in each folder named: the
// inputs that are known, in every build and without a fuzzer.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fuzz/check.h"

namespace {

namespace fs = std::filesystem;

void replay(fs::path const& path) {
    std::ifstream file(path, std::ios::binary);
    std::string const bytes{std::istreambuf_iterator<char>(file), {}};
    // Said first, so that a crash is seen with its input.
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what the fuzzer hands over
    LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        if (!fs::is_directory(argv[i])) {
            replay(argv[i]);
            ++replayed;
            continue;
        }
        for (fs::directory_entry const& entry : fs::directory_iterator(argv[i])) {
            replay(entry.path());
            ++replayed;
        }
    }
    if (replayed > 0) return 0;
    std::fprintf(stderr, "nothing to replay\n");
    return 1;
}
