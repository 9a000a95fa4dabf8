#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>

#include "web/Colour.h"
#include "web/Style.h"

namespace galley::web {

/// Where a link leads.
struct Link {
    /// Of a scheme that may be followed, without controls.
    std::string address;
    /// Not that of any other link of the page: tells a terminal which parts of rows are one link.
    unsigned number = 0;
};

/// How cells look.
struct Look {
    Colour text = {};
    /// Never transparent: what shows through is the terminal's own.
    Colour background = {};
    bool isBold = false;
    bool isFaint = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckThrough = false;
    /// Pages of the core alone have these.
    bool isBlinking = false;
    bool isInverse = false;
    bool isHidden = false;
    /// Null for none. It outlives the look.
    Link const* link = nullptr;

    bool operator==(Look const& other) const {
        // Whatever is before the link is of single bytes, without gaps.
        constexpr std::size_t s_size = offsetof(Look, isHidden) + sizeof(isHidden);
        static_assert(s_size == 2 * sizeof(Colour) + 8);
        auto const isSame = [&](std::size_t from) { return eightAt(from) == other.eightAt(from); };
        return link == other.link && isSame(0) && isSame(8) && isSame(s_size - 8);
    }

private:
    /// Eight bytes.
    std::uint64_t eightAt(std::size_t from) const {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, reinterpret_cast<char const*>(this) + from, sizeof(bytes));
        return bytes;
    }
};
static_assert(std::has_unique_object_representations_v<Colour>);

inline bool isVisible(Style const& style) { return style.visibility == Visibility::visible; }

/// The background of an element that stands on another one.
inline Colour backgroundOf(Style const& style, Colour around) {
    bool const isSeen = style.background.kind != Colour::Kind::transparent && isVisible(style);
    return isSeen ? style.background : around;
}

/// Whether a background is more than the terminal's own, or than what is around it.
inline bool isDrawn(Colour background) { return background.kind > Colour::Kind::transparent; }

/// How blanks look on a background.
inline Look blankOn(Colour background) { return {.text = {}, .background = background}; }

/// How text of an element looks on a background. Of one that is hidden nothing is seen but that.
inline Look lookOf(Style const& style, Colour background, Link const* link = nullptr) {
    if (!isVisible(style)) return blankOn(background);
    return {.text = style.colour,
            .background = background,
            .isBold = style.fontWeight.isBold(),
            .isFaint = style.fontWeight.isFaint(),
            .isItalic = style.isItalic,
            .isUnderlined = style.drawn.isUnderlined,
            .isStruckThrough = style.drawn.isStruckThrough,
            .link = link};
}

}  // namespace galley::web
