#include "cli/Options.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <memory>
#include <utility>

#include "base/String.h"
#include "cli/outputNames.h"
#include "cli/report.h"

namespace {

using galley::Color;
using galley::Format;

/// Of --help, in columns.
constexpr std::size_t s_helpWidth = 80;

constexpr StatusEntry s_statuses[] = {
    {ExitStatus::Rendered, "everything was rendered, or passed --check"},
    {ExitStatus::InputAtFault, "a document or a sheet is at fault, or memory ran out"},
    {ExitStatus::Usage, "usage"},
    {ExitStatus::FileAtFault, "a file cannot be read or written"},
};
constexpr char const* s_statusNote =
    "A document that fails is reported, and the others are rendered all the same; the status is "
    "that of the first failure. A sheet that fails ends the run, unless it is a --check. A pager "
    "or "
    "another reader of standard output that ends early is no failure, and no signal that ends a "
    "--watch is one.";

/// Breaks `text` between words, from `start` on, into lines of at most `room` characters.
void breakLines(std::string& text, std::size_t start, std::size_t room) {
    while (start + room < text.length()) {
        std::size_t const space = text.rfind(' ', start + room);
        if (space == std::string::npos || space <= start) break;
        text[space] = '\n';
        start = space + 1;
    }
}

std::string footer() {
    std::string text = "Exit status:\n";
    for (StatusEntry const& entry : s_statuses) {
        text += "  " + std::to_string(static_cast<int>(entry.status)) + "  " + entry.meaning + "\n";
    }
    std::size_t const note = text.length();
    text += s_statusNote;
    breakLines(text, note, s_helpWidth);
    return text + "\n";
}

/// Breaks the descriptions of options where a line ends.
class HelpFormatter final : public CLI::Formatter {
public:
    HelpFormatter() { column_width(32); }

