#include <string>

#include "cli/manual/OptionWords.h"
#include "cli/manual/manual.h"

// Requests of man(7): .TH title, .SH section, .SS subsection, .TP a term and its text. "\-" is the
// dash of an option, which a bare one need not be.

namespace {

constexpr char const* s_head =
    ".SH NAME\n"
    "galley \\- render a small XML/XHTML subset as text for a terminal\n"
    ".SH SYNOPSIS\n"
    ".B galley\n"
    "[\\fIOPTION\\fR]... [\\fIFILE\\fR]...\n"
    ".SH DESCRIPTION\n"
    "Each document is laid out in columns as blocks, lines of words and tables, styled by its\n"
    "attributes and by the sheets, and its page is printed.\n"
    "A document is a run of elements and words; a sheet is a list of rules, each a tag name and\n"
    "declarations in braces.\n";

constexpr char const* s_tail =
    ".SH ENVIRONMENT\n"
    ".TP\n.B COLUMNS\n"
    "Width of the page in columns where standard output is no terminal.\n"
    ".TP\n.B NO_COLOR\n"
    "Set and not empty, it keeps escape sequences from a terminal, unless\n"
    "\\fB\\-\\-color always\\fR asks for them.\n"
    ".TP\n.B PAGER\n"
    "What \\fB\\-\\-pager\\fR runs, by\n"
    ".BR sh (1).\n"
    ".TP\n.B LESS\n"
    "Options of\n"
    ".BR less (1);\n"
    "\\fB\\-\\-pager\\fR sets it to R where it is unset, so that escape sequences take effect.\n"
    ".SH EXAMPLES\n"
    ".TP\n.B galley \\-\\-css report.css report.xml\n"
    "shows a page.\n"
    ".TP\n.B galley \\-\\-watch \\-\\-css report.css report.xml\n"
    "shows it as it is being written.\n"
    ".TP\n.B galley \\-\\-css report.css \\-\\-format svg \\-\\-output report.svg report.xml\n"
    "makes a picture of it.\n"
    ".TP\n.B galley \\-\\-check \\-\\-css report.css *.xml\n"
    "says which documents fail, and where.\n"
    ".SH SEE ALSO\n"
    ".BR galley (7),\n"
    "on what documents and sheets have in them.\n";

/// `text` as it is, whatever requests it looks like.
std::string literal(std::string const& text) {
    std::string roff;
    for (char const c : text) {
        if (c == '-' || c == '\\') roff += '\\';
        roff += c;
    }
    bool const looksLikeRequest = !text.empty() && (text[0] == '.' || text[0] == '\'');
    return (looksLikeRequest ? "\\&" : "") + roff;
}

/// A font for one word.
std::string bold(std::string const& text) { return "\\fB" + literal(text) + "\\fR"; }
std::string italic(std::string const& text) { return "\\fI" + literal(text) + "\\fR"; }

std::string term(OptionEntry const& entry) {
    if (!isOption(entry)) return italic(entry.name) + entry.argument;
    std::string name = entry.shortName.empty() ? "" : bold(entry.shortName) + ", ";
    name += bold(entry.name);
    if (entry.argument.empty()) return name;
    bool const isChoice = !choiceWords(entry).empty();
    return name + " " + (isChoice ? bold(entry.argument) : italic(entry.argument));
}

std::string options() {
    std::string text = ".SH OPTIONS\n";
    std::string group;
    for (OptionEntry const& entry : describeOptions()) {
        if (entry.group != group) text += ".SS " + entry.group + "\n";
        group = entry.group;
        text += ".TP\n" + term(entry) + "\n" + literal(entry.description) + ".\n";
    }
    return text;
}

std::string statuses() {
    std::string text = ".SH EXIT STATUS\n";
    for (StatusEntry const& entry : describeStatuses()) {
        text += ".TP\n.B " + std::to_string(static_cast<int>(entry.status)) + "\n" +
                literal(entry.meaning) + ".\n";
    }
    return text + ".PP\n" + literal(statusNote()) + "\n";
}

}  // namespace

std::string makeManPage() {
    return ".TH GALLEY 1 \"\" \"galley " GALLEY_VERSION "\" \"User Commands\"\n" +
           std::string(s_head) + options() + statuses() + s_tail;
}
