#pragma once

#include "../../base/XCode.h"
#include "../../base/export.h"
#include "StyleNode.h"

namespace CLI::XML {

/// Empties `out`, then appends the rules of a style sheet to it in text order. A failure names
/// the line and what was expected there ("Line 3: Expecting ';'"); the rules completed before it
/// stay in `out`. `css` must not belong to a rule in `out`.
GALLEY_EXPORT XCode parseCss(ZRList<ZRLWPtr<StyleNode>>& out, String const& css);

}  // namespace CLI::XML
