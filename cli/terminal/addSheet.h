#pragma once

#include "base/String.h"
#include "base/XCode.h"
#include "xml/css/StyleNode.h"

namespace CLI::XML {

/// Appends the rules of one more sheet to `styles`, none of them where the sheet is at fault.
XCode addSheet(StyleList& styles, String const& css);

}  // namespace CLI::XML
