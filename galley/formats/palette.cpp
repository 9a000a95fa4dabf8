#include "galley/formats/palette.h"

#include <cstdio>
#include <utility>

namespace galley {

namespace {

/// 0xRRGGBB, in the order of the sequences; the last is for text without a colour.
using Colors = unsigned[Look::s_noColor + 1];

struct Palette {
    /// Of the page.
    unsigned ground;
    /// Text on the page's ground.
    Colors onPage;
    /// Grounds, and text on them.
    Colors onColor;
    /// Faint text is so many fifths of its colour, the rest of what is behind it.
    unsigned faintFifths;
};

constexpr Palette s_dark = {
    0x1E1E1E,
    {0x000000, 0xF14C4C, 0x23D18B, 0xE5E510, 0x3B8EEA, 0xD670D6, 0x29B8DB, 0xFFFFFF, 0xD4D4D4},
    {0x000000, 0xF14C4C, 0x23D18B, 0xE5E510, 0x3B8EEA, 0xD670D6, 0x29B8DB, 0xFFFFFF, 0xD4D4D4},
    3};

/// Chosen so that text on the page, faint or not, has the contrast of 4.5 to 1 that WCAG 2 asks
/// for; that makes a grey of white. Grounds are brighter, so that black text can be read on them,
/// too, and so is text on them, which may stand on black.
constexpr Palette s_light = {
    0xFFFFFF,
    {0x000000, 0xB3261E, 0x00660F, 0x6B4E00, 0x0451A5, 0x9C159C, 0x005F6B, 0x545454, 0x1E1E1E},
    {0x000000, 0xCD3131, 0x0DBC79, 0xE5E510, 0x2472C8, 0xBC3FBC, 0x11A8CD, 0xE5E5E5, 0x1E1E1E},
    4};

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

CellColors cellColors(Look const& look, Theme theme) {
    Palette const& palette = theme == Theme::light ? s_light : s_dark;
    bool const isOnPage = look.background == Look::s_noColor;
    unsigned text = (isOnPage ? palette.onPage : palette.onColor)[look.foreground];
    unsigned ground = isOnPage ? palette.ground : palette.onColor[look.background];
    if (look.has(Look::Inverse)) std::swap(text, ground);
    if (look.has(Look::Faint)) text = mix(text, ground, palette.faintFifths);
    if (look.has(Look::Hidden)) text = ground;
    return {hex(text), hex(ground)};
}

}  // namespace galley
