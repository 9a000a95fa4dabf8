#pragma once

#include "web/Style.h"
#include "web/css/ValueReader.h"

namespace galley::web {

/// Each reads a value of the property that it is named after, a word or a string.
bool readDisplay(ValueReader& reader, Display& display);
bool readTextAlign(ValueReader& reader, TextAlign& align);
bool readTextTransform(ValueReader& reader, TextTransform& transform);
bool readVerticalAlign(ValueReader& reader, VerticalAlign& align);
bool readWhiteSpace(ValueReader& reader, WhiteSpace& whiteSpace);
bool readOverflowWrap(ValueReader& reader, OverflowWrap& wrap);
bool readWordBreak(ValueReader& reader, WordBreak& wordBreak);
bool readMarker(ValueReader& reader, Marker& marker);
bool readMarkerPosition(ValueReader& reader, MarkerPosition& position);
bool readCaptionSide(ValueReader& reader, CaptionSide& side);
bool readVisibility(ValueReader& reader, Visibility& visibility);
bool readBorderCollapse(ValueReader& reader, bool& collapses);
bool readTableLayout(ValueReader& reader, bool& isFixed);
bool readFontWeight(ValueReader& reader, FontWeight& weight);
bool readFontStyle(ValueReader& reader, bool& isItalic);
bool readDecorationLine(ValueReader& reader, Decoration& decoration);
/// The style of one side of a border.
bool readLine(ValueReader& reader, Line& line);

}  // namespace galley::web
