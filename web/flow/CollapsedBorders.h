#pragma once

#include <vector>

#include "web/flow/TableGrid.h"

namespace galley::web {

/// The slots of a grid row by row, from the first one on.
class SlotWalk {
public:
    explicit SlotWalk(TableGrid const& walked);

    /// Goes on to the next row; behind the last one no cell is left.
    void next();
    int row() const { return current; }
    /// The cell that covers a slot of the row, null for none.
    TableCell const* operator[](std::size_t column) const { return slots[column].cell; }

private:
    struct Slot {
        TableCell const* cell = nullptr;
        int endRow = 0;
    };

    TableGrid const* grid;
    std::vector<Slot> slots;
    int current = -1;
};

/// The borders of a table that share the lines of its grid: of all that meet in a part of a line
/// one is drawn (CSS 2.2, 17.6.2.1).
class CollapsedBorders {
public:
    /// Those of a grid that is complete, at the beginning of its first row.
    CollapsedBorders(TableGrid const& collapsed, Style const& tableStyle);

    /// Whether a line has a border anywhere. It is a cell wide then, else nothing.
    ///@{
    bool hasVertical(int line) const { return verticalLines[index(line)]; }
    bool hasHorizontal(int line) const { return horizontalLines[index(line)]; }
    ///@}

    /// Goes on to the next row, or behind the last one.
    void next();
    /// Left of a column of the row, or behind the last one; null for none.
    Border const* vertical(int line) const { return below[index(line)]; }
    /// Above a column of the row.
    Border const* horizontal(int column) const { return across[index(column)]; }
    /// Those that meet above the row and left of a column.
    Edges<Border const*> around(int line) const;

private:
    static std::size_t index(int i) { return static_cast<std::size_t>(i); }
    Border const* findVertical(std::size_t line) const;
    Border const* findHorizontal(std::size_t column) const;

    TableGrid const& grid;
    Style const& table;
    std::vector<bool> verticalLines;
    std::vector<bool> horizontalLines;
    SlotWalk before;
    SlotWalk at;
    /// The parts of vertical lines in the row before this one, and in this one; the line between.
    ///@{
    std::vector<Border const*> above;
    std::vector<Border const*> below;
    std::vector<Border const*> across;
    ///@}
};

/// The one of those that meet, null for none, that is drawn.
Border const* strongest(Edges<Border const*> const& lines);

}  // namespace galley::web
