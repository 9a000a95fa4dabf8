#pragma once

#include <string>

#include "base/String.h"
#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "xml/css/StyleNode.h"

/// How documents are rendered: what the options say, and the surroundings where they say nothing.
struct Manner {
    /// In columns.
    unsigned width;
    Product product;
    /// Of pages.
    Format format;
    /// Control characters of documents stay.
    bool isRaw;

    explicit Manner(Options const& options);
};

/// What has become of a document.
struct Rendering {
    ExitStatus status = ExitStatus::Rendered;
    /// Empty where it failed.
    String text;
    /// For standard error; empty unless it failed.
    std::string error;
};

/// Reads and renders a document, "-" from standard input. Writes nothing, and throws nothing for
/// lack of memory. Any number of threads may do so with the same rules.
Rendering render(std::string const& document, CLI::XML::StyleList const& styles,
                 Manner const& manner);
