#pragma once

#include <string_view>
#include <vector>

#include "web/Problem.h"

namespace galley::web {

/// Documents are UTF-8: false, with an error, for one that begins as UTF-16 does; a warning for one
/// that declares another encoding, which has no effect.
bool checkEncoding(std::string_view markup, std::vector<Problem>& problems);

}  // namespace galley::web
