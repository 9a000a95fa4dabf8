#pragma once

#include "base/String.h"

/// The names of the style properties that have an effect, ready to be looked up.
namespace CLI::XML::Property {

extern String const s_margin;
extern String const s_marginLeft;
extern String const s_marginRight;
extern String const s_marginTop;
extern String const s_marginBottom;
extern String const s_borderWidth;
extern String const s_borderLeftWidth;
extern String const s_borderRightWidth;
extern String const s_borderTopWidth;
extern String const s_borderBottomWidth;
extern String const s_padding;
extern String const s_paddingLeft;
extern String const s_paddingRight;
extern String const s_paddingTop;
extern String const s_paddingBottom;
extern String const s_backgroundColor;
extern String const s_borderColor;
extern String const s_borderStyle;
extern String const s_borderLeftStyle;
extern String const s_borderRightStyle;
extern String const s_borderTopStyle;
extern String const s_borderBottomStyle;
extern String const s_borderCornerStyle;
extern String const s_color;
extern String const s_fontStyle;
extern String const s_display;

}  // namespace CLI::XML::Property
