#pragma once

#include <cstdint>
#include <string>

#include "web/Colour.h"

namespace galley::web {

/// Lengths are whole cells of their axis: 8 CSS pixels across, 16 down.
struct Length {
    enum class Kind : std::uint8_t {
        /// `auto`, and `none` of a maximum.
        automatic,
        cells,
        /// Of the width of the containing block, in CSS pixels, also for what goes down.
        percent,
    };

    Kind kind = Kind::cells;
    /// Cells, or thousandths of a per cent.
    std::int32_t value = 0;

    static constexpr Length automatic() { return {Kind::automatic, 0}; }

    bool operator==(Length const&) const = default;
};

template <class T>
struct Edges {
    T left = {};
    T right = {};
    T top = {};
    T bottom = {};

    bool operator==(Edges const&) const = default;
};

/// How the cells are used of what a page is shown on. No element has it otherwise than its parent.
struct CellRules {
    /// East Asian ambiguous characters have two cells.
    bool isAmbiguousWide = false;
    /// Borders are drawn with characters of ASCII.
    bool hasAsciiFrames = false;

    bool operator==(CellRules const&) const = default;
};

/// The first two are no line.
enum class LineKind : std::uint8_t { none, hidden, solid, twofold, dashed, dotted, text };
enum class Thickness : std::uint8_t { none, thin, thick };

/// How the line of a border is drawn.
struct Line {
    LineKind kind = LineKind::none;
    /// Repeated along the border where the kind is `text`, else empty. Without controls, and
    /// well-formed.
    std::string text;

    bool operator==(Line const&) const = default;
};

struct Border {
    Line line;
    Thickness thickness = Thickness::thin;
    Colour colour = Colour::current();
    CellRules cells;

    /// Whether it takes a cell.
    bool isThere() const { return line.kind > LineKind::hidden && thickness != Thickness::none; }
    bool operator==(Border const&) const = default;
};

enum class Display : std::uint8_t {
    none,
    block,
    inlined,
    listItem,
    table,
    headerGroup,
    rowGroup,
    footerGroup,
    row,
    cell,
    columnGroup,
    column,
    caption,
};
enum class TextAlign : std::uint8_t { left, right, centre, justify };
enum class TextTransform : std::uint8_t { none, uppercase, lowercase, capitalize };
enum class VerticalAlign : std::uint8_t { baseline, top, middle, bottom };
enum class WhiteSpace : std::uint8_t { normal, nowrap, pre, preWrap, preLine };
enum class OverflowWrap : std::uint8_t { normal, anywhere, breakWord };
enum class WordBreak : std::uint8_t { normal, keepAll, breakAll };
enum class MarkerPosition : std::uint8_t { outside, inside };
enum class CaptionSide : std::uint8_t { top, bottom };
enum class Visibility : std::uint8_t { visible, hidden, collapse };

enum class MarkerKind : std::uint8_t {
    none,
    disc,
    circle,
    square,
    decimal,
    decimalLeadingZero,
    lowerAlpha,
    upperAlpha,
    lowerRoman,
    upperRoman,
    lowerGreek,
    text,
};

struct Marker {
    MarkerKind kind = MarkerKind::disc;
    /// The marker where the kind is `text`, else empty. Without controls, and well-formed.
    std::string text;

    bool operator==(Marker const&) const = default;
};

/// From 1 to 1000.
struct FontWeight {
    std::uint16_t value = 400;

    /// Declared only, for what depends on the parent's.
    static constexpr FontWeight lighter() { return {0}; }
    static constexpr FontWeight bolder() { return {1001}; }

    /// Thinner than what CSS calls normal by a face or more.
    bool isFaint() const { return value <= 300; }
    /// From where on fonts without a bold face get strokes of double width.
    bool isBold() const { return value >= 600; }
    bool operator==(FontWeight const&) const = default;
};

struct BorderSpacing {
    std::int32_t across = 0;
    std::int32_t down = 0;

    bool operator==(BorderSpacing const&) const = default;
};

/// Lines along the text.
struct Decoration {
    bool isUnderlined = false;
    bool isStruckThrough = false;

    bool operator==(Decoration const&) const = default;
};

/// The properties that an element has from its parent where nothing is declared.
struct InheritedStyle {
    Colour colour;
    FontWeight fontWeight;
    bool isItalic = false;
    TextAlign textAlign = TextAlign::left;
    TextTransform textTransform = TextTransform::none;
    Length textIndent;
    WhiteSpace whiteSpace = WhiteSpace::normal;
    OverflowWrap overflowWrap = OverflowWrap::normal;
    /// It is what a cell around the element, or a table, says of it.
    bool wrapsAsCell = false;
    WordBreak wordBreak = WordBreak::normal;
    /// Cells from one stop to the next; with 0, tabs take no room.
    std::int32_t tabSize = 8;
    Marker marker;
    MarkerPosition markerPosition = MarkerPosition::outside;
    CaptionSide captionSide = CaptionSide::top;
    Visibility visibility = Visibility::visible;
    bool collapsesBorders = false;
    BorderSpacing borderSpacing;
    /// The lines along the element's text: its own and those of all elements around it.
    Decoration drawn;
    CellRules cells;

    bool operator==(InheritedStyle const&) const = default;
};

/// Whether lines break at white space.
inline bool wraps(InheritedStyle const& style) {
    return style.whiteSpace != WhiteSpace::nowrap && style.whiteSpace != WhiteSpace::pre;
}

/// Whether every blank counts.
inline bool preserves(InheritedStyle const& style) {
    return style.whiteSpace == WhiteSpace::pre || style.whiteSpace == WhiteSpace::preWrap;
}

/// The computed style of an element. Without declarations it has the initial values of CSS.
struct Style : InheritedStyle {
    Display display = Display::inlined;
    Edges<Length> margin;
    Edges<Length> padding;
    Edges<Border> border;
    bool isRounded = false;
    Length width = Length::automatic();
    Length minWidth = Length::automatic();
    Length maxWidth = Length::automatic();
    VerticalAlign verticalAlign = VerticalAlign::baseline;
    bool hasFixedColumns = false;
    Colour background = {Colour::Kind::transparent};
    /// What the element itself declares; `drawn` is what shows.
    Decoration decoration;

    bool operator==(Style const&) const = default;
};

}  // namespace galley::web
