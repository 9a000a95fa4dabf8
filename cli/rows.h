#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Rows of a terminal, which begins each in its first column.

std::vector<std::string> splitRows(std::string_view text);

/// The index behind what fits into `width` columns of a row from `i` on. Escape sequences take
/// none, and a tab what is left up to the next stop.
std::size_t endOfRow(std::string_view row, std::size_t i, std::size_t width);

/// The same as `splitRows`, but goes on in a further row where a character finds no room.
std::vector<std::string> breakRows(std::string_view text, std::size_t width);
