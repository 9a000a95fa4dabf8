#pragma once

#include <cstdint>
#include <string_view>

#include "../../base/StringHash.h"

namespace CLI::XML {

/// The name of a style property, ready to be looked up.
struct StyleProperty {
    std::string_view name;  ///< As sheets and attributes write it.
    std::uint32_t hash;     ///< What `StringHash` makes of the name.

    /// `text` must outlive the property.
    constexpr explicit StyleProperty(std::string_view text)
        : name(text), hash(StringHash()(text)) {}
};

/// The style properties that have an effect.
namespace Property {

/// Of the same name as the constant, in the spelling of the sheets.
///@{
inline constexpr StyleProperty s_margin("margin");
inline constexpr StyleProperty s_marginLeft("margin-left");
inline constexpr StyleProperty s_marginRight("margin-right");
inline constexpr StyleProperty s_marginTop("margin-top");
inline constexpr StyleProperty s_marginBottom("margin-bottom");
inline constexpr StyleProperty s_borderWidth("border-width");
inline constexpr StyleProperty s_borderLeftWidth("border-left-width");
inline constexpr StyleProperty s_borderRightWidth("border-right-width");
inline constexpr StyleProperty s_borderTopWidth("border-top-width");
inline constexpr StyleProperty s_borderBottomWidth("border-bottom-width");
inline constexpr StyleProperty s_padding("padding");
inline constexpr StyleProperty s_paddingLeft("padding-left");
inline constexpr StyleProperty s_paddingRight("padding-right");
inline constexpr StyleProperty s_paddingTop("padding-top");
inline constexpr StyleProperty s_paddingBottom("padding-bottom");
inline constexpr StyleProperty s_backgroundColor("background-color");
inline constexpr StyleProperty s_borderColor("border-color");
inline constexpr StyleProperty s_borderStyle("border-style");
inline constexpr StyleProperty s_borderLeftStyle("border-left-style");
inline constexpr StyleProperty s_borderRightStyle("border-right-style");
inline constexpr StyleProperty s_borderTopStyle("border-top-style");
inline constexpr StyleProperty s_borderBottomStyle("border-bottom-style");
inline constexpr StyleProperty s_borderCornerStyle("border-corner-style");
inline constexpr StyleProperty s_color("color");
inline constexpr StyleProperty s_fontStyle("font-style");
inline constexpr StyleProperty s_display("display");
///@}

}  // namespace Property

}  // namespace CLI::XML
