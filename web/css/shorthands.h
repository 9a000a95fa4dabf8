#pragma once

#include "web/Style.h"
#include "web/css/ValueReader.h"

namespace galley::web {

/// Each reads a value of the property that it is named after, which sets several others. Those that
/// the value does not name get their initial values.
bool readMargins(ValueReader& reader, Edges<Length>& margin);
bool readPaddings(ValueReader& reader, Edges<Length>& padding);
bool readBorderStyle(ValueReader& reader, Edges<Border>& border);
bool readBorderWidth(ValueReader& reader, Edges<Border>& border);
bool readBorderColour(ValueReader& reader, Edges<Border>& border);
/// Of one side.
bool readBorder(ValueReader& reader, Border& border);
/// Of all sides.
bool readBorders(ValueReader& reader, Edges<Border>& border);
/// Whether any corner is rounded.
bool readBorderRadius(ValueReader& reader, bool& isRounded);
bool readBackground(ValueReader& reader, Colour& colour);
bool readTextDecoration(ValueReader& reader, Decoration& decoration);
bool readListStyle(ValueReader& reader, Style& style);

}  // namespace galley::web
