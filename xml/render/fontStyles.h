#pragma once

#include <cstdint>
#include <string_view>

#include "xml/render/Canvas.h"

namespace CLI::XML {

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
