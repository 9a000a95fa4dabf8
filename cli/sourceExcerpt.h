#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The number of the line that `position`, a byte or the end of `source`, is on.
std::size_t lineNumber(std::string_view source, std::size_t position);

/// That line behind its number, and below it a caret under the character at `position`, each ended
/// by "\n". A long line is cut around the position, between characters. Empty where the line is;
/// for the end of `source` the last line that is not.
std::string sourceExcerpt(std::string_view source, std::size_t position);
