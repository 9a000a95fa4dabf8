#pragma once

#include <span>
#include <string_view>

#include "web/Style.h"

namespace galley::web {

/// An element that pages may have.
struct ElementType {
    std::string_view name;
    /// Where no sheet says otherwise; `none` of what no sheet can show.
    Display display;
};

/// In the order of their names.
std::span<ElementType const> vocabulary();

/// Null for an element that is none of these; the name is not empty. Letters of the other case make
/// another name.
ElementType const* findElementType(std::string_view name);

/// Whether it is an element of HTML that pages may not have.
bool isOfHtmlOnly(std::string_view name);

/// Whether elements of this name never have content, so that their ends are easily forgotten.
bool isVoid(std::string_view name);

}  // namespace galley::web
