#pragma once

#include <string>
#include <vector>

#include "cli/ExitStatus.h"
#include "galley/galley.h"

/// How messages name what is read: "-" is "<stdin>".
std::string inputName(std::string const& file);

/// An error that is about no place in its source, as a line: "SOURCE: error: MESSAGE". What
/// would not be seen, such as controls, is shown as "<U+001B>".
std::string errorText(std::string const& source, std::string const& message);

/// Prints such a line on standard error.
void reportError(std::string const& source, std::string const& message);

/// All that is said about a source.
std::string textOf(std::vector<galley::Diagnostic> const& diagnostics);

/// What a check that found this has to tell its caller. Warnings are faults where it is strict.
ExitStatus statusOf(std::vector<galley::Diagnostic> const& found, bool isStrict);
