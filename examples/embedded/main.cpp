// Prints the most frequent words of its standard input. Its help page is usage.xml.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "printUsage.h"

namespace {

void printTopWords(std::size_t limit, std::size_t minLength) {
    std::map<std::string, unsigned> counts;
    for (std::string word; std::cin >> word;) {
        if (word.length() >= minLength) ++counts[word];
    }
    std::vector<std::pair<std::string, unsigned>> ranking(counts.begin(), counts.end());
    std::stable_sort(ranking.begin(), ranking.end(),
                     [](auto const& a, auto const& b) { return a.second > b.second; });
    ranking.resize(std::min(limit, ranking.size()));
    for (auto const& [word, count] : ranking) std::printf("%7u %s\n", count, word.c_str());
}

}  // namespace

int main(int argc, char** argv) {
    std::size_t limit = 10;
    std::size_t minLength = 1;
    for (int i = 1; i < argc; ++i) {
        std::string const option = argv[i];
        if (option == "--help") return printUsage() ? 0 : 1;
        bool const hasValue = i + 1 < argc && std::atoi(argv[i + 1]) > 0;
        if (!hasValue || (option != "--limit" && option != "--min-length")) {
            printUsage(stderr);
            return 2;
        }
        (option == "--limit" ? limit : minLength) = static_cast<std::size_t>(std::atoi(argv[++i]));
    }
    printTopWords(limit, minLength);
    return 0;
}
