#include "cli/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdint>
#include <limits>

std::optional<ExitStatus> parseCommandLine(int argc, char** argv, Options& options) {
    CLI::App app("Renders a document in a small XML/XHTML subset as text for a terminal.",
                 "galley");
    app.set_version_flag("--version", "galley " GALLEY_VERSION);
    app.add_option("FILE", options.document, "The document; \"-\" or nothing is standard input")
        ->option_text(" ");
    app.add_option("--css", options.sheets,
                   "A style sheet; any number of them, their rules in the order given")
        ->option_text("FILE")
        ->allow_extra_args(false);
    std::optional<std::int64_t> width;
    app.add_option("--width", width,
                   "Width of the page in columns (default: the terminal's, else 80)")
        ->option_text("N")
        ->check(CLI::Range(std::int64_t{0}, std::numeric_limits<std::int64_t>::max()));
    std::string tree;
    app.add_option("--dump", tree,
                   "Print a tree instead of the page: the document's, or the boxes after layout")
        ->option_text("dom|boxes")
        ->check(CLI::IsMember({"dom", "boxes"}));

    try {
        app.parse(argc, argv);
    } catch (CLI::ParseError const& error) {
        return app.exit(error) == 0 ? ExitStatus::Rendered : ExitStatus::Usage;
    }
    if (width) {
        std::int64_t const widest = std::numeric_limits<unsigned>::max();
        options.width = static_cast<unsigned>(std::min(*width, widest));
    }
    if (tree == "dom") options.output = Options::Output::DocumentTree;
    if (tree == "boxes") options.output = Options::Output::BoxTree;
    return std::nullopt;
}
