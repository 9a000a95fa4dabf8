#pragma once

#include <new>
#include <string_view>

#include "base/String.h"

namespace CLI::XML {

/// Appends `pieces` to a text that is built piece by piece.
template <class... Pieces>
void append(String& text, Pieces const&... pieces) {
    bool const isComplete = (text.appendGrowing(pieces) && ...);
    if (!isComplete) throw std::bad_alloc();
}

}  // namespace CLI::XML
