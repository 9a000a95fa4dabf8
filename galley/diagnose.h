#pragma once

#include <string_view>
#include <vector>

#include "galley/check/Finding.h"
#include "galley/galley.h"

namespace galley {

/// A text that the core was given, and what it is called.
struct Source {
    std::string_view name;
    std::string_view text;
};

/// What was found in a source, with its places as a person names them. An element that is not
/// closed as it has to be has a note.
std::vector<Diagnostic> diagnose(Findings const& findings, Source const& source);

/// The error that a message of the core about a document is. Where no place is found there is none
/// but the line that the message has, if any.
Diagnostic diagnose(std::string_view message, Source const& document);

}  // namespace galley
