#pragma once

#include "xml/css/StyleNode.h"

namespace CLI::XML {

/// Whether a box of the document may have a margin, border or padding that is negative, or so large
/// that a few of them reach the limits of geometry. False is certain; true is not.
///
/// Without such edges boxes never reach up over what stands before them, and a line that is too
/// wide stays so whatever follows.
bool mayHaveExtremeEdges(String const& xml, StyleList const& styles);

}  // namespace CLI::XML
