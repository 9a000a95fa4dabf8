#include "cli/Options.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string_view>

#include "cli/DirectOutput.h"
#include "cli/defineOptions.h"
#include "cli/helpPage.h"
#include "cli/outputNames.h"
#include "cli/report.h"
#include "web/suggest.h"

namespace {

/// How pages are written where the command line says so elsewhere than in --format.
void settleFormat(CLI::App const& app, Options& options) {
    bool const isOpen = app.count("--format") == 0 && options.product == Product::Page;
    if (isOpen && !options.files.empty()) options.format = formatOf(options.files.front());
    bool const hasTheme =
        options.format == galley::Format::html || options.format == galley::Format::svg;
    if (options.theme != galley::Theme::automatic && !hasTheme) {
        throw CLI::ValidationError("--theme", "only the formats html and svg have one");
    }
}

/// What no option knows by itself.
void settle(CLI::App const& app, Options& options) {
    if (options.documents.empty()) options.documents = {"-"};
    if (options.files == std::vector<std::string>{"-"}) options.files.clear();
    auto const inputs = std::count(options.sheets.begin(), options.sheets.end(), "-") +
                        std::count(options.documents.begin(), options.documents.end(), "-");
    if (inputs > 1) throw CLI::ValidationError("-", "standard input can be read only once");
    if (options.isWatched && inputs > 0) {
        throw CLI::ValidationError("--watch", "standard input can be read only once");
    }
    settleFormat(app, options);
    std::string const fault = nameOutputs(options);
    if (!fault.empty()) throw CLI::ValidationError(fault);
    if (options.isWatched && options.files.empty() && isatty(STDOUT_FILENO) != 1) {
        throw CLI::ValidationError("--watch",
                                   "standard output is no terminal, and no file is named");
    }
}

/// Of "--output= FILE" the parser would take FILE for the value, and it would be overwritten; of
/// "-o=" the "=".
void refuseEmptyValues(CLI::App const& app, int argc, char** argv) {
    for (int i = 1; i < argc && std::string_view(argv[i]) != "--"; ++i) {
        std::string_view const argument = argv[i];
        bool const isEmpty =
            argument.starts_with('-') && argument.find('=') + 1 == argument.length();
        if (!isEmpty) continue;
        std::string const name(argument.substr(0, argument.length() - 1));
        CLI::Option const* const option = app.get_option_no_throw(name);
        if (option != nullptr && option->get_items_expected_max() > 0) {
            throw CLI::ArgumentMismatch(name + ": no value is given");
        }
    }
}

/// As the tool's other errors begin.
void reportUsage(std::string message) {
    struct Wording {
        char const* theirs;
        char const* ours;
    };
    constexpr Wording wordings[] = {{": 1 required ", ": no value is given"},
                                    {": At Most 1 required ", ": given more than once"}};
    for (auto const& [theirs, ours] : wordings) {
        std::size_t const fault = message.find(theirs);
        if (fault != std::string::npos) message = message.substr(0, fault) + ours;
    }
    std::string const text =
        errorText("galley", message) + "Run with --help for more information.\n";
    std::fwrite(text.data(), 1, text.length(), stderr);
}

/// Which option an argument was probably meant to be that is none, to be appended to a message.
std::string optionMeant(CLI::App const& app) {
    std::vector<std::string> names;
    for (CLI::Option const* const option : app.get_options()) {
        for (std::string const& name : option->get_lnames()) names.push_back("--" + name);
    }
    for (std::string const& argument : app.remaining()) {
        std::string const name = argument.substr(0, argument.find('='));
        std::string_view const meant = galley::web::suggest(name, names, std::identity());
        if (!meant.empty()) return galley::web::didYouMean(meant, "");
    }
    return {};
}

ExitStatus print(std::string_view text) {
    std::vector<std::string> const noFiles;
    return DirectOutput(noFiles).write(0, text);
}

ExitStatus printHelp() {
    galley::Options options;
    options.width = helpWidth();
    options.dialect = galley::Dialect::web;
    auto const page = galley::render(helpDocument(options.width), helpSheet(), options);
    return print(page.value());
}

}  // namespace

std::optional<ExitStatus> parseCommandLine(int argc, char** argv, Options& options) {
    CLI::App app;
    try {
        defineOptions(app, options);
        refuseEmptyValues(app, argc, argv);
        app.parse(argc, argv);
        settle(app, options);
    } catch (CLI::CallForHelp const&) {
        return printHelp();
    } catch (CLI::CallForVersion const& version) {
        return print(std::string(version.what()) + '\n');
    } catch (CLI::ExtrasError const& error) {
        reportUsage(error.what() + optionMeant(app));
        return ExitStatus::Usage;
    } catch (CLI::ParseError const& error) {
        reportUsage(error.what());
        return ExitStatus::Usage;
    }
    return std::nullopt;
}
