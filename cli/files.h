#pragma once

#include <string>

#include "base/String.h"

/// Reads a file, or standard input for "-", into `content`. On failure reports it on standard
/// error and returns false.
bool readFile(std::string const& name, String& content);

/// Writes `text` to standard output, down to the device. On failure reports it on standard error
/// and returns false.
bool writeOutput(String const& text);
