#pragma once

#include <cstdint>

namespace galley::web {

/// A colour of text, a border or a background.
struct Colour {
    enum class Kind : std::uint8_t {
        /// The terminal's own for text, or for its background.
        terminal,
        transparent,
        /// One of the terminal's 16: `red` is its number, from black to white and on to the bright.
        palette,
        rgb,
    };

    Kind kind = Kind::terminal;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    /// Whether it was declared as that of the text, which it is in computed styles. An element that
    /// inherits it has that of its own text.
    bool isCurrent = false;

    static constexpr Colour ofPalette(std::uint8_t number) { return {Kind::palette, number}; }
    static constexpr Colour transparent() { return {Kind::transparent}; }
    static constexpr Colour current() { return {Kind::terminal, 0, 0, 0, true}; }
    static constexpr Colour rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
        return {Kind::rgb, red, green, blue};
    }

    bool operator==(Colour const&) const = default;
};

}  // namespace galley::web
