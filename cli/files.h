#pragma once

#include <string>
#include <string_view>

#include "base/String.h"

// Both return 0, or the `errno` that tells why they failed.

/// Reads a file, or standard input for "-", into `content`.
int readFile(std::string const& name, String& content);

/// Writes `text` to standard output, down to the device.
int writeOutput(std::string_view text);
