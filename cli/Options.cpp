#include "cli/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "base/String.h"

namespace {

std::string isWholeNumber(std::string const& text) {
    bool const valid = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return valid ? "" : "'" + text + "' is not a number of columns";
}

/// Standard input can be read once only.
void checkInputs(Options const& options) {
    auto const sheets = std::count(options.sheets.begin(), options.sheets.end(), "-");
    if (sheets + (options.document == "-" ? 1 : 0) > 1) {
        throw CLI::ValidationError("-", "standard input can be read only once");
    }
}

}  // namespace

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
    std::string width;
    app.add_option("--width", width,
                   "Width of the page in columns (default: the terminal's, else 80)")
        ->option_text("N")
        ->check(isWholeNumber);
    std::string tree;
    app.add_option("--dump", tree,
                   "Print a tree instead of the page: the document's, or the boxes after layout")
        ->option_text("dom|boxes")
        ->check(CLI::IsMember({"dom", "boxes"}));
    app.add_flag("--raw", options.isRaw,
                 "Pass control characters of the document and the sheets on to the terminal");

    try {
        app.parse(argc, argv);
        checkInputs(options);
    } catch (CLI::ParseError const& error) {
        return app.exit(error) == 0 ? ExitStatus::Rendered : ExitStatus::Usage;
    }
    if (!width.empty()) options.width = static_cast<unsigned>(String(width.c_str()).toInteger());
    if (tree == "dom") options.output = Options::Output::DocumentTree;
    if (tree == "boxes") options.output = Options::Output::BoxTree;
    return std::nullopt;
}
