#pragma once

#include "web/Style.h"
#include "web/text/SegmentReader.h"

namespace galley::web {

/// How text of an element is read that begins a line.
TextOptions textOptions(Style const& style);

}  // namespace galley::web
