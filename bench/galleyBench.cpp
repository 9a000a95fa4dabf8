// Measures each stage of a conversion, and the whole of it, on several shapes and sizes.

#include <benchmark/benchmark.h>

#include <memory>

#include "bench/Conversion.h"
#include "bench/allocations.h"

namespace {

constexpr unsigned s_width = 80;

/// A corpus that the benchmarks of its shape and size share. Made when the first of them runs.
class Input {
public:
    Input(std::string_view shapeName, std::size_t byteCount) : shape(shapeName), bytes(byteCount) {}

    Bench::Source const& source() {
        if (!made) {
            Bench::Corpus const corpus =
                Bench::makeCorpus(shape, *Bench::parseSize(std::to_string(bytes))).value();
            words = corpus.words;
            made = std::make_unique<Bench::Source>(corpus);
        }
        return *made;
    }
    std::size_t wordCount() const { return words; }

private:
    std::string shape;
    std::size_t bytes;
    std::size_t words = 0;
    std::unique_ptr<Bench::Source> made;
};

/// Times `stage` alone; `prepare` makes ready for it what it works on.
template <class Prepare, class Stage>
void run(benchmark::State& state, Input& input, Prepare const& prepare, Stage const& stage) {
    Bench::Source const& source = input.source();
    std::uint64_t allocations = 0;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        {
            Bench::Conversion conversion;
            prepare(conversion, source);
            state.ResumeTiming();
            std::uint64_t const before = Bench::allocationCount();
            stage(conversion, source);
            allocations += Bench::allocationCount() - before;
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * source.markup.length());
    state.counters["allocations/word"] = static_cast<double>(allocations) /
                                         static_cast<double>(state.iterations()) /
                                         static_cast<double>(input.wordCount());
}

using Bench::Conversion;
using Bench::Source;
using Step = void (*)(Conversion& conversion, Source const& source);

/// A stage, and those before it.
struct Stage {
    char const* name;
    Step prepare;
    Step measured;
};

void nothing(Conversion&, Source const&) {}
void read(Conversion& conversion, Source const& source) { conversion.read(source); }
void build(Conversion& conversion, Source const& source) {
    read(conversion, source);
    conversion.build();
}
void layOut(Conversion& conversion, Source const& source) {
    build(conversion, source);
    conversion.layOut(s_width);
}
void paint(Conversion& conversion, Source const& source) {
    layOut(conversion, source);
    conversion.paint();
}

constexpr Stage s_stages[] = {
    {"Convert", nothing,
     [](Conversion&, Source const& source) {
         String out;
         Bench::check(CLI::XML::xmlToText(out, source.markup, source.styles, s_width));
     }},
    {"Read", nothing, read},
    {"Build", read, [](Conversion& conversion, Source const&) { conversion.build(); }},
    {"Layout", build, [](Conversion& conversion, Source const&) { conversion.layOut(s_width); }},
    {"Paint", layOut, [](Conversion& conversion, Source const&) { conversion.paint(); }},
    {"Dump", paint,
     [](Conversion& conversion, Source const&) { benchmark::DoNotOptimize(conversion.dump()); }},
    {"DocumentDump", read,
     [](Conversion& conversion, Source const&) {
         benchmark::DoNotOptimize(conversion.root->dump(0));
     }},
    {"BoxDump", layOut,
     [](Conversion& conversion, Source const&) {
         benchmark::DoNotOptimize(conversion.box->dump(0));
     }},
};

struct Corpora {
    char const* shape;
    char const* sizeName;
    std::size_t bytes;
};

constexpr Corpora s_corpora[] = {
    {"page", "1KB", 1000},
    {"paragraphs", "10KB", 10'000},
    {"paragraphs", "1MB", 1'000'000},
    {"words", "1MB", 1'000'000},
    {"inlines", "1MB", 1'000'000},
    {"siblings", "1MB", 1'000'000},
    {"table", "1MB", 1'000'000},
    {"wide-table", "1MB", 1'000'000},
    {"tables", "1MB", 1'000'000},
    {"styled", "1MB", 1'000'000},
    {"nested-blocks", "10KB", 10'000},
    {"nested-inlines", "10KB", 10'000},
};

void addBenchmarks() {
    for (Stage const& stage : s_stages) {
        for (Corpora const& corpora : s_corpora) {
            auto const input = std::make_shared<Input>(corpora.shape, corpora.bytes);
            std::string const name =
                std::string(stage.name) + "/" + corpora.shape + "/" + corpora.sizeName;
            auto const body = [input, &stage](benchmark::State& state) {
                run(state, *input, stage.prepare, stage.measured);
            };
            benchmark::RegisterBenchmark(name.c_str(), body)->Unit(benchmark::kMicrosecond);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    addBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
