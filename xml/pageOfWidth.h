#pragma once

#include <algorithm>
#include <limits>

#include "xml/layout/Dimensions.h"

namespace CLI::XML {

/// What the root box is laid out in: `width` columns, as far as geometry holds them, no edges.
inline Dimensions pageOfWidth(unsigned width) {
    Dimensions page;
    auto const widest = static_cast<unsigned>(std::numeric_limits<std::int32_t>::max());
    page.content.width = static_cast<std::int32_t>(std::min(width, widest));
    return page;
}

}  // namespace CLI::XML
