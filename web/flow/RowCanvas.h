#pragma once

#include <string_view>
#include <vector>

#include "web/flow/Row.h"

namespace galley::web {

/// A row as cells, over which others are drawn. All of these rows outlive it.
class RowCanvas {
public:
    RowCanvas(RowView const& row, bool isAmbiguousWide);

    /// As `Row::draw` does.
    void draw(int column, RowView const& other, Row::Manner const& manner);
    /// What has been drawn.
    Row row() const;

private:
    struct Cell {
        /// A cluster; empty in the second cell of a wide one.
        std::string_view text;
        Look look;
    };

    std::vector<Cell> cellsOf(RowView const& row) const;

    bool areAmbiguousWide;
    std::vector<Cell> drawn;
};

}  // namespace galley::web
