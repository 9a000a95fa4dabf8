#include "cli/helpPage.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "cli/describe.h"
#include "galley/terminal/terminal.h"

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
    "h1 { margin: 0; text-decoration: none }"
    "h2 { margin: 1lh 0 0; color: green }"
    "p  { margin: 1lh 0 0 2ch }"
    ".usage { margin-top: 0 }"
    "b  { color: cyan }"
    "i  { color: cyan; font-style: normal }"
    "table { width: 100%; table-layout: fixed; border-spacing: 0 }"
    "span { white-space: nowrap }"
    "td { padding: 0; vertical-align: top }"
    ".options { margin-top: 1lh }";

/// What is typed as it stands, and what something else stands for.
std::string literal(std::string_view text) { return "<b>" + galley::escape(text) + "</b>"; }
std::string placeholder(std::string_view text) { return "<i>" + galley::escape(text) + "</i>"; }

/// Text in which no line breaks within what is typed: options, and tags.
std::string prose(std::string_view text) {
    std::string markup;
    while (!text.empty()) {
        std::string_view const word =
            text.substr(0, std::min(text.find(' '), text.length() - 1) + 1);
        bool const isTyped = word.starts_with('-') || word.starts_with('<');
        markup += isTyped ? "<span>" + galley::escape(word) + "</span>" : galley::escape(word);
        text.remove_prefix(word.length());
    }
    return markup;
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
    std::string markup = isBeside ? "<tr><td" : "<tr><td colspan=\"2\"";
    markup += " style=\"padding-left: " + std::to_string(std::min(term.indent, column)) + "\">" +
              term.markup + "</td>";
    if (!isBeside) markup += "</tr><tr><td/>";
    return markup + "<td>" + prose(text) + "</td></tr>";
}

/// Entries whose texts begin at a column.
std::string table(std::string const& entries, unsigned column) {
    return "<table><col width=\"" + std::to_string(column) + "\"/><col/>" + entries + "</table>";
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
    std::string entries;
    for (OptionEntry const& option : describeOptions()) {
        if (option.group != group) {
            markup += table(entries, column) + "<h2>" + galley::escape(option.group) + "</h2>";
            entries.clear();
        }
        group = option.group;
        entries += entry(term(option), option.description + ".", column);
    }
    return "<div class=\"options\">" + markup + table(entries, column) + "</div>";
}

std::string statuses(unsigned column) {
    std::string entries;
    for (StatusEntry const& status : describeStatuses()) {
        std::string const number = std::to_string(static_cast<int>(status.status));
        entries += entry({literal(number), number.length()}, status.meaning, column);
    }
    return "<h2>Exit status</h2>" + table(entries, column) + "<p>" + prose(statusNote()) + "</p>";
}

std::string examples(unsigned column) {
    std::string entries;
    for (ExampleEntry const& example : describeExamples()) {
        entries += entry({literal(example.command), std::string_view(example.command).length()},
                         example.effect, column);
    }
    return "<h2>Examples</h2>" + table(entries, column);
}

}  // namespace

unsigned helpWidth() { return std::min(galley::terminalWidth(stdout), s_mostReadable); }

std::string helpDocument(unsigned width) {
    // On a terminal of few columns the texts have most of them.
    unsigned const most = width / 3;
    unsigned const column = width < s_wide ? std::min(s_narrowColumn, most) : s_wideColumn;
    unsigned const shortColumn = std::min(s_indent + s_shortName, most);
    return "<h1>galley - " + galley::escape(toolSummary()) + "</h1>" +
           "<h2>Usage</h2><p class=\"usage\">" + literal("galley ") + "[" + placeholder("OPTION") +
           "]... [" + placeholder("FILE") + "]...</p><p>" + prose(toolDescription()) + "</p>" +
           options(column) + statuses(shortColumn) + examples(shortColumn);
}

galley::Sheet helpSheet() {
    return galley::Sheet::parse(s_sheet, "<sheet>", galley::Dialect::web).value();
}
