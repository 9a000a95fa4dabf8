#pragma once

#include <span>
#include <vector>

#include "web/Problem.h"
#include "web/css/Selector.h"
#include "web/css/Token.h"

namespace galley::web {

/// Reads the selectors before the braces of a rule. None of them stands where one is no selector;
/// one of a kind that is not known here is left out alone. Both are warned about. `end` is where
/// the braces begin in the source.
std::vector<Selector> parseSelectors(std::span<Token const> tokens, std::size_t end,
                                     std::vector<Problem>& problems);

/// `odd`, `even`, or `an+b` as its tokens say it; false where they say something else.
bool parseNth(std::span<Token const> tokens, Nth& nth);

}  // namespace galley::web
