#include "xml/css/properties.h"

namespace CLI::XML::Property {

String const s_margin("margin");
String const s_marginLeft("margin-left");
String const s_marginRight("margin-right");
String const s_marginTop("margin-top");
String const s_marginBottom("margin-bottom");
String const s_borderWidth("border-width");
String const s_borderLeftWidth("border-left-width");
String const s_borderRightWidth("border-right-width");
String const s_borderTopWidth("border-top-width");
String const s_borderBottomWidth("border-bottom-width");
String const s_padding("padding");
String const s_paddingLeft("padding-left");
String const s_paddingRight("padding-right");
String const s_paddingTop("padding-top");
String const s_paddingBottom("padding-bottom");
String const s_backgroundColor("background-color");
String const s_borderColor("border-color");
String const s_borderStyle("border-style");
String const s_borderLeftStyle("border-left-style");
String const s_borderRightStyle("border-right-style");
String const s_borderTopStyle("border-top-style");
String const s_borderBottomStyle("border-bottom-style");
String const s_borderCornerStyle("border-corner-style");
String const s_color("color");
String const s_fontStyle("font-style");
String const s_display("display");

}  // namespace CLI::XML::Property
