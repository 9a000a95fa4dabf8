#include "galley/formats/palette.h"

#include <cstdio>
#include <utility>

namespace galley {

using web::Colour;

namespace {

/// The terminal's own in 0xRRGGBB, in the order of their numbers.
using Colors = unsigned[16];

struct Palette {
    /// Of the page.
    unsigned ground;
    /// Of text without a colour.
    unsigned text;
    /// Text on the page's ground.
    Colors onPage;
    /// Grounds, and text on them.
    Colors onColor;
    /// Faint text is so many fifths of its colour, the rest of what is behind it.
    unsigned faintFifths;
};

constexpr Palette s_dark = {
    0x1E1E1E,
    0xD4D4D4,
    {0x000000, 0xF14C4C, 0x23D18B, 0xE5E510, 0x3B8EEA, 0xD670D6, 0x29B8DB, 0xFFFFFF,  //
     0x8C8C8C, 0xFF7B72, 0x5FE6A8, 0xF5F543, 0x6CB6FF, 0xE89AE8, 0x6FD6EC, 0xFFFFFF},
    {0x000000, 0xF14C4C, 0x23D18B, 0xE5E510, 0x3B8EEA, 0xD670D6, 0x29B8DB, 0xFFFFFF,  //
     0x8C8C8C, 0xFF7B72, 0x5FE6A8, 0xF5F543, 0x6CB6FF, 0xE89AE8, 0x6FD6EC, 0xFFFFFF},
    3};

/// Chosen so that text on the page, faint or not, has the contrast of 4.5 to 1 that WCAG 2 asks
/// for; that makes greys of both whites. Grounds are brighter, so that black text can be read on
/// them, too, and so is text on them, which may stand on black.
constexpr Palette s_light = {
    0xFFFFFF,
    0x1E1E1E,
    {0x000000, 0xB3261E, 0x00660F, 0x6B4E00, 0x0451A5, 0x9C159C, 0x005F6B, 0x545454,  //
     0x464646, 0xD0021B, 0x006820, 0x744F00, 0x0550C8, 0xB0109F, 0x006078, 0x3A3A3A},
    {0x000000, 0xCD3131, 0x0DBC79, 0xE5E510, 0x2472C8, 0xBC3FBC, 0x11A8CD, 0xE5E5E5,  //
     0x666666, 0xF14C4C, 0x23D18B, 0xF5F543, 0x3B8EEA, 0xD670D6, 0x29B8DB, 0xF5F5F5},
    4};

/// In 0xRRGGBB; `unset` where it is the terminal's default.
unsigned valueOf(Colour colour, Colors const& own, unsigned unset) {
    if (colour.kind == Colour::Kind::palette) return own[colour.red];
    if (colour.kind != Colour::Kind::rgb) return unset;
    return unsigned{colour.red} << 16 | unsigned{colour.green} << 8 | colour.blue;
}

unsigned mix(unsigned text, unsigned ground, unsigned fifths) {
    unsigned mixed = 0;
    for (unsigned shift = 0; shift < 24; shift += 8) {
        unsigned const ofText = (text >> shift & 0xFFU) * fifths;
        unsigned const ofGround = (ground >> shift & 0xFFU) * (5 - fifths);
        mixed |= (ofText + ofGround) / 5 << shift;
    }
    return mixed;
}

std::string hex(unsigned color) {
    char text[8];
    std::snprintf(text, sizeof text, "#%06x", color);
    return text;
}

}  // namespace

CellColors cellColors(web::Look const& look, Theme theme) {
    Palette const& palette = theme == Theme::light ? s_light : s_dark;
    bool const isOnPage = look.background.kind == Colour::Kind::terminal;
    Colors const& ofText = isOnPage ? palette.onPage : palette.onColor;
    unsigned text = valueOf(look.text, ofText, palette.text);
    unsigned ground = valueOf(look.background, palette.onColor, palette.ground);
    if (look.isInverse) std::swap(text, ground);
    if (look.isFaint) text = mix(text, ground, palette.faintFifths);
    if (look.isHidden) text = ground;
    return {hex(text), hex(ground)};
}

}  // namespace galley
