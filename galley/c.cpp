#include "galley/c.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "galley/dialect.h"
#include "galley/galley.h"

struct galley_sheet {
    galley::Sheet sheet;
};

struct galley_report {
    struct Entry {
        galley::Diagnostic diagnostic;
        std::string text;
    };
    std::vector<Entry> entries;
};

namespace {

using galley::Diagnostic;

/// What `work` returns, `otherwise` where memory ends: no exception goes into a caller's C.
template <class Value, class Work>
Value orElse(Value otherwise, Work const& work) {
    try {
        return work();
    } catch (std::bad_alloc const&) {
        return otherwise;
    }
}

std::string_view view(char const* text, std::size_t length) {
    return length > 0 ? std::string_view(text, length) : std::string_view();
}

/// A copy that the caller frees; null where there is no memory.
char* copyOf(std::string_view text) {
    auto* const copy = static_cast<char*>(std::malloc(text.length() + 1));
    if (copy == nullptr) return nullptr;
    std::copy(text.begin(), text.end(), copy);
    copy[text.length()] = '\0';
    return copy;
}

galley_report* makeReport(std::vector<Diagnostic> const& diagnostics) {
    return orElse<galley_report*>(nullptr, [&] {
        galley_report report;
        for (Diagnostic const& diagnostic : diagnostics) {
            report.entries.push_back({diagnostic, diagnostic.text()});
        }
        return new galley_report(std::move(report));
    });
}

void tell(galley_report** report, std::vector<Diagnostic> const& errors) {
    if (report != nullptr) *report = errors.empty() ? nullptr : makeReport(errors);
}

/// One of an enumeration's values, the first for a number that is none.
template <class Choice>
Choice choice(int number, Choice last) {
    return number >= 0 && number <= static_cast<int>(last) ? static_cast<Choice>(number) : Choice{};
}

/// None for the default.
std::optional<galley::Dialect> dialectOf(int number) {
    if (number == GALLEY_DIALECT_CORE) return galley::Dialect::core;
    if (number == GALLEY_DIALECT_WEB) return galley::Dialect::web;
    return std::nullopt;
}

galley::Dialect sheetDialect(int number) {
    return dialectOf(number).value_or(galley::s_defaultDialect);
}

/// Of a caller's options the fields that it knows.
galley::Options optionsOf(galley_options const* given) {
    galley_options known = {};
    if (given != nullptr) std::memcpy(&known, given, std::min(given->size, sizeof known));
    galley::Options options;
    options.width = known.width;
    options.color = choice(known.color, galley::Color::colors24bit);
    options.ambiguousWidth = known.ambiguous_width;
    options.asciiFrames = known.ascii_frames != 0;
    options.links = choice(known.links, galley::Links::list);
    options.format = choice(known.format, galley::Format::svg);
    options.theme = choice(known.theme, galley::Theme::dark);
    options.dialect = dialectOf(known.dialect);
    options.standalone = known.standalone != 0;
    options.raw = known.raw != 0;
    if (known.name != nullptr) options.name = known.name;
    return options;
}

char const* nameOf(char const* sheet) { return sheet != nullptr ? sheet : "<sheet>"; }

galley::Sheet sheetOf(galley_sheet const* sheet) {
    return sheet != nullptr ? sheet->sheet : galley::Sheet();
}

Diagnostic const& at(galley_report const* report, std::size_t i) {
    return report->entries[i].diagnostic;
}

}  // namespace

galley_sheet* galley_sheet_new() { return new (std::nothrow) galley_sheet; }

int galley_sheet_add(galley_sheet* sheet, char const* css, std::size_t length, char const* name,
                     int dialect, galley_report** report) {
    tell(report, {});
    return orElse(0, [&] {
        auto const added =
            galley::Sheet::parse(view(css, length), nameOf(name), sheetDialect(dialect));
        tell(report, added.errors());
        if (added) sheet->sheet += *added;
        return added ? 1 : 0;
    });
}

void galley_sheet_free(galley_sheet* sheet) { delete sheet; }

char* galley_render(char const* markup, std::size_t length, galley_sheet const* sheet,
                    galley_options const* options, std::size_t* pageLength,
                    galley_report** report) {
    tell(report, {});
    return orElse<char*>(nullptr, [&]() -> char* {
        auto const page = galley::render(view(markup, length), sheetOf(sheet), optionsOf(options));
        tell(report, page.errors());
        if (!page) return nullptr;
        char* const copy = copyOf(*page);
        if (copy != nullptr && pageLength != nullptr) *pageLength = page->length();
        return copy;
    });
}

galley_report* galley_check(char const* markup, std::size_t length, galley_sheet const* sheet,
                            galley_options const* options) {
    return orElse<galley_report*>(nullptr, [&] {
        return makeReport(galley::check(view(markup, length), sheetOf(sheet), optionsOf(options)));
    });
}

galley_report* galley_check_sheet(char const* css, std::size_t length, char const* name,
                                  int dialect) {
    return orElse<galley_report*>(nullptr, [&] {
        return makeReport(
            galley::checkSheet(view(css, length), nameOf(name), sheetDialect(dialect)));
    });
}

char* galley_escape(char const* text, std::size_t length) {
    return orElse<char*>(nullptr, [&] { return copyOf(galley::escape(view(text, length))); });
}

char* galley_escape_attribute(char const* text, std::size_t length) {
    return orElse<char*>(nullptr,
                         [&] { return copyOf(galley::escapeAttribute(view(text, length))); });
}

std::size_t galley_report_count(galley_report const* report) {
    return report != nullptr ? report->entries.size() : 0;
}

int galley_report_severity(galley_report const* report, std::size_t i) {
    return at(report, i).severity() == galley::Severity::error ? GALLEY_ERROR : GALLEY_WARNING;
}

char const* galley_report_message(galley_report const* report, std::size_t i) {
    return at(report, i).message().c_str();
}

char const* galley_report_source(galley_report const* report, std::size_t i) {
    return at(report, i).source().c_str();
}

unsigned galley_report_line(galley_report const* report, std::size_t i) {
    return at(report, i).line();
}

unsigned galley_report_column(galley_report const* report, std::size_t i) {
    return at(report, i).column();
}

char const* galley_report_text(galley_report const* report, std::size_t i) {
    return report->entries[i].text.c_str();
}

void galley_free(char* text) { std::free(text); }

void galley_report_free(galley_report* report) { delete report; }
