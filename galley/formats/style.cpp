#include "galley/formats/style.h"

#include <cstdio>
#include <utility>

using CLI::XML::Look;

namespace {

/// 0xRRGGBB, in the order of the sequences; the last is for text without a colour.
constexpr unsigned s_colors[] = {0x000000, 0xF14C4C, 0x23D18B, 0xE5E510, 0x3B8EEA,
                                 0xD670D6, 0x29B8DB, 0xFFFFFF, 0xD4D4D4};
constexpr unsigned s_ground = 0x1E1E1E;

struct AttributeCss {
    Look::Attribute attribute;
    char const* css;
};
constexpr AttributeCss s_attributes[] = {
    {Look::Bold, "font-weight:bold;"},
    {Look::Italic, "font-style:italic;"},
    {Look::Underline, "text-decoration:underline;"},
    {Look::Blink, "animation:galley-blink 1s step-end infinite;"},
};

/// Faint text: three fifths of its colour, two of what is behind it.
unsigned mix(unsigned text, unsigned ground) {
    unsigned mixed = 0;
    for (unsigned shift = 0; shift < 24; shift += 8) {
        unsigned const part = ((text >> shift & 0xFFU) * 3 + (ground >> shift & 0xFFU) * 2) / 5;
        mixed |= part << shift;
    }
    return mixed;
}

std::string hex(unsigned color) {
    char text[8];
    std::snprintf(text, sizeof text, "#%06x", color);
    return text;
}

}  // namespace

CellColors cellColors(Look const& look) {
    unsigned text = s_colors[look.foreground];
    unsigned ground = look.background == Look::s_noColor ? s_ground : s_colors[look.background];
    if (look.has(Look::Inverse)) std::swap(text, ground);
    if (look.has(Look::Faint)) text = mix(text, ground);
    if (look.has(Look::Hidden)) text = ground;
    return {hex(text), hex(ground)};
}

std::string attributeCss(Look const& look) {
    std::string css;
    for (auto const& [attribute, declaration] : s_attributes) {
        if (look.has(attribute)) css += declaration;
    }
    return css;
}

std::string_view blinkElement(std::string_view page) {
    bool const blinks = page.find("\x1b[5m") != std::string_view::npos;
    return blinks
               ? "<style>@keyframes galley-blink{50%{color:transparent;fill:transparent}}</style>"
               : "";
}
