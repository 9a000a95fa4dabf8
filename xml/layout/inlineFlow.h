#pragma once

#include "xml/layout/InlineBox.h"
#include "xml/layout/LineBox.h"

namespace CLI::XML {

/// Lays out a line of which `isPlainLine` holds as far as decides how to break it at `width`, which
/// is less than the largest: up to and with the first box, at every depth, that does not fit. The
/// boxes behind it are left as they are; breaking the line then moves them off it.
void layoutLineUpTo(LineBox& line, std::int32_t width);

/// Whether the layout of a line's boxes depends on nothing but the boxes themselves, and none of
/// them takes up less room than its content: words and inline elements, at every depth, without a
/// negative edge on the left or the right. Once such a line is too wide it stays so, whatever
/// follows.
bool isPlainLine(Box const& box);

}  // namespace CLI::XML
