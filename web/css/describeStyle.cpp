#include "web/css/describeStyle.h"

#include <cstdio>
#include <string_view>

#include "web/css/colourNames.h"
#include "web/css/valueWords.h"
#include "web/text/visible.h"

namespace galley::web {

namespace {

/// The first word of a table that stands for a value.
template <auto const& table, class T>
std::string wordOf(T value) {
    for (auto const& row : table) {
        if (row.value == value) return std::string(row.name);
    }
    return {};
}

std::string quotedText(std::string_view text) {
    return std::string("\"").append(visible(text)).append("\"");
}

std::string thousandths(std::int32_t value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value / 1000.0);
    return text;
}

std::string lengthText(Length length, std::string_view unit) {
    if (length.kind == Length::Kind::automatic) return "auto";
    if (length.kind == Length::Kind::percent) return thousandths(length.value) + "%";
    if (length.value == 0) return "0";
    return std::to_string(length.value).append(unit);
}

std::string acrossText(Length length) { return lengthText(length, "ch"); }

std::string mostText(Length length) {
    return length.kind == Length::Kind::automatic ? "none" : acrossText(length);
}

/// As short as the shorthand allows: sides that are not told are as the ones before them.
std::string edgesText(Edges<Length> const& edges) {
    std::string const top = lengthText(edges.top, "lh");
    std::string const bottom = lengthText(edges.bottom, "lh");
    std::string const left = acrossText(edges.left);
    std::string const right = acrossText(edges.right);
    if (left != right) return top + " " + right + " " + bottom + " " + left;
    if (top != bottom) return top + " " + right + " " + bottom;
    return top == right ? top : top + " " + right;
}

std::string colourText(Colour colour) {
    if (colour.kind == Colour::Kind::terminal) return "canvastext";
    if (colour.kind != Colour::Kind::rgb) {
        colour.isCurrent = false;
        return wordOf<s_colourNames>(colour);
    }
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", colour.red, colour.green, colour.blue);
    return text;
}

std::string backgroundText(Colour colour) {
    return colour.kind == Colour::Kind::terminal ? "canvas" : colourText(colour);
}

std::string borderText(Border const& border) {
    if (border.line.kind == LineKind::hidden) return "hidden";
    if (!border.isThere()) return "none";
    std::string text = border.thickness == Thickness::thick ? "thick " : "";
    bool const isText = border.line.kind == LineKind::text;
    text += isText ? quotedText(border.line.text) : wordOf<s_lineKinds>(border.line.kind);
    return border.colour.isCurrent ? text : text + " " + colourText(border.colour);
}

bool areAlike(Edges<Border> const& border) {
    std::string const text = borderText(border.top);
    return borderText(border.right) == text && borderText(border.bottom) == text &&
           borderText(border.left) == text;
}

/// Empty where sides have to be told one by one.
std::string allSidesText(Edges<Border> const& border) {
    return areAlike(border) ? borderText(border.top) : "";
}

/// Empty where all are told at once.
std::string sideText(Edges<Border> const& border, Border const& side) {
    return areAlike(border) ? "" : borderText(side);
}

std::string markerText(Marker const& marker) {
    return marker.kind == MarkerKind::text ? quotedText(marker.text)
                                           : wordOf<s_markerKinds>(marker.kind);
}

std::string weightText(FontWeight weight) {
    if (weight.value == 400) return "normal";
    return weight.value == 700 ? "bold" : std::to_string(weight.value);
}

std::string decorationText(Decoration decoration) {
    std::string text = decoration.isUnderlined ? "underline" : "";
    if (decoration.isStruckThrough) text += text.empty() ? "line-through" : " line-through";
    return text.empty() ? "none" : text;
}

std::string spacingText(BorderSpacing spacing) {
    Length const across = {.value = spacing.across};
    Length const down = {.value = spacing.down};
    return acrossText(across) + " " + lengthText(down, "lh");
}

struct Row {
    std::string_view name;
    std::string (*text)(Style const& style);
    bool isInherited = false;
};

/// In the order in which a person would ask: what it is, where it stands, how it looks.
constexpr Row s_rows[] = {
    {"display", [](Style const& s) { return wordOf<s_displays>(s.display); }},
    {"visibility", [](Style const& s) { return wordOf<s_visibilities>(s.visibility); }, true},
    {"margin", [](Style const& s) { return edgesText(s.margin); }},
    {"padding", [](Style const& s) { return edgesText(s.padding); }},
    {"border", [](Style const& s) { return allSidesText(s.border); }},
    {"border-top", [](Style const& s) { return sideText(s.border, s.border.top); }},
    {"border-right", [](Style const& s) { return sideText(s.border, s.border.right); }},
    {"border-bottom", [](Style const& s) { return sideText(s.border, s.border.bottom); }},
    {"border-left", [](Style const& s) { return sideText(s.border, s.border.left); }},
    {"border-radius", [](Style const& s) { return std::string(s.isRounded ? "1ch" : "0"); }},
    {"width", [](Style const& s) { return acrossText(s.width); }},
    {"min-width", [](Style const& s) { return acrossText(s.minWidth); }},
    {"max-width", [](Style const& s) { return mostText(s.maxWidth); }},
    {"table-layout", [](Style const& s) { return wordOf<s_tableLayouts>(s.hasFixedColumns); }},
    {"border-collapse",
     [](Style const& s) { return wordOf<s_borderCollapses>(s.collapsesBorders); }, true},
    {"border-spacing", [](Style const& s) { return spacingText(s.borderSpacing); }, true},
    {"caption-side", [](Style const& s) { return wordOf<s_captionSides>(s.captionSide); }, true},
    {"vertical-align", [](Style const& s) { return wordOf<s_verticalAligns>(s.verticalAlign); }},
    {"list-style-type", [](Style const& s) { return markerText(s.marker); }, true},
    {"list-style-position",
     [](Style const& s) { return wordOf<s_markerPositions>(s.markerPosition); }, true},
    {"text-align", [](Style const& s) { return wordOf<s_textAligns>(s.textAlign); }, true},
    {"text-indent", [](Style const& s) { return acrossText(s.textIndent); }, true},
    {"text-transform", [](Style const& s) { return wordOf<s_textTransforms>(s.textTransform); },
     true},
    {"white-space", [](Style const& s) { return wordOf<s_whiteSpaces>(s.whiteSpace); }, true},
    {"overflow-wrap", [](Style const& s) { return wordOf<s_overflowWraps>(s.overflowWrap); }, true},
    {"word-break", [](Style const& s) { return wordOf<s_wordBreaks>(s.wordBreak); }, true},
    {"tab-size", [](Style const& s) { return std::to_string(s.tabSize); }, true},
    {"color", [](Style const& s) { return colourText(s.colour); }, true},
    {"background-color", [](Style const& s) { return backgroundText(s.background); }},
    {"font-weight", [](Style const& s) { return weightText(s.fontWeight); }, true},
    {"font-style", [](Style const& s) { return wordOf<s_fontStyles>(s.isItalic); }, true},
    {"text-decoration", [](Style const& s) { return decorationText(s.decoration); }},
};

}  // namespace

std::string describeStyle(Style const& style, Style const* parent) {
    static Style const s_initial;
    std::string all;
    for (Row const& row : s_rows) {
        std::string const value = row.text(style);
        Style const& otherwise = row.isInherited && parent != nullptr ? *parent : s_initial;
        if (value.empty() || value == row.text(otherwise)) continue;
        all.append(row.name).append(": ").append(value).append("; ");
    }
    return all;
}

}  // namespace galley::web
