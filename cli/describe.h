#pragma once

#include <string>
#include <vector>

#include "cli/ExitStatus.h"

// What `--help`, the manual page and the completions tell of the tool, in plain text.

/// An option of the command line, or the documents.
struct OptionEntry {
    /// With its dashes; "FILE" for the documents.
    std::string name;
    /// With its dash; empty where there is none.
    std::string shortName;
    /// What stands behind the name: "FILE", "DIR" or "N" for such a thing, else the words that may
    /// stand there with bars between them; empty for a flag.
    std::string argument;
    std::string description;
    /// The heading that it stands under; empty for those that are in every program.
    std::string group;
    bool mayRepeat;
};

/// What one value of the exit status means.
struct StatusEntry {
    ExitStatus status;
    char const* meaning;
};

/// A command line and what it does.
struct ExampleEntry {
    char const* command;
    char const* effect;
};

/// What the tool is, as what follows its name and a dash.
char const* toolSummary();
/// What it does, in whole sentences.
char const* toolDescription();
/// All options, in the order in which they are told of.
std::vector<OptionEntry> describeOptions();
std::vector<StatusEntry> describeStatuses();
/// What the table of statuses leaves open.
char const* statusNote();
std::vector<ExampleEntry> describeExamples();
