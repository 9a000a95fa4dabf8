#pragma once

#include <vector>

#include "web/css/Token.h"

namespace galley::web {

/// Sets the extents of blocks. What closes none that is open means nothing.
void pairBlocks(std::vector<Token>& tokens);

}  // namespace galley::web
