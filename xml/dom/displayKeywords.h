#pragma once

#include <string_view>

#include "xml/dom/DomNode.h"

namespace CLI::XML {

/// A value of the attribute "display".
struct DisplayKeyword {
    std::string_view keyword;
    DomNode::Display display;
};

inline constexpr DisplayKeyword s_displayKeywords[] = {
    {"inline", DomNode::Inline},      {"block", DomNode::Block},          {"table", DomNode::Table},
    {"table-row", DomNode::TableRow}, {"table-cell", DomNode::TableCell}, {"none", DomNode::None},
};

/// What `value` makes of an element that is displayed as `display`: the same where it is no
/// keyword.
inline DomNode::Display displayOr(DomNode::Display display, std::string_view value) {
    for (DisplayKeyword const& candidate : s_displayKeywords) {
        if (value == candidate.keyword) return candidate.display;
    }
    return display;
}

}  // namespace CLI::XML
