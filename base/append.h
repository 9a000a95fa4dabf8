#pragma once

#include <new>
#include <string_view>

#include "base/String.h"

namespace CLI::XML {

/// Appends `pieces`, which are not in `text`, to a text that is built piece by piece, or throws
/// std::bad_alloc and leaves it as it was.
template <class... Pieces>
void append(String& text, Pieces const&... pieces) {
    if (!text.growFor((std::string_view(pieces).length() + ...))) throw std::bad_alloc();
    auto const add = [&text](std::string_view piece) {
        text.concat(piece.data(), static_cast<int>(piece.length()));
    };
    (add(pieces), ...);
}

}  // namespace CLI::XML
