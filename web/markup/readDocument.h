#pragma once

#include <string_view>
#include <vector>

#include "web/Problem.h"
#include "web/markup/DocumentHandler.h"

namespace galley::web {

/// Reads a document, or a fragment of one, and tells the handler what is in it. Appends what is
/// wrong with it; at an error, to which there may be a note, it stops and returns false.
///
/// It takes time in proportion to the document. What it needs to remember are its open elements, at
/// most 512, text between two tags that is not in one piece, and a bit for each element if the
/// handler asks for the last child. The document must stay as it is meanwhile.
bool readDocument(std::string_view markup, DocumentHandler& handler,
                  std::vector<Problem>& problems);

}  // namespace galley::web
