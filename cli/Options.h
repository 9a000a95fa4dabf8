#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/ExitStatus.h"
#include "galley/galley.h"

/// What a document is turned into.
enum class Product { Page, DocumentTree, BoxTree, StyleTree };

/// What the command line asks for.
struct Options {
    /// At least one; "-" is standard input.
    std::vector<std::string> documents;
    /// In the order given; their rules form one list.
    std::vector<std::string> sheets;
    /// In columns; without it the terminal's width counts.
    std::optional<unsigned> width;
    /// In columns.
    std::optional<unsigned> maxWidth;
    /// Without it that of each document.
    std::optional<galley::Dialect> dialect;
    Product product = Product::Page;
    galley::Format format = galley::Format::ansi;
    galley::Color color = galley::Color::automatic;
    unsigned ambiguousWidth = 1;
    bool hasAsciiFrames = false;
    galley::Links links = galley::Links::automatic;
    galley::Theme theme = galley::Theme::automatic;
    /// Control characters of the document and the sheets reach the terminal.
    bool isRaw = false;
    /// Documents and sheets are read and converted, but nothing is written.
    bool isCheck = false;
    /// With `isCheck`: a warning fails as an error does.
    bool isStrict = false;
    /// Pages go through a pager where standard output is a terminal.
    bool isPaged = false;
    /// What has changed is rendered again.
    bool isWatched = false;
    /// Empty for standard output, else a file for each document.
    std::vector<std::string> files;
    /// Holds all of `files`; empty where one file was named.
    std::string directory;
    /// Documents that are rendered at the same time.
    unsigned jobs = 1;
};

/// Reads the command line into `options`. A status means that the tool is done: help or version
/// was printed, or the usage error was.
std::optional<ExitStatus> parseCommandLine(int argc, char** argv, Options& options);
