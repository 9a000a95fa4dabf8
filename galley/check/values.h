#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "xml/css/properties.h"

namespace galley {

namespace Property = CLI::XML::Property;

/// What a value of a property says.
enum class Value : std::uint8_t {
    Cells,      ///< a number
    Color,      ///< a colour's name
    FontStyle,  ///< which flags are set
    Text,       ///< what is drawn
    Display,    ///< a kind of display; of an attribute only, a rule has no effect on it
};

/// A property and what its values say.
struct PropertyEntry {
    CLI::XML::StyleProperty property;  ///< Its name.
    Value value = Value::Cells;        ///< Of each value.
};

/// All of them.
inline constexpr PropertyEntry s_properties[] = {
    {Property::s_margin, Value::Cells},           {Property::s_marginLeft, Value::Cells},
    {Property::s_marginRight, Value::Cells},      {Property::s_marginTop, Value::Cells},
    {Property::s_marginBottom, Value::Cells},     {Property::s_borderWidth, Value::Cells},
    {Property::s_borderLeftWidth, Value::Cells},  {Property::s_borderRightWidth, Value::Cells},
    {Property::s_borderTopWidth, Value::Cells},   {Property::s_borderBottomWidth, Value::Cells},
    {Property::s_padding, Value::Cells},          {Property::s_paddingLeft, Value::Cells},
    {Property::s_paddingRight, Value::Cells},     {Property::s_paddingTop, Value::Cells},
    {Property::s_paddingBottom, Value::Cells},    {Property::s_backgroundColor, Value::Color},
    {Property::s_borderColor, Value::Color},      {Property::s_borderStyle, Value::Text},
    {Property::s_borderLeftStyle, Value::Text},   {Property::s_borderRightStyle, Value::Text},
    {Property::s_borderTopStyle, Value::Text},    {Property::s_borderBottomStyle, Value::Text},
    {Property::s_borderCornerStyle, Value::Text}, {Property::s_color, Value::Color},
    {Property::s_fontStyle, Value::FontStyle},    {Property::s_display, Value::Display},
};

/// What is to be said about a value of a property; empty where it does what it says.
std::string warningAbout(Value kind, std::string_view value);

}  // namespace galley
