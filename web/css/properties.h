#pragma once

#include <span>
#include <string_view>

#include "web/Style.h"
#include "web/css/ValueReader.h"

namespace galley::web {

/// A property that has an effect: a field of `Style`, or several.
struct Property {
    std::string_view name;
    /// Reads a value of the property into its fields. Whether there was one; if not, the fields may
    /// have changed.
    bool (*read)(ValueReader& reader, Style& style);
    /// Takes its fields from another style.
    void (*copy)(Style const& from, Style& to);
    /// Whether an element has it from its parent where nothing is declared.
    bool isInherited;
};

std::span<Property const> allProperties();

/// The property of a name, whatever the case of its letters; null where there is none.
Property const* findProperty(std::string_view name);

/// A property of CSS that means nothing to cells, or to normal flow.
struct IgnoredProperty {
    std::string_view name;
    /// Whether it is about fonts or the heights of lines, which a terminal has one of each.
    bool isAboutFonts = false;
};

/// The same among those that are ignored.
IgnoredProperty const* findIgnoredProperty(std::string_view name);

}  // namespace galley::web
