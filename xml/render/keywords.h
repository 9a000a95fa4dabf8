#pragma once

#include <cstdint>
#include <string_view>

#include "xml/render/Canvas.h"

namespace CLI::XML {

struct ColorName {
    std::string_view name;
    std::uint8_t number;
};

/// The colours of SGR 30 to 37, by the names that style sheets use for them.
inline constexpr ColorName s_colorNames[] = {
    {"black", 0}, {"red", 1},      {"green", 2}, {"yellow", 3},
    {"blue", 4},  {"mangenta", 5}, {"cyan", 6},  {"white", 7},
};

/// What a value of "font-style" does to the flags.
struct FontStyle {
    std::string_view value;
    bool keepsFlags;
    std::uint8_t added;
};

inline constexpr FontStyle s_fontStyles[] = {
    {"normal", false, 0},
    {"bold", false, Canvas::Attributes::Bold},
    {"italic", true, Canvas::Attributes::Faint},
    {"oblique", true, Canvas::Attributes::Faint},
    {"mark", true, Canvas::Attributes::Blink},
};

}  // namespace CLI::XML
