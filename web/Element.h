#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace galley::web {

struct Style;

struct Attribute {
    std::string_view name;
    /// Without references.
    std::string_view value;
    /// Where both begin, in bytes from the start of the document.
    std::size_t nameOffset = 0;
    std::size_t valueOffset = 0;
};

/// What selectors ask about an element. It owns no text, and its parent outlives it.
struct Element {
    /// Null for the outermost element.
    Element const* parent = nullptr;
    std::string_view name;
    std::span<Attribute const> attributes;
    /// From 1, among its parent's elements.
    unsigned index = 1;
    /// Whether no element follows in its parent. Need only be true where the sheets ask for it.
    bool isLast = false;
    /// Computed by a cascade, before the style of any child is.
    Style const* style = nullptr;
    /// What `classesOf` found when it was first asked.
    mutable std::optional<std::vector<std::string_view>> classes = std::nullopt;
};

}  // namespace galley::web
