#pragma once

#include "xml/parser/scan.h"

/// What ends a token of a style sheet. The sets differ from the markup's: a vertical tab is white
/// space here.
namespace CLI::XML::SheetBytes {

inline constexpr ByteSet s_whitespace(" \t\v\r\n");
inline constexpr ByteSet s_endOfSelector(" \t\v\r\n{");
inline constexpr ByteSet s_endOfProperty(" \t\v\r\n:}");
inline constexpr ByteSet s_endOfValue(" \t\v\r\n;");

}  // namespace CLI::XML::SheetBytes
