#pragma once

#include "xml/parser/references.h"

namespace CLI::XML {

/// The entities known in running text.
inline constexpr EntityReplacement s_textEntities[] = {
    {"nbsp", " "}, {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {nullptr, nullptr},
};

}  // namespace CLI::XML
