#include "web/css/properties.h"

#include <type_traits>

#include "web/css/colours.h"
#include "web/css/keywords.h"
#include "web/css/lengths.h"
#include "web/css/shorthands.h"
#include "web/css/valueWords.h"
#include "web/css/values.h"

namespace galley::web {

namespace {

template <class T>
struct ClassOf;

template <class T, class C>
struct ClassOf<T C::*> {
    using Type = C;
};

/// Whether the field is one of those that are inherited.
template <auto field, auto... part>
constexpr bool s_isInherited =
    std::is_same_v<typename ClassOf<decltype(field)>::Type, InheritedStyle>;

/// The property whose value is the field of a style that the members lead to.
template <auto readValue, auto... path>
constexpr Property property(std::string_view name) {
    return {name,
            [](ValueReader& reader, Style& style) { return readValue(reader, (style.*....*path)); },
            [](Style const& from, Style& to) { (to.*....*path) = (from.*....*path); },
            s_isInherited<path...>};
}

/// The same for one of the words in a table.
template <auto const& table, auto field>
constexpr Property ofWords(std::string_view name) {
    return {
        name,
        [](ValueReader& reader, Style& style) { return readKeyword<table>(reader, style.*field); },
        [](Style const& from, Style& to) { to.*field = from.*field; }, s_isInherited<field>};
}

/// The property that sets a part of each side of a border.
template <auto readValue, auto part>
constexpr Property ofAllSides(std::string_view name) {
    return {name, [](ValueReader& reader, Style& style) { return readValue(reader, style.border); },
            [](Style const& from, Style& to) {
                to.border.left.*part = from.border.left.*part;
                to.border.right.*part = from.border.right.*part;
                to.border.top.*part = from.border.top.*part;
                to.border.bottom.*part = from.border.bottom.*part;
            },
            false};
}

void copyListStyle(Style const& from, Style& to) {
    to.marker = from.marker;
    to.markerPosition = from.markerPosition;
}

void copyOverflowWrap(Style const& from, Style& to) {
    to.overflowWrap = from.overflowWrap;
    to.wrapsAsCell = from.wrapsAsCell;
}

bool readOverflowWrap(ValueReader& reader, Style& style) {
    return readKeyword<s_overflowWraps>(reader, style.overflowWrap);
}

using Lengths = Edges<Length>;
using Borders = Edges<Border>;

constexpr Property s_properties[] = {
    ofWords<s_displays, &Style::display>("display"),
    property<readMargins, &Style::margin>("margin"),
    property<readMargin<Axis::across>, &Style::margin, &Lengths::left>("margin-left"),
    property<readMargin<Axis::across>, &Style::margin, &Lengths::right>("margin-right"),
    property<readMargin<Axis::down>, &Style::margin, &Lengths::top>("margin-top"),
    property<readMargin<Axis::down>, &Style::margin, &Lengths::bottom>("margin-bottom"),
    property<readPaddings, &Style::padding>("padding"),
    property<readPadding<Axis::across>, &Style::padding, &Lengths::left>("padding-left"),
    property<readPadding<Axis::across>, &Style::padding, &Lengths::right>("padding-right"),
    property<readPadding<Axis::down>, &Style::padding, &Lengths::top>("padding-top"),
    property<readPadding<Axis::down>, &Style::padding, &Lengths::bottom>("padding-bottom"),
    property<readBorders, &Style::border>("border"),
    property<readBorder, &Style::border, &Borders::left>("border-left"),
    property<readBorder, &Style::border, &Borders::right>("border-right"),
    property<readBorder, &Style::border, &Borders::top>("border-top"),
    property<readBorder, &Style::border, &Borders::bottom>("border-bottom"),
    ofAllSides<readBorderStyle, &Border::line>("border-style"),
    property<readLine, &Style::border, &Borders::left, &Border::line>("border-left-style"),
    property<readLine, &Style::border, &Borders::right, &Border::line>("border-right-style"),
    property<readLine, &Style::border, &Borders::top, &Border::line>("border-top-style"),
    property<readLine, &Style::border, &Borders::bottom, &Border::line>("border-bottom-style"),
    ofAllSides<readBorderWidth, &Border::thickness>("border-width"),
    property<readThickness, &Style::border, &Borders::left, &Border::thickness>(
        "border-left-width"),
    property<readThickness, &Style::border, &Borders::right, &Border::thickness>(
        "border-right-width"),
    property<readThickness, &Style::border, &Borders::top, &Border::thickness>("border-top-width"),
    property<readThickness, &Style::border, &Borders::bottom, &Border::thickness>(
        "border-bottom-width"),
    ofAllSides<readBorderColour, &Border::colour>("border-color"),
    property<readColour, &Style::border, &Borders::left, &Border::colour>("border-left-color"),
    property<readColour, &Style::border, &Borders::right, &Border::colour>("border-right-color"),
    property<readColour, &Style::border, &Borders::top, &Border::colour>("border-top-color"),
    property<readColour, &Style::border, &Borders::bottom, &Border::colour>("border-bottom-color"),
    property<readBorderRadius, &Style::isRounded>("border-radius"),
    ofWords<s_borderCollapses, &Style::collapsesBorders>("border-collapse"),
    property<readBorderSpacing, &Style::borderSpacing>("border-spacing"),
    property<readWidth, &Style::width>("width"),
    property<readWidth, &Style::minWidth>("min-width"),
    property<readMaxWidth, &Style::maxWidth>("max-width"),
    ofWords<s_textAligns, &Style::textAlign>("text-align"),
    property<readTextIndent, &Style::textIndent>("text-indent"),
    ofWords<s_textTransforms, &Style::textTransform>("text-transform"),
    ofWords<s_verticalAligns, &Style::verticalAlign>("vertical-align"),
    ofWords<s_whiteSpaces, &Style::whiteSpace>("white-space"),
    {"overflow-wrap", readOverflowWrap, copyOverflowWrap, true},
    {"word-wrap", readOverflowWrap, copyOverflowWrap, true},
    ofWords<s_wordBreaks, &Style::wordBreak>("word-break"),
    property<readTabSize, &Style::tabSize>("tab-size"),
    {"list-style", readListStyle, copyListStyle, true},
    property<readMarker, &Style::marker>("list-style-type"),
    ofWords<s_markerPositions, &Style::markerPosition>("list-style-position"),
    ofWords<s_captionSides, &Style::captionSide>("caption-side"),
    ofWords<s_tableLayouts, &Style::hasFixedColumns>("table-layout"),
    property<readColour, &Style::colour>("color"),
    property<readBackground, &Style::background>("background"),
    property<readColour, &Style::background>("background-color"),
    property<readFontWeight, &Style::fontWeight>("font-weight"),
    ofWords<s_fontStyles, &Style::isItalic>("font-style"),
    property<readTextDecoration, &Style::decoration>("text-decoration"),
    property<readDecorationLine, &Style::decoration>("text-decoration-line"),
    ofWords<s_visibilities, &Style::visibility>("visibility"),
};

}  // namespace

std::span<Property const> allProperties() { return s_properties; }

Property const* findProperty(std::string_view name) { return findWord(s_properties, name); }

}  // namespace galley::web
