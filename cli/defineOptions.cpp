#include "cli/defineOptions.h"

#include <string>
#include <utility>
#include <vector>

#include "base/String.h"

namespace {

template <class Value>
using Choices = std::vector<std::pair<std::string, Value>>;

std::string isWholeNumber(std::string const& text) {
    bool const valid = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return valid ? "" : "'" + text + "' is not a whole number";
}

std::string isPositive(std::string const& text) {
    std::string const fault = isWholeNumber(text);
    bool const isZero = text.find_first_not_of('0') == std::string::npos;
    return fault.empty() && isZero ? "'" + text + "' is not positive" : fault;
}

std::string isName(std::string const& text) { return text.empty() ? "the name is empty" : ""; }

/// A number that is too large counts as the largest.
template <class Number>
CLI::Option* addNumber(CLI::App& app, std::string const& names, Number& number,
                       std::string const& description) {
    auto const set = [&number](std::string const& text) {
        number = static_cast<unsigned>(String(text.c_str()).toInteger());
    };
    return app.add_option_function<std::string>(names, set, description)
        ->option_text("N")
        ->check(isPositive);
}

/// `target` takes a value of the choices.
template <class Value, class Target>
CLI::Option* addChoice(CLI::App& app, std::string const& names, Target& target,
                       Choices<Value> const& choices, std::string const& description) {
    std::vector<std::string> words;
    for (auto const& choice : choices) words.push_back(choice.first);
    auto const set = [&target, choices](std::string const& word) {
        for (auto const& choice : choices) {
            if (choice.first == word) target = choice.second;
        }
    };
    return app.add_option_function<std::string>(names, set, description)
        ->option_text(CLI::detail::join(words, "|"))
        ->check(CLI::IsMember(words));
}

void definePage(CLI::App& app, Options& options) {
    addChoice<galley::Dialect>(
        app, "--dialect", options.dialect,
        {{"web", galley::Dialect::web}, {"core", galley::Dialect::core}},
        "The language of documents and sheets: elements and style sheets as a browser shows them "
        "(the default), or a small one with rules of its own. Where it is not given a document may "
        "say it at its beginning, by <?galley dialect=\"core\"?>, and sheets are of the dialect of "
        "the first document");
    app.add_option("-s,--css", options.sheets,
                   "A style sheet; any number of them, their rules in the order given")
        ->option_text("FILE")
        ->allow_extra_args(false)
        ->check(isName);
    addNumber(app, "-w,--width", options.width,
              "Width of the page in columns (default: that of the terminal on standard output, "
              "else of the environment's COLUMNS, else 80)");
    addNumber(app, "--max-width", options.maxWidth, "The most that the width may be");
}

void defineForm(CLI::App& app, Options& options) {
    addChoice<galley::Format>(
        app, "-f,--format", options.format,
        {{"ansi", galley::Format::ansi},
         {"plain", galley::Format::plain},
         {"html", galley::Format::html},
         {"svg", galley::Format::svg}},
        "How pages are written: text with escape sequences (the default), bare text, "
        "HTML (a <pre> element; in a file a document), or a picture of a terminal");
    addChoice<galley::Theme>(
        app, "--theme", options.theme,
        {{"light", galley::Theme::light}, {"dark", galley::Theme::dark}},
        "Colours of the formats html and svg; without it html follows the reader's "
        "preference and svg is dark");
    addChoice<galley::Color>(
        app, "--color", options.color,
        {{"auto", galley::Color::automatic},
         {"always", galley::Color::always},
         {"never", galley::Color::never},
         {"16", galley::Color::colors16},
         {"256", galley::Color::colors256},
         {"24bit", galley::Color::colors24bit}},
        "Whether the format ansi has its escape sequences; auto, the default, keeps them where "
        "standard output is a terminal, no file is named, NO_COLOR is unset or empty and TERM is "
        "not dumb. A number of colours is that of the terminal that they go to; otherwise the "
        "environment's COLORTERM and TERM tell");
    addChoice<galley::Links>(
        app, "--links", options.links,
        {{"auto", galley::Links::automatic},
         {"always", galley::Links::always},
         {"never", galley::Links::never},
         {"list", galley::Links::list}},
        "How links lead on: a click on them, by escape sequences that auto, the default, has only "
        "for a terminal and always wherever there are any; not at all; or by numbers behind them "
        "and a list of addresses at the end of the page");
    addChoice<unsigned>(app, "--ambiguous-width", options.ambiguousWidth, {{"1", 1}, {"2", 2}},
                        "Columns that the terminal gives to East Asian ambiguous characters "
                        "(default: 1); with 2, frames are drawn in ASCII, since theirs are such");
    app.add_flag("--ascii", options.hasAsciiFrames, "Draw frames with + - | and =");
    addChoice<Product>(
        app, "--dump", options.product,
        {{"tree", Product::StyleTree}, {"dom", Product::DocumentTree}, {"boxes", Product::BoxTree}},
        "Print a tree instead of the page: elements with their styles, or, in the "
        "dialect core, the document's or the boxes after layout")
        ->excludes("--format");
    app.add_flag(
        "--raw", options.isRaw,
        "Pass control characters of documents and sheets of the dialect core on to the "
        "terminal; without it, and in other formats than ansi, all but white space are "
        "question marks. Pages of the dialect web never have any: with --raw, its documents "
        "are errors");
}

void defineDestination(CLI::App& app, Options& options) {
    std::string const wholeOrNot = "whole or, where the document fails, not at all";
    app.add_option_function<std::string>(
           "-o,--output", [&options](std::string const& file) { options.files = {file}; },
           "Write the page of the one document to this file: " + wholeOrNot +
               "; \"-\" is standard output. A name that ends with .html, .htm or .svg is for that "
               "format, unless --format or --dump is given")
        ->option_text("FILE")
        ->check(isName);
    app.add_option("--output-dir", options.directory,
                   "Write each page to a file in this directory: named after its document with "
                   ".txt, .html or .svg, " +
                       wholeOrNot +
                       ". Pages of one name keep the folders of their documents, from the deepest "
                       "on that holds them all. Directories are made where there are none")
        ->option_text("DIR")
        ->check(isName)
        ->excludes("--output");
    app.add_flag("-p,--pager", options.isPaged,
                 "Show the pages in the environment's PAGER, a command of the shell (default: "
                 "less -R), where standard output is a terminal; errors follow when it has ended. "
                 "LESS becomes FRX where it is unset, so that a page that fits stays on the screen")
        ->excludes("--output")
        ->excludes("--output-dir");
}

void defineRun(CLI::App& app, Options& options) {
    CLI::Option* const check = app.add_flag("--check", options.isCheck,
                                            "Write no page but all that is wrong with documents "
                                            "and sheets, and warn of what has no "
                                            "effect in them")
                                   ->excludes("--dump")
                                   ->excludes("--output")
                                   ->excludes("--output-dir")
                                   ->excludes("--pager");
    app.add_flag("--strict", options.isStrict, "With --check, warnings fail, too")->needs(check);
    app.add_flag("--watch", options.isWatched,
                 "Render again when a document, a sheet or the width of the terminal changes, "
                 "until q or Ctrl-C; the last page that was right stays above the errors. It "
                 "scrolls by the keys of less: arrows, Page Up and Down, Home, End, space, b, j, "
                 "k, g and G. Files named by --output or --output-dir are written again")
        ->excludes("--check")
        ->excludes("--pager");
    addNumber(app, "--jobs", options.jobs,
              "Render this many documents at the same time, to the same effect (default: 1)");
}

/// Puts what `define` adds under a heading.
void defineGroup(CLI::App& app, Options& options, char const* heading,
                 void (*define)(CLI::App&, Options&)) {
    app.option_defaults()->group(heading);
    define(app, options);
}

}  // namespace

void defineOptions(CLI::App& app, Options& options) {
    app.add_option("FILE", options.documents,
                   "The documents, in the order of their pages; \"-\" or nothing is standard input")
        ->option_text("...")
        ->check(isName);
    app.set_help_flag("-h,--help", "Print this page and exit");
    app.set_version_flag("--version", "galley " GALLEY_VERSION, "Print the version and exit");
    defineGroup(app, options, "Page", definePage);
    defineGroup(app, options, "Output", defineForm);
    defineGroup(app, options, "Output", defineDestination);
    defineGroup(app, options, "Run", defineRun);
}
