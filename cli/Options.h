#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/ExitStatus.h"

/// What the command line asks for.
struct Options {
    enum class Output { Page, DocumentTree, BoxTree };

    /// "-" is standard input.
    std::string document = "-";
    /// In the order given; their rules form one list.
    std::vector<std::string> sheets;
    /// In columns; without it the terminal's width counts.
    std::optional<unsigned> width;
    Output output = Output::Page;
    /// Control characters of the document and the sheets reach the terminal.
    bool isRaw = false;
};

/// Reads the command line into `options`. A status means that the tool is done: help or version
/// was printed, or the usage error was.
std::optional<ExitStatus> parseCommandLine(int argc, char** argv, Options& options);
