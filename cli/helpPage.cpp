#include "cli/helpPage.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "cli/describe.h"
#include "galley/terminal/terminal.h"

// The page is a document of the core. Margins stand above blocks alone, where none counts twice.

namespace {

// All in columns.
constexpr unsigned s_mostReadable = 100;
/// From here on there is room for descriptions beside the options.
constexpr unsigned s_wide = 72;
constexpr unsigned s_wideColumn = 26;
constexpr unsigned s_narrowColumn = 8;
constexpr unsigned s_indent = 2;
constexpr unsigned s_shortName = 4;

constexpr char const* s_sheet =
    "h1 { font-style: bold; }"
    "h2 { color: green; font-style: bold; margin-top: 1; }"
    "p  { padding-left: 2; }"
    "b  { color: cyan; }"
    "i  { color: cyan; font-style: normal; }";

/// What is typed as it stands, and what something else stands for.
std::string literal(std::string_view text) { return "<b>" + galley::escape(text) + "</b>"; }
std::string placeholder(std::string_view text) { return "<i>" + galley::escape(text) + "</i>"; }

std::string attribute(char const* name, int value) {
    return std::string(" ") + name + "=\"" + std::to_string(value) + "\"";
}

/// What an entry is about: `columns` wide, as markup.
struct Term {
    std::string markup;
    std::size_t columns;
    unsigned indent = s_indent;
};

/// A term, and its text from a column on: in the same row where the term leaves room.
std::string entry(Term const& term, std::string_view text, unsigned column) {
    bool const isBeside = term.indent + term.columns + 2 <= column;
    std::string markup = "<h3" + attribute("padding-left", static_cast<int>(term.indent));
    if (isBeside) markup += attribute("margin-bottom", -1);
    markup += ">" + term.markup + "</h3><p" + attribute("padding-left", static_cast<int>(column));
    // Its first row has counted; the lower margin makes up for that.
    if (isBeside) markup += attribute("margin-top", -1) + attribute("margin-bottom", 1);
    return markup + ">" + galley::escape(text) + "</p>";
}

Term term(OptionEntry const& option) {
    bool const isOption = option.name[0] == '-';
    if (!isOption) {
        return {placeholder(option.name) + option.argument,
                option.name.length() + option.argument.length()};
    }
    bool const hasShort = !option.shortName.empty();
    Term term = {hasShort ? literal(option.shortName) + ", " : "",
                 option.name.length() + (hasShort ? s_shortName : 0),
                 hasShort ? s_indent : s_indent + s_shortName};
    bool const isFlag = option.argument.empty();
    term.markup += literal(option.name + (isFlag ? "" : " "));
    if (isFlag) return term;
    term.markup += placeholder(option.argument);
    term.columns += 1 + option.argument.length();
    return term;
}

std::string options(unsigned column) {
    std::string markup;
    std::string group;
    for (OptionEntry const& option : describeOptions()) {
        if (option.group != group)
            markup += "</div><h2>" + galley::escape(option.group) + "</h2><div>";
        group = option.group;
        markup += entry(term(option), option.description + ".", column);
    }
    return "<div margin-top=\"1\">" + markup + "</div>";
}

std::string statuses() {
    std::string markup = "<h2>Exit status</h2><div>";
    for (StatusEntry const& status : describeStatuses()) {
        std::string const number = std::to_string(static_cast<int>(status.status));
        markup += entry({literal(number), number.length()}, status.meaning, s_indent + s_shortName);
    }
    return markup + "</div><p margin-top=\"1\">" + galley::escape(statusNote()) + "</p>";
}

std::string examples() {
    std::string markup = "<h2>Examples</h2><div>";
    for (ExampleEntry const& example : describeExamples()) {
        markup += entry({literal(example.command), std::string_view(example.command).length()},
                        example.effect, s_indent + s_shortName);
    }
    return markup + "</div>";
}

}  // namespace

unsigned helpWidth() { return std::min(galley::terminalWidth(stdout), s_mostReadable); }

std::string helpDocument(unsigned width) {
    return "<h1>galley - " + galley::escape(toolSummary()) + "</h1>" + "<h2>Usage</h2><p>" +
           literal("galley ") + "[" + placeholder("OPTION") + "]... [" + placeholder("FILE") +
           "]...</p><p margin-top=\"1\">" + galley::escape(toolDescription()) + "</p>" +
           options(width < s_wide ? s_narrowColumn : s_wideColumn) + statuses() + examples();
}

galley::Sheet helpSheet() {
    return galley::Sheet::parse(s_sheet, "<sheet>", galley::Dialect::core).value();
}
