#pragma once

#include <string>

/// How messages name a file: "-" is "<stdin>".
std::string displayName(std::string const& file);

/// Prints "FILE: error: MESSAGE" on standard error; where the message begins with a line number
/// ("3: TEXT" or "Line 3: TEXT"), "FILE:3: error: TEXT".
void reportError(std::string const& file, std::string const& message);
