#include <string>

#include "cli/manual/OptionWords.h"
#include "cli/manual/manual.h"

// Requests of man(7): .TH title, .SH section, .SS subsection, .TP a term and its text. "\-" is the
// dash of an option, which a bare one need not be.

namespace {

constexpr char const* s_environment =
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
    ".BR less (1).\n"
    "Where it is unset, \\fB\\-\\-pager\\fR sets it to FRX: escape sequences take effect (R), and "
    "a\n"
    "page that fits on the screen is left there without a wait for a key (F, X). Where it is set, "
    "it\n"
    "stays as it is.\n";

constexpr char const* s_seeAlso =
    ".SH SEE ALSO\n"
    ".BR galley (7),\n"
    "on what documents and sheets have in them, and\n"
    ".BR galley\\-core (7),\n"
    "on those of the dialect core.\n";

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

std::string examples() {
    std::string text = ".SH EXAMPLES\n";
    for (ExampleEntry const& example : describeExamples()) {
        text += ".TP\n" + bold(example.command) + "\n" + literal(example.effect) + ".\n";
    }
    return text;
}

std::string head() {
    return ".TH GALLEY 1 \"\" \"galley " GALLEY_VERSION
           "\" \"User Commands\"\n"
           ".SH NAME\n"
           "galley \\- " +
           literal(toolSummary()) +
           "\n"
           ".SH SYNOPSIS\n"
           ".B galley\n"
           "[\\fIOPTION\\fR]... [\\fIFILE\\fR]...\n"
           ".SH DESCRIPTION\n" +
           literal(toolDescription()) + "\n";
}

}  // namespace

std::string makeManPage() {
    return head() + options() + statuses() + s_environment + examples() + s_seeAlso;
}
