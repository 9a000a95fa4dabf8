#pragma once

#include <string_view>
#include <vector>

#include "web/Problem.h"
#include "web/markup/DocumentHandler.h"

namespace galley::web {

/// Hands over the sheets of a document, which is read up to the last of them. Where it is at fault
/// reading ends without a word: whoever reads the document meets the fault again.
void readSheets(std::string_view markup, DocumentHandler& handler, std::vector<Problem>& problems);

}  // namespace galley::web
