#pragma once

#include "web/Style.h"
#include "web/css/ValueReader.h"

namespace galley::web {

/// Each reads a value of the property that it is named after.
bool readMarker(ValueReader& reader, Marker& marker);
bool readFontWeight(ValueReader& reader, FontWeight& weight);
bool readDecorationLine(ValueReader& reader, Decoration& decoration);
/// The style of one side of a border.
bool readLine(ValueReader& reader, Line& line);

}  // namespace galley::web
