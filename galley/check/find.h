#pragma once

#include <string_view>

#include "galley/check/Finding.h"
#include "xml/css/StyleNode.h"

namespace galley {

/// All that is wrong, or without effect, in a source of any bytes, less than 2 GiB of them, in its
/// order. There are errors if and only if the library refuses the source; the one that it names is
/// among them. Takes time in proportion to the source, whatever is in it, and a stack of any size.
/// Throws std::bad_alloc and nothing else.
///@{
/// Behind an error a sheet is read on from the next "}".
Findings findInSheet(std::string_view css);
/// A document is read up to the first error of its syntax; unknown elements, which may hold
/// anything then, and refused children are found up to there. What only shows when the page is
/// made is not looked for: whether it is too large. Of the rules it counts which inline elements
/// they keep apart from the words around.
Findings findInDocument(std::string_view markup, CLI::XML::StyleList const& rules = {});
///@}

}  // namespace galley
