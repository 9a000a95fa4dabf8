#pragma once

#include <span>
#include <vector>

#include "web/flow/Content.h"

namespace galley::web {

/// What a column of a table asks for. Widths are in cells.
struct ColumnNeed {
    int least = 0;
    /// That of a fixed width, or what the content would like. Never below `least`.
    int most = 0;
    /// Of the width that all columns share; millionths. A percentage may be 0.
    ///@{
    bool isPercent = false;
    int percent = 0;
    ///@}
    /// Cells that come to its percentage.
    int percentEdges = 0;
    bool isFixed = false;
    /// In proportion to which fixed columns grow, if not to `most`; 0 if to that.
    int weight = 0;
    /// How many columns of the document it stands for.
    int count = 1;

    bool operator==(ColumnNeed const&) const = default;
};

/// Makes a column ask for at least what a cell in it asks for.
void widen(ColumnNeed& column, ColumnNeed const& cell);

/// Makes neighbouring columns ask for what a cell over all of them asks for, without the gaps that
/// it covers.
void widen(std::span<ColumnNeed> columns, ColumnNeed const& cell);

/// Cuts the percentages that pass 100 in sum, from the left.
void limitPercentages(std::span<ColumnNeed> columns);

/// How narrow columns can be in sum, and how wide they would like to be.
Widths sumOf(std::span<ColumnNeed const> columns);

/// How wide columns must be in sum for percentages to come true.
int widthOfPercentages(std::span<ColumnNeed const> columns);

/// Shares a width among columns. Each has its least first, where that is more in sum, too. Then
/// percentages, fixed widths and the wishes of the others are met, in this order, as far as there
/// is room: each by the same part. The rest goes to columns that are not fixed, in proportion to
/// their wishes. Parts of a cell go to the leftmost columns.
std::vector<int> shareWidth(std::span<ColumnNeed const> columns, int width);

}  // namespace galley::web
