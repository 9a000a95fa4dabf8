#pragma once

#include <string>

#include "base/String.h"
#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "galley/galley.h"

/// How documents are rendered: what the options say, and the surroundings where they say nothing.
struct Manner {
    Product product;
    /// Documents are checked, and make no text.
    bool isCheck;
    /// Of a check: warnings are faults, too.
    bool isStrict;
    /// Control characters shall reach the terminal, which they do in one dialect only.
    bool isRaw;
    /// Settled, but for the name of the document.
    galley::Options page;

    explicit Manner(Options const& options);
};

/// What has become of a document.
struct Rendering {
    ExitStatus status = ExitStatus::Rendered;
    /// Empty where it failed.
    String text;
    /// For standard error: why it failed, or what its check found.
    std::string error;
};

/// Reads and renders a document, "-" from standard input. Writes nothing, and throws nothing for
/// lack of memory. Any number of threads may do so with the same sheet.
Rendering render(std::string const& document, galley::Sheet const& sheet, Manner const& manner);

/// The same of a document that has been read.
Rendering renderRead(std::string const& document, String markup, galley::Sheet const& sheet,
                     Manner const& manner);
