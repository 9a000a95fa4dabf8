#pragma once

#include <vector>

#include "xml/layout/Items.h"

namespace CLI::XML {

/// The width with edges of any part of a paragraph, in columns, as if all of it stood on one line.
/// The widths are moderate, and there is no block.
class WidthSums {
public:
    explicit WidthSums(Items const& items);

    std::int64_t between(Position begin, Position end) const { return at(end) - at(begin); }
    /// The edges of an element, by where it opens.
    std::int64_t edges(std::uint32_t opened) const { return before[opened + 1] - before[opened]; }

private:
    std::int64_t at(Position position) const { return before[position.item] + position.offset; }

    /// Of all that is before each item, and before the end.
    std::vector<std::int64_t> before;
};

}  // namespace CLI::XML
