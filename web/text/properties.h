#pragma once

#include <cstdint>

namespace galley::web {

/// Classes of UAX #14, as a line breaks here: with small kana as ideographs, no dictionary, and
/// classes of their own for what its rules tell apart by other properties. In the order of
/// scripts/web-tables.
enum class LineClass : std::uint8_t {
    AL,
    B2,
    BA,
    BB,
    BK,
    CB,
    CL,
    CM,
    CP,
    EB,  ///< Pictographs to be assigned are among these.
    EM,
    EX,
    GL,
    H2,
    H3,
    HH,  ///< Dashes of class BA: U+2010 and its like.
    HL,
    HY,
    ID,
    IN,
    IS,
    JL,
    JT,
    JV,
    NS,
    NU,
    OP,
    PF,  ///< Closing quotation marks.
    PI,  ///< Opening quotation marks.
    PO,
    PR,
    QU,  ///< Quotation marks that are neither.
    RI,
    SP,
    SY,
    WJ,
    ZW,
    ZWJ,
};

/// East_Asian_Width, as far as it matters.
enum class EastAsianWidth : std::uint8_t { narrow, halfwidth, wide, ambiguous };

/// What Unicode's tables say of a code point and utf8proc does not.
struct Properties {
    LineClass lineClass = LineClass::AL;
    EastAsianWidth width = EastAsianWidth::narrow;
    /// U+FE0F makes it an emoji of two cells.
    bool takesEmojiStyle = false;

    /// Halfwidth, fullwidth or wide.
    bool isEastAsian() const {
        return width == EastAsianWidth::halfwidth || width == EastAsianWidth::wide;
    }
};

/// The properties of a code point, which is at most U+10FFFF.
Properties propertiesOf(char32_t codePoint);

}  // namespace galley::web
