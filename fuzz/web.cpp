// The dialect web, from a document to its page. An input is a width in decimal on the first line,
// then the markup up to a line "%%", then a style sheet.

#include <utf8proc.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/check.h"
#include "web/renderPage.h"
#include "web/text/Cluster.h"
#include "web/text/utf8.h"

namespace galley::web {
namespace {

using CLI::XML::require;

struct Input {
    unsigned width = 80;
    std::string_view markup;
    std::string_view sheet;

    explicit Input(std::string_view bytes) {
        auto const lineEnd = std::min(bytes.find('\n'), bytes.size());
        std::from_chars(bytes.data(), bytes.data() + lineEnd, width);
        width = std::clamp(width, 1U, 500U);
        bytes.remove_prefix(std::min(lineEnd + 1, bytes.size()));
        constexpr std::string_view s_separator = "\n%%\n";
        auto const markupEnd = std::min(bytes.find(s_separator), bytes.size());
        markup = bytes.substr(0, markupEnd);
        sheet = bytes.substr(std::min(markupEnd + s_separator.size(), bytes.size()));
    }
};

/// Columns of a page on which few lines are broken.
constexpr unsigned s_wide = 500;

constexpr char const* s_failed = "failed";

bool isControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

/// Whether a character joins the next one, though each may be of an element of its own, where it
/// has cells of its own: a prefix, half a flag, a part of a syllable.
bool joinsNext(char32_t c) {
    switch (utf8proc_get_property(static_cast<std::int32_t>(c))->boundclass) {
        case UTF8PROC_BOUNDCLASS_PREPEND:
        case UTF8PROC_BOUNDCLASS_REGIONAL_INDICATOR:
        case UTF8PROC_BOUNDCLASS_L:
        case UTF8PROC_BOUNDCLASS_V:
        case UTF8PROC_BOUNDCLASS_LV:
        case UTF8PROC_BOUNDCLASS_LVT:
            return true;
        default:
            return false;
    }
}

/// Looks at each row as it comes: what it says of itself must be so.
class Checker final : public RowSink {
public:
    std::string page;

    void take(Row const& row) override {
        std::string_view const text = row.text();
        require(findIllFormed(text) == std::string_view::npos, "a row is UTF-8");
        std::size_t behind = 0;
        int columns = 0;
        for (Row::Span const& span : row.spans()) {
            require(span.begin == behind && span.end > span.begin, "spans cover a row in order");
            behind = span.end;
            columns += countCells(row.textOf(span));
        }
        require(behind == text.size(), "spans cover a row");
        bool mayBeNarrower = false;
        for (std::size_t i = 0; i < text.size();) {
            CodePoint const c = decodeAt(text, i);
            require(!isControl(c.value), "no control is in a row");
            mayBeNarrower |= joinsNext(c.value);
            i += c.length;
        }
        require(columns == row.width() || (mayBeNarrower && columns < row.width()),
                "a row is as wide as it says");
        page.append(text).append("\n");
    }
};

/// The page, or that there is none.
std::string pageOf(Input const& input, Sheet const& sheet, unsigned width) {
    Sheet const* const sheets[] = {&sheet};
    Media media;
    media.width = width;
    Checker checker;
    std::vector<Problem> problems;
    bool const isMade = renderPage(input.markup, sheets, media, checker, problems);
    for (Problem const& problem : problems) {
        bool const isSomewhere = problem.offset != Problem::s_nowhere;
        require(!isSomewhere || problem.offset <= input.markup.size(),
                "a place in a document is in it");
    }
    bool const hasError = std::any_of(problems.begin(), problems.end(), [](Problem const& problem) {
        return problem.kind == Problem::Kind::error;
    });
    require(isMade != hasError, "a page is made unless there is an error");
    return isMade ? checker.page : s_failed;
}

/// Whether letters may stand in another order at another width, or be drawn more often: side by
/// side, in borders, or where the style asks for the width.
bool mayDependOnWidth(Input const& input) {
    std::string const all = std::string(input.markup) + std::string(input.sheet);
    // An escape or a reference may stand for any of the others.
    constexpr std::string_view s_reasons[] = {"<t",     "<caption", "<col", "display",
                                              "border", "@media",   "\\",   "&"};
    return std::any_of(std::begin(s_reasons), std::end(s_reasons), [&all](std::string_view reason) {
        return all.find(reason) != std::string::npos;
    });
}

std::string lettersOf(std::string page) {
    std::erase_if(page, [](char c) { return !(c >= 'a' && c <= 'z') && !(c >= 'A' && c <= 'Z'); });
    return page;
}

void run(std::string_view bytes) {
    Input const input(bytes);
    std::vector<Problem> ofSheet;
    Sheet const sheet = Sheet::parse(input.sheet, ofSheet);
    for (Problem const& problem : ofSheet) {
        require(problem.offset <= input.sheet.size(), "a place in a sheet is in it");
    }
    std::string const page = pageOf(input, sheet, input.width);
    require(page == pageOf(input, sheet, input.width), "the same input twice gives the same page");
    if (page == s_failed || mayDependOnWidth(input)) return;
    std::string const wide = pageOf(input, sheet, s_wide);
    require(wide == s_failed || lettersOf(page) == lettersOf(wide),
            "the letters are in order at every width");
}

}  // namespace
}  // namespace galley::web

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes as characters
    galley::web::run({reinterpret_cast<char const*>(data), size});
    return 0;
}
