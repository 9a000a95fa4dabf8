// Prints a corpus, or its sheet.

#include <cstdio>
#include <string>

#include "bench/corpus.h"

namespace {

int usage() {
    std::fputs(
        "usage: galley-corpus SHAPE SIZE [sheet]\n"
        "SIZE is in bytes, or, as 1000x, in parts. Shapes:",
        stderr);
    for (std::string_view const name : Bench::shapeNames()) {
        std::fprintf(stderr, " %s", std::string(name).c_str());
    }
    std::fputs("\n", stderr);
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    bool const wantsSheet = argc == 4 && std::string_view(argv[3]) == "sheet";
    if (argc != 3 && !wantsSheet) return usage();
    std::optional<Bench::Size> const size = Bench::parseSize(argv[2]);
    if (!size) return usage();
    std::optional<Bench::Corpus> const corpus = Bench::makeCorpus(argv[1], *size);
    if (!corpus) return usage();
    std::string const& text = wantsSheet ? corpus->sheet : corpus->markup;
    bool const written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    return written && std::fflush(stdout) == 0 ? 0 : 3;
}
