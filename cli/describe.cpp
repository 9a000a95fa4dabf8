#include "cli/describe.h"

#include <CLI/CLI.hpp>

#include "cli/Options.h"
#include "cli/defineOptions.h"

char const* toolSummary() { return "show documents and style sheets as pages in a terminal"; }

char const* toolDescription() {
    return "Each document, XHTML or a fragment of it, is laid out in cells by its style sheets, as "
           "a "
           "browser would do it, and its page is printed: blocks, lists, tables, frames, colours, "
           "links.";
}

std::vector<OptionEntry> describeOptions() {
    CLI::App app;
    Options options;
    defineOptions(app, options);
    std::vector<OptionEntry> entries;
    for (CLI::Option const* option : app.get_options()) {
        bool const isFlag = option->get_items_expected_max() == 0;
        bool const isOption = option->nonpositional();
        std::vector<std::string> const& shortNames = option->get_snames();
        entries.push_back({isOption ? option->get_name() : option->get_name(true),
                           shortNames.empty() ? "" : "-" + shortNames.front(),
                           isFlag ? "" : option->get_option_text(), option->get_description(),
                           option->get_group() == "Options" ? "" : option->get_group(),
                           option->get_expected_max() > 1});
    }
    return entries;
}

std::vector<StatusEntry> describeStatuses() {
    return {
        {ExitStatus::Rendered, "everything was rendered, or passed --check"},
        {ExitStatus::InputAtFault, "a document or a sheet is at fault, or memory ran out"},
        {ExitStatus::Usage, "usage"},
        {ExitStatus::FileAtFault, "a file cannot be read or written"},
    };
}

char const* statusNote() {
    return "A document that fails is reported, and the others are rendered all the same; the "
           "status is that of the first failure. A sheet that fails ends the run, unless it is a "
           "--check. A pager or another reader of standard output that ends early is no failure, "
           "and neither q nor a signal that ends a --watch is one.";
}

std::vector<ExampleEntry> describeExamples() {
    return {
        {"galley -s report.css report.xml", "shows a page"},
        {"galley --watch -s report.css report.xml", "shows it as it is being written"},
        {"galley -s report.css -o report.svg report.xml", "makes a picture of it"},
        {"galley --check -s report.css *.xml", "says what is wrong with documents, and where"},
    };
}
