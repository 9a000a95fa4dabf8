#include "galley/webPage.h"

#include <algorithm>
#include <utility>

#include "base/append.h"
#include "galley/Places.h"
#include "galley/SheetAccess.h"
#include "galley/failure.h"
#include "galley/formats/PageWriter.h"
#include "galley/terminal/terminal.h"
#include "web/renderPage.h"

namespace galley {

namespace {

using web::Problem;

Severity severityOf(Problem::Kind kind) {
    switch (kind) {
        case Problem::Kind::error:
            return Severity::error;
        case Problem::Kind::warning:
            return Severity::warning;
        case Problem::Kind::note:
            break;
    }
    return Severity::note;
}

Diagnostic tell(Problem& problem, std::string_view name, Places& places) {
    Severity const severity = severityOf(problem.kind);
    if (problem.offset == Problem::s_nowhere) {
        return Diagnostic(severity, std::move(problem.message), std::string(name));
    }
    auto const [line, column] = places.at(problem.offset);
    return Diagnostic(severity, std::move(problem.message), std::string(name), line, column,
                      places.excerpt(problem.offset));
}

/// What was found, in the order of the source, with its places as a person names them.
std::vector<Diagnostic> diagnose(std::vector<Problem> problems, Source const& source) {
    // A note stays behind what it belongs to, wherever its own place is.
    std::vector<std::pair<std::size_t, Problem*>> ordered;
    for (Problem& problem : problems) {
        bool const isNote = problem.kind == Problem::Kind::note && !ordered.empty();
        ordered.emplace_back(isNote ? ordered.back().first : problem.offset, &problem);
    }
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](auto const& a, auto const& b) { return a.first < b.first; });
    Places places(source.text);
    std::vector<Diagnostic> diagnostics;
    for (auto const& [offset, problem] : ordered) {
        Diagnostic told = tell(*problem, source.name, places);
        if (problem->kind == Problem::Kind::note && !diagnostics.empty()) {
            diagnostics.back().addNote(std::move(told));
        } else {
            diagnostics.push_back(std::move(told));
        }
    }
    return diagnostics;
}

std::vector<Diagnostic> errorsOf(std::vector<Diagnostic> all) {
    std::erase_if(all, [](Diagnostic const& d) { return d.severity() != Severity::error; });
    return all;
}

web::Media::Links linksFor(Options const& options) {
    switch (options.links) {
        case Links::list:
            return web::Media::Links::listed;
        case Links::never:
            return web::Media::Links::ignored;
        default:
            return web::Media::Links::followed;
    }
}

ColourDepth depthFor(Color color) {
    switch (color) {
        case Color::colors16:
            return ColourDepth::sixteen;
        case Color::colors256:
            return ColourDepth::cube256;
        case Color::colors24bit:
            return ColourDepth::exact;
        default:
            return colourDepthOfTerminal();
    }
}

web::Media mediaFor(Options const& options) {
    web::Media media;
    media.width = options.width;
    media.hasColour = options.color != Color::never && options.format != Format::plain;
    if (options.theme == Theme::light) media.scheme = web::Media::Scheme::light;
    bool const isDark = options.format == Format::svg && options.theme == Theme::automatic;
    if (isDark || options.theme == Theme::dark) media.scheme = web::Media::Scheme::dark;
    media.links = linksFor(options);
    media.cells.isAmbiguousWide = options.ambiguousWidth > 1;
    media.cells.hasAsciiFrames = options.asciiFrames || media.cells.isAmbiguousWide;
    return media;
}

/// All that is said of a document, from which `work` makes something by the sheets.
template <class Work>
std::vector<Diagnostic> convert(std::string_view markup, Sheet const& sheet, Options const& options,
                                Work const& work) {
    std::vector<Diagnostic> misfits = SheetAccess::misfits(sheet, Dialect::web);
    if (!misfits.empty()) return misfits;
    std::string_view const text = withoutMark(markup);
    std::vector<web::Sheet const*> const sheets = SheetAccess::webSheets(sheet);
    std::vector<Problem> problems;
    work(text, sheets, problems);
    return diagnose(std::move(problems), {options.name, text});
}

/// The same, whose page goes to `page` where there is no error.
std::vector<Diagnostic> render(String& page, std::string_view markup, Sheet const& sheet,
                               Options const& options) {
    return convert(markup, sheet, options, [&](auto const text, auto const& sheets, auto& found) {
        auto const writer = makePageWriter(page, options, depthFor(options.color));
        web::DocumentInfo document;
        if (!web::renderPage(text, sheets, mediaFor(options), *writer, found, &document)) return;
        writer->describe(document);
        writer->finish();
    });
}

Result<void> resultOf(std::vector<Diagnostic> diagnostics) {
    std::vector<Diagnostic> errors = errorsOf(std::move(diagnostics));
    return errors.empty() ? Result<void>() : Result<void>(std::move(errors));
}

}  // namespace

std::string_view withoutMark(std::string_view source) {
    constexpr std::string_view s_mark = "\xEF\xBB\xBF";
    if (source.starts_with(s_mark)) source.remove_prefix(s_mark.size());
    return source;
}

Result<void> makeWebPage(String& page, std::string_view markup, Sheet const& sheet,
                         Options const& options) {
    return guarded(options.name, [&]() -> Result<void> {
        String made;
        Result<void> result = resultOf(render(made, markup, sheet, options));
        if (result) page = std::move(made);
        return result;
    });
}

Result<void> makeWebTree(String& tree, std::string_view markup, Sheet const& sheet,
                         Options const& options) {
    return guarded(options.name, [&] {
        return resultOf(
            convert(markup, sheet, options, [&](auto const text, auto const& sheets, auto& found) {
                std::string made;
                bool const isMade = web::dumpTree(text, sheets, mediaFor(options), made, found);
                if (isMade) CLI::XML::append(tree, made);
            }));
    });
}

std::vector<Diagnostic> checkWebMarkup(std::string_view markup, Sheet const& sheet,
                                       Options const& options) {
    String page;
    return render(page, markup, sheet, options);
}

std::vector<Diagnostic> checkWebSheet(std::string_view css, std::string_view name) {
    std::string_view const text = withoutMark(css);
    std::vector<Problem> problems;
    web::Sheet::parse(text, problems);
    return diagnose(std::move(problems), {name, text});
}

}  // namespace galley
