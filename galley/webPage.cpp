#include "galley/webPage.h"

#include <algorithm>
#include <utility>

#include "galley/Places.h"
#include "galley/SheetAccess.h"
#include "galley/failure.h"
#include "galley/formats/PageWriter.h"
#include "web/renderPage.h"

namespace galley {

namespace {

using web::Problem;

/// What was found, in the order of the source, with its places as a person names them.
std::vector<Diagnostic> diagnose(std::vector<Problem> problems, Source const& source) {
    std::stable_sort(problems.begin(), problems.end(), [](Problem const& a, Problem const& b) {
        return a.kind != Problem::Kind::note && b.kind != Problem::Kind::note &&
               a.offset < b.offset;
    });
    Places places(source.text);
    std::vector<Diagnostic> diagnostics;
    for (Problem& problem : problems) {
        std::size_t const position = std::min(problem.offset, source.text.size());
        auto const [line, column] = places.at(position);
        Severity severity = Severity::warning;
        if (problem.kind == Problem::Kind::error) severity = Severity::error;
        if (problem.kind == Problem::Kind::note) severity = Severity::note;
        Diagnostic told(severity, std::move(problem.message), std::string(source.name), line,
                        column, places.excerpt(position));
        if (severity == Severity::note && !diagnostics.empty()) {
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

web::Media mediaFor(Options const& options) {
    web::Media media;
    media.width = options.width;
    media.hasColour = options.color != Color::never && options.format != Format::plain;
    if (options.theme == Theme::light) media.scheme = web::Media::Scheme::light;
    if (options.theme == Theme::dark) media.scheme = web::Media::Scheme::dark;
    return media;
}

/// All that is said of a document; its page goes to `page` where there is no error.
std::vector<Diagnostic> convert(String& page, std::string_view markup, Sheet const& sheet,
                                Options const& options) {
    std::vector<Diagnostic> misfits = SheetAccess::misfits(sheet, Dialect::web);
    if (!misfits.empty()) return misfits;
    std::string_view const text = withoutMark(markup);
    std::vector<web::Sheet const*> const sheets = SheetAccess::webSheets(sheet);
    std::vector<Problem> problems;
    auto const writer = makePageWriter(page, options, {});
    if (web::renderPage(text, sheets, mediaFor(options), *writer, problems)) writer->finish();
    return diagnose(std::move(problems), {options.name, text});
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
        String text;
        std::vector<Diagnostic> errors = errorsOf(convert(text, markup, sheet, options));
        if (!errors.empty()) return Result<void>(std::move(errors));
        page = std::move(text);
        return {};
    });
}

std::vector<Diagnostic> checkWebMarkup(std::string_view markup, Sheet const& sheet,
                                       Options const& options) {
    String page;
    return convert(page, markup, sheet, options);
}

std::vector<Diagnostic> checkWebSheet(std::string_view css, std::string_view name) {
    std::string_view const text = withoutMark(css);
    std::vector<Problem> problems;
    web::Sheet::parse(text, problems);
    return diagnose(std::move(problems), {name, text});
}

}  // namespace galley
