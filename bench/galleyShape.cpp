// Runs one operation on one corpus and prints what it took: the bytes it read, the bytes it made,
// and the most memory that it held at once, on the heap and on the stack. Under callgrind only the
// operation is counted.

#include <valgrind/callgrind.h>

#include <fstream>
#include <functional>
#include <iostream>
#include <vector>

#include "bench/Conversion.h"
#include "bench/allocations.h"
#include "galley/galley.h"

namespace {

/// Bytes of the stack, which never becomes smaller.
std::size_t stackBytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmStk:", 0) == 0) return std::stoul(line.substr(6)) * 1024;
    }
    return 0;
}

struct Cost {
    std::size_t output = 0;
    std::size_t memory = 0;
};

/// What `operation`, which returns the number of bytes it made, takes.
Cost measure(std::function<std::size_t()> const& operation) {
    Cost cost;
    std::size_t const stack = stackBytes();
    std::size_t const heap = Bench::liveBytes();
    Bench::restartPeak();
    CALLGRIND_START_INSTRUMENTATION;
    cost.output = operation();
    CALLGRIND_STOP_INSTRUMENTATION;
    cost.memory = Bench::peakBytes() - heap + stackBytes() - stack;
    return cost;
}

std::size_t sizeOf(String const& text) { return static_cast<std::size_t>(text.length()); }

std::size_t convert(Bench::Source const& source, unsigned width) {
    String out;
    Bench::check(CLI::XML::xmlToText(out, source.markup, source.styles, width));
    return sizeOf(out);
}

/// The page of the dialect web.
std::size_t renderPage(Bench::Corpus const& corpus, galley::Sheet const& sheet, unsigned width) {
    galley::Options options;
    options.dialect = galley::Dialect::web;
    options.width = width;
    options.color = galley::Color::always;
    auto const page = galley::render(corpus.markup, sheet, options);
    if (!page) {
        std::cerr << page.errors().front().message() << std::endl;
        std::exit(1);
    }
    return page->size();
}

galley::Sheet parseWebSheet(Bench::Corpus const& corpus) {
    return *galley::Sheet::parse(corpus.sheet, {}, galley::Dialect::web);
}

std::size_t countBoxes(CLI::XML::Box const& root) {
    std::size_t count = 0;
    for (std::vector<CLI::XML::Box const*> open = {&root}; !open.empty();) {
        CLI::XML::Box const& box = *open.back();
        open.pop_back();
        ++count;
        for (ZRLWPtr<CLI::XML::Box> const& child : box.children) open.push_back(child.object);
    }
    return count;
}

/// What it makes is boxes.
std::size_t makeBoxes(Bench::Conversion& conversion, Bench::Source const& source, unsigned width) {
    conversion.read(source);
    conversion.build();
    conversion.layOut(width);
    return countBoxes(*conversion.box) * sizeof(CLI::XML::Box);
}

/// What it makes is boxes, besides the page.
std::size_t makeTrees(Bench::Source const& source, unsigned width) {
    Bench::Conversion conversion;
    std::size_t const boxes = makeBoxes(conversion, source, width);
    conversion.paint();
    return boxes + sizeOf(conversion.dump());
}

std::size_t dumpTrees(Bench::Conversion const& conversion) {
    return sizeOf(conversion.root->dump(0)) + sizeOf(conversion.box->dump(0));
}

std::size_t parseSheet(String const& sheet) {
    CLI::XML::StyleList styles;
    Bench::check(CLI::XML::parseCss(styles, sheet));
    return 0;
}

int usage() {
    std::cerr
        << "usage: galley-shape convert|boxes|tree|dumps|sheet|web|web-sheet SHAPE SIZE [WIDTH]\n";
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4 && argc != 5) return usage();
    std::string const operation = argv[1];
    std::optional<Bench::Size> const size = Bench::parseSize(argv[3]);
    unsigned const width = argc == 5 ? static_cast<unsigned>(std::stoul(argv[4])) : 80;
    std::optional<Bench::Corpus> corpus;
    if (size) corpus = Bench::makeCorpus(argv[2], *size);
    if (!corpus) return usage();

    std::size_t const input = corpus->markup.size() + corpus->sheet.size();
    Cost cost;
    if (operation == "sheet") {
        String const sheet = Bench::toString(corpus->sheet);
        cost = measure([&] { return parseSheet(sheet); });
    } else if (operation == "web-sheet") {
        cost = measure([&] { return parseWebSheet(*corpus), std::size_t{0}; });
    } else if (operation == "web") {
        galley::Sheet const sheet = parseWebSheet(*corpus);
        cost = measure([&] { return renderPage(*corpus, sheet, width); });
    } else {
        Bench::Source const source(*corpus);
        if (operation == "convert") {
            cost = measure([&] { return convert(source, width); });
        } else if (operation == "boxes") {
            Bench::Conversion conversion;
            cost = measure([&] { return makeBoxes(conversion, source, width); });
        } else if (operation == "tree") {
            cost = measure([&] { return makeTrees(source, width); });
        } else if (operation == "dumps") {
            Bench::Conversion conversion;
            conversion.read(source);
            conversion.build();
            conversion.layOut(width);
            cost = measure([&] { return dumpTrees(conversion); });
        } else {
            return usage();
        }
    }
    std::cout << input << ' ' << cost.output << ' ' << cost.memory << std::endl;
    return 0;
}
