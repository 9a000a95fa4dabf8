#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "web/Problem.h"

/// How problems are worded.
namespace galley::web {

/// All of the text if it is short, else its beginning, up to a character, and "...". In one line.
std::string shortened(std::string_view text);

/// The text in quotes, not all of it where it is long.
std::string quoted(std::string_view text);

/// "; did you mean 'SUGGESTION'?", or `otherwise` where there is none.
std::string didYouMean(std::string_view suggestion, std::string_view otherwise);

/// Warnings that are told; a last one behind them says that there are more.
inline constexpr std::size_t s_mostWarnings = 10'000;

/// Appends a warning, or a note to one, while there are not too many problems.
void tell(std::vector<Problem>& problems, Problem problem);
void warn(std::vector<Problem>& problems, std::size_t offset, std::string message);

/// Appends an error. Always false, as what was tried is.
bool fail(std::vector<Problem>& problems, std::size_t offset, std::string message);

}  // namespace galley::web
