#include <algorithm>

#include "base/append.h"
#include "galley/SheetAccess.h"
#include "galley/check/find.h"
#include "galley/checkMarkup.h"
#include "galley/cleanSource.h"
#include "galley/convert.h"
#include "galley/dialect.h"
#include "galley/page.h"
#include "galley/webPage.h"
#include "xml/xml.h"

namespace galley {

namespace {

String cleaned(std::string_view source) {
    String text;
    CLI::XML::append(text, source);
    cleanSource(text, false);
    return text;
}

/// What `work` returns; where memory ends, the error that says so.
template <class Work>
std::vector<Diagnostic> guardedList(std::string_view name, Work const& work) {
    try {
        return work();
    } catch (std::bad_alloc const&) {
        return failure(name, "Out of memory");
    }
}

void add(std::vector<Diagnostic>& all, std::vector<Diagnostic> const& more) {
    all.insert(all.end(), more.begin(), more.end());
}

}  // namespace

std::vector<Diagnostic> checkMarkup(String& markup, Sheet const& sheet, Options const& options) {
    Result<Dialect> const dialect = dialectOf(markup.view(), options);
    if (!dialect) return dialect.errors();
    if (*dialect == Dialect::web) return checkWebMarkup(markup.view(), sheet, options);
    if (auto misfits = SheetAccess::misfits(sheet, Dialect::core); !misfits.empty()) return misfits;
    cleanSource(markup, options.raw);
    CLI::XML::StyleList const& rules = SheetAccess::rules(sheet, options.raw);
    Source const source{options.name, markup.view()};
    std::vector<Diagnostic> all = diagnose(findInDocument(source.text, rules), source);
    auto const isError = [](Diagnostic const& d) { return d.severity() == Severity::error; };
    if (std::any_of(all.begin(), all.end(), isError)) return all;
    // Whether the page is too large shows only when it is made.
    String page;
    auto const made = convert(page, markup, options, [&](String const& cleaned) {
        return CLI::XML::xmlToText(page, cleaned, rules, options.width);
    });
    add(all, made.errors());
    return all;
}

std::vector<Diagnostic> check(std::string_view markup, Sheet const& sheet, Options const& options) {
    return guardedList(options.name, [&] {
        std::vector<Diagnostic> all;
        for (auto const& text : SheetAccess::texts(sheet)) {
            add(all, checkSheet(text->css, text->name, text->dialect));
        }
        String text;
        CLI::XML::append(text, markup);
        add(all, checkMarkup(text, sheet, settle(options, stdout)));
        return all;
    });
}

std::vector<Diagnostic> checkSheet(std::string_view css, std::string_view name, Dialect dialect) {
    return guardedList(name, [&] {
        if (dialect == Dialect::web) return checkWebSheet(css, name);
        String const text = cleaned(css);
        return diagnose(findInSheet(text.view()), {name, text.view()});
    });
}

}  // namespace galley
