#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "web/DocumentInfo.h"
#include "web/Problem.h"
#include "web/css/MediaList.h"
#include "web/css/Sheet.h"
#include "web/flow/Row.h"

namespace galley::web {

/// Hands the rows of a document's page to `rows`. Appends what is wrong with the document, or has
/// no effect, in the order in which it is found; false after an error, when the rows are worth
/// nothing. What the document says about itself goes to `info`, if there is one. Throws
/// std::bad_alloc where there is no memory.
bool renderPage(std::string_view markup, std::span<Sheet const* const> sheets, Media const& media,
                RowSink& rows, std::vector<Problem>& problems, DocumentInfo* info = nullptr);

/// The same, but appends the elements of the document with their styles to `tree`: a row for each,
/// and for each text, indented by two columns for each element around it.
bool dumpTree(std::string_view markup, std::span<Sheet const* const> sheets, Media const& media,
              std::string& tree, std::vector<Problem>& problems);

}  // namespace galley::web
