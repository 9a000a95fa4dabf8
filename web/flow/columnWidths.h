#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace galley::web {

/// What a column of a table asks for, in parts of cells: see `s_parts`.
struct ColumnNeed {
    std::int64_t least = 0;
    /// That of a fixed width, or what the content would like. Never below `least`.
    std::int64_t most = 0;
    /// Of the width that all columns share; millionths. A percentage may be 0.
    ///@{
    bool isPercent = false;
    int percent = 0;
    ///@}
    /// Parts of cells that come to its percentage.
    std::int64_t percentEdges = 0;
    bool isFixed = false;
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

/// How narrow columns can be in sum, and how wide they would like to be, in parts of cells.
struct ColumnSums {
    std::int64_t least = 0;
    std::int64_t most = 0;
};
ColumnSums sumOf(std::span<ColumnNeed const> columns);

/// How wide columns must be in sum for percentages to come true.
std::int64_t widthOfPercentages(std::span<ColumnNeed const> columns);

/// Of columns that have all that they would like, those that grow where there are no others.
enum class LastToGrow { percentages, fixed };

/// Shares a width among columns. Each has its least first, where that is more in sum, too. Then
/// percentages, fixed widths and the wishes of the others are met, in this order, as far as there
/// is room: each by the same part. The rest goes to columns that are neither, in proportion to
/// their wishes; without any to one of the other kinds. What cannot be shared goes to the leftmost
/// columns.
std::vector<std::int64_t> shareWidth(std::span<ColumnNeed const> columns, std::int64_t width,
                                     LastToGrow last = LastToGrow::percentages);

}  // namespace galley::web