    std::string make_option_desc(CLI::Option const* option) const override {
        std::string text = CLI::Formatter::make_option_desc(option);
        breakLines(text, 0, s_helpWidth - get_column_width());
        return text;
    }
};

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
CLI::Option* addNumber(CLI::App& app, std::string const& name, Number& number,
                       std::string const& description) {
    auto const set = [&number](std::string const& text) {
        number = static_cast<unsigned>(String(text.c_str()).toInteger());
    };
    return app.add_option_function<std::string>(name, set, description)->option_text("N");
}

template <class Value>
CLI::Option* addChoice(CLI::App& app, std::string const& name, Value& value,
                       Choices<Value> const& choices, std::string const& description) {
    std::vector<std::string> words;
    for (auto const& choice : choices) words.push_back(choice.first);
    auto const set = [&value, choices](std::string const& word) {
        for (auto const& choice : choices) {
            if (choice.first == word) value = choice.second;
        }
    };
    return app.add_option_function<std::string>(name, set, description)
        ->option_text(CLI::detail::join(words, "|"))
        ->check(CLI::IsMember(words));
}

/// Everything that the tool understands.
void defineOptions(CLI::App& app, Options& options) {
    app.set_version_flag("--version", "galley " GALLEY_VERSION);
    app.add_option("FILE", options.documents,
                   "The documents, in the order of their pages; \"-\" or nothing is standard input")
        ->option_text("...")
        ->check(isName);

    app.add_option("--css", options.sheets,
                   "A style sheet; any number of them, their rules in the order given")
        ->option_text("FILE")
        ->allow_extra_args(false)
        ->check(isName)
        ->group("Page");
    addNumber(app, "--width", options.width,
              "Width of the page in columns (default: that of the terminal on standard output, "
              "else of the environment's COLUMNS, else 80)")
        ->check(isWholeNumber)
        ->group("Page");
    addNumber(app, "--max-width", options.maxWidth, "The most that the width may be")
        ->check(isWholeNumber)
        ->group("Page");

    CLI::Option* const format =
        addChoice<Format>(
            app, "--format", options.format,
            {{"ansi", Format::ansi},
             {"plain", Format::plain},
             {"html", Format::html},
             {"svg", Format::svg}},
            "How pages are written: text with escape sequences (the default), bare text, a <pre> "
            "element, or a picture of a terminal")
            ->group("Output");
    addChoice<Color>(
        app, "--color", options.color,
        {{"auto", Color::automatic}, {"always", Color::always}, {"never", Color::never}},
        "Whether the format ansi has its escape sequences; auto, the default, keeps them where "
        "standard output is a terminal, no file is named and NO_COLOR is unset or empty")
        ->group("Output");
    CLI::Option* const dump =
        addChoice<Product>(app, "--dump", options.product,
                           {{"dom", Product::DocumentTree}, {"boxes", Product::BoxTree}},
                           "Print a tree instead of the page: the document's, or the boxes after "
                           "layout")
            ->excludes(format)
            ->group("Output");
    app.add_flag("--raw", options.isRaw,
                 "Pass control characters of the document and the sheets on to the terminal; "
                 "without it, and in other formats than ansi, all but white space are question "
                 "marks")
        ->group("Output");
    std::string const wholeOrNot = "whole or, where the document fails, not at all";
    CLI::Option* const output =
        app.add_option_function<std::string>(
               "--output", [&options](std::string const& file) { options.files = {file}; },
               "Write the page of the one document to this file: " + wholeOrNot +
                   "; \"-\" is standard output")
            ->option_text("FILE")
            ->check(isName)
            ->group("Output");
    CLI::Option* const directory =
        app.add_option("--output-dir", options.directory,
                       "Write each page to a file in this directory: named after its document with "
                       ".txt, .html or .svg, " +
                           wholeOrNot + ". The directory is made where there is none")
            ->option_text("DIR")
            ->check(isName)
            ->excludes(output)
            ->group("Output");
    CLI::Option* const pager =
        app.add_flag("--pager", options.isPaged,
                     "Show the pages in the environment's PAGER, a command of the shell (default: "
                     "less -R), where standard output is a terminal; errors follow when it has "
                     "ended")
            ->option_text(" ")
            ->excludes(output)
            ->excludes(directory)
            ->group("Output");

    CLI::Option* const check =
        app.add_flag("--check", options.isCheck,
                     "Write nothing but which documents and sheets fail, all of them")
            ->option_text(" ")
            ->excludes(dump)
            ->excludes(output)
            ->excludes(directory)
            ->excludes(pager)
            ->group("Run");
    app.add_flag(
           "--watch", options.isWatched,
           "Render again when a document, a sheet or the width of the terminal changes, until "
           "Ctrl-C; the last page that was right stays above the errors. Files named by "
           "--output or --output-dir are written again")
        ->option_text(" ")
        ->excludes(check)
        ->excludes(pager)
        ->group("Run");
    addNumber(app, "--jobs", options.jobs,
              "Render this many documents at the same time, to the same effect (default: 1)")
        ->check(isPositive)
        ->group("Run");
}

/// What no option knows by itself.
void settle(Options& options) {
    if (options.documents.empty()) options.documents = {"-"};
    if (options.files == std::vector<std::string>{"-"}) options.files.clear();
    auto const inputs = std::count(options.sheets.begin(), options.sheets.end(), "-") +
                        std::count(options.documents.begin(), options.documents.end(), "-");
    if (inputs > 1) throw CLI::ValidationError("-", "standard input can be read only once");
    if (options.isWatched && inputs > 0) {
        throw CLI::ValidationError("--watch", "standard input can be read only once");
    }
    options.isRaw = options.isRaw && options.format == Format::ansi;
    std::string const fault = nameOutputs(options);
    if (!fault.empty()) throw CLI::ValidationError(fault);
    if (options.isWatched && options.files.empty() && isatty(STDOUT_FILENO) != 1) {
        throw CLI::ValidationError("--watch",
                                   "standard output is no terminal, and no file is named");
    }
}

/// Of "--output= FILE" the parser would take FILE for the value, and it would be overwritten.
void refuseEmptyValues(CLI::App const& app, int argc, char** argv) {
    for (int i = 1; i < argc && std::string_view(argv[i]) != "--"; ++i) {
        std::string_view const argument = argv[i];
        bool const isEmpty =
            argument.starts_with("--") && argument.find('=') + 1 == argument.length();
        if (!isEmpty) continue;
        std::string const name(argument.substr(0, argument.length() - 1));
        CLI::Option const* const option = app.get_option_no_throw(name);
        if (option != nullptr && option->get_items_expected_max() > 0) {
            throw CLI::ArgumentMismatch(name + ": no value is given");
        }
    }
}

/// As the tool's other errors begin.
std::string usageError(CLI::App const*, CLI::Error const& error) {
    struct Wording {
        char const* theirs;
        char const* ours;
    };
    constexpr Wording wordings[] = {{": 1 required ", ": no value is given"},
                                    {": At Most 1 required ", ": given more than once"}};
    std::string message = error.what();
    for (auto const& [theirs, ours] : wordings) {
        std::size_t const fault = message.find(theirs);
        if (fault != std::string::npos) message = message.substr(0, fault) + ours;
    }
    return errorText("galley", message) + "Run with --help for more information.\n";
}

/// What is said about the tool before its options.
void defineApp(CLI::App& app) {
    app.name("galley");
    app.description("Renders documents in a small XML/XHTML subset as text for a terminal.");
    app.footer(footer());
    app.formatter(std::make_shared<HelpFormatter>());
    app.failure_message(usageError);
}

}  // namespace

std::vector<OptionEntry> describeOptions() {
    CLI::App app;
    Options options;
    defineOptions(app, options);
    std::vector<OptionEntry> entries;
    for (CLI::Option const* option : app.get_options()) {
        bool const isFlag = option->get_items_expected_max() == 0;
        bool const isOption = option->nonpositional();
        std::vector<std::string> const& shortNames = option->get_snames();
        entries.push_back({isOption ? option->get_name() : option->get_name(true),
                           shortNames.empty() ? "" : "-" + shortNames.front(),
                           isFlag ? "" : option->get_option_text(), option->get_description(),
                           option->get_group() == "Options" ? "" : option->get_group(),
                           option->get_expected_max() > 1});
    }
    return entries;
}

std::vector<StatusEntry> describeStatuses() {
    return {std::begin(s_statuses), std::end(s_statuses)};
}

char const* statusNote() { return s_statusNote; }

std::optional<ExitStatus> parseCommandLine(int argc, char** argv, Options& options) {
    CLI::App app;
    try {
        defineApp(app);
        defineOptions(app, options);
        refuseEmptyValues(app, argc, argv);
        app.parse(argc, argv);
        settle(options);
    } catch (CLI::ParseError const& error) {
        if (app.exit(error) != 0) return ExitStatus::Usage;
        if (std::cout.flush()) return ExitStatus::Rendered;
        reportError("<stdout>", std::strerror(errno));
        return ExitStatus::FileAtFault;
    }
    return std::nullopt;
}
