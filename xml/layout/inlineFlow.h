#pragma once

#include "xml/layout/InlineBox.h"
#include "xml/layout/LineBox.h"

namespace CLI::XML {

/// Inline flow: how the boxes of a line, and those of an inline element on it, stand side by side.

/// Lays out every box of the line.
void layoutLine(LineBox& line);
/// Sizes a word, or lays out every box of an inline element.
void layoutInline(InlineBox& box);

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
