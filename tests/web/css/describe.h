#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "web/Style.h"

namespace galley::web {

/// What a field of a style says, in few words.
inline std::string textOf(Length const& length) {
    if (length.kind == Length::Kind::automatic) return "auto";
    if (length.kind == Length::Kind::cells) return std::to_string(length.value);
    return std::to_string(length.value) + "m%";
}

inline std::string textOf(Colour const& colour) {
    char text[16] = "";
    switch (colour.kind) {
        case Colour::Kind::terminal:
            return "terminal";
        case Colour::Kind::transparent:
            return "transparent";
        case Colour::Kind::palette:
            return "palette " + std::to_string(colour.red);
        case Colour::Kind::rgb:
            std::snprintf(text, sizeof text, "#%02x%02x%02x", colour.red, colour.green,
                          colour.blue);
    }
    return text;
}

inline std::string textOf(Border const& border) {
    static constexpr char const* s_kinds[] = {"none",   "hidden", "solid", "double",
                                              "dashed", "dotted", "text"};
    static constexpr char const* s_thicknesses[] = {"none", "thin", "thick"};
    return std::string(s_kinds[static_cast<int>(border.line.kind)]) + border.line.text + "/" +
           s_thicknesses[static_cast<int>(border.thickness)] + "/" + textOf(border.colour);
}

inline std::string textOf(Marker const& marker) {
    return std::to_string(static_cast<int>(marker.kind)) + marker.text;
}

inline std::string textOf(BorderSpacing const& spacing) {
    return std::to_string(spacing.across) + " " + std::to_string(spacing.down);
}

inline std::string textOf(Decoration const& decoration) {
    return std::string(decoration.isUnderlined ? "underlined" : "") +
           (decoration.isStruckThrough ? "struck" : "");
}

inline std::string textOf(FontWeight const& weight) { return std::to_string(weight.value); }

template <class T>
std::string textOf(T const& value) {
    return std::to_string(static_cast<int>(value));
}

/// "NAME=VALUE;" for each field that has not its initial value, by order of declaration. Words of
/// CSS are numbers, in the order of their enumeration.
inline std::string describe(Style const& style) {
    Style initial;
    for (Border* const side : {&initial.border.left, &initial.border.right, &initial.border.top,
                               &initial.border.bottom}) {
        side->colour = style.colour;
        side->colour.isCurrent = true;
    }
    std::string text;
    auto const add = [&text](std::string_view name, auto const& value, auto const& otherwise) {
        if (value == otherwise) return;
        text.append(name).append("=").append(textOf(value)).append(";");
    };
    auto const addEdges = [&](std::string_view name, auto const& edges, auto const& otherwise) {
        std::string const start(name);
        add(start + "-left", edges.left, otherwise.left);
        add(start + "-right", edges.right, otherwise.right);
        add(start + "-top", edges.top, otherwise.top);
        add(start + "-bottom", edges.bottom, otherwise.bottom);
    };
    add("colour", style.colour, initial.colour);
    add("weight", style.fontWeight, initial.fontWeight);
    add("italic", style.isItalic, initial.isItalic);
    add("align", style.textAlign, initial.textAlign);
    add("transform", style.textTransform, initial.textTransform);
    add("indent", style.textIndent, initial.textIndent);
    add("white-space", style.whiteSpace, initial.whiteSpace);
    add("wrap", style.overflowWrap, initial.overflowWrap);
    add("word-break", style.wordBreak, initial.wordBreak);
    add("tab", style.tabSize, initial.tabSize);
    add("marker", style.marker, initial.marker);
    add("marker-position", style.markerPosition, initial.markerPosition);
    add("caption-side", style.captionSide, initial.captionSide);
    add("visibility", style.visibility, initial.visibility);
    add("collapse", style.collapsesBorders, initial.collapsesBorders);
    add("spacing", style.borderSpacing, initial.borderSpacing);
    add("drawn", style.drawn, initial.drawn);
    add("display", style.display, initial.display);
    addEdges("margin", style.margin, initial.margin);
    addEdges("padding", style.padding, initial.padding);
    addEdges("border", style.border, initial.border);
    add("rounded", style.isRounded, initial.isRounded);
    add("width", style.width, initial.width);
    add("min-width", style.minWidth, initial.minWidth);
    add("max-width", style.maxWidth, initial.maxWidth);
    add("vertical", style.verticalAlign, initial.verticalAlign);
    add("fixed", style.hasFixedColumns, initial.hasFixedColumns);
    add("background", style.background, initial.background);
    return text;
}

}  // namespace galley::web
