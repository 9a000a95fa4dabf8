#pragma once

#include <vector>

#include "web/flow/TableFrame.h"
#include "web/flow/columnWidths.h"

namespace galley::web {

/// What the columns of a table ask for, in parts of cells, by automatic layout: as all of its cells
/// do.
std::vector<ColumnNeed> automaticNeeds(TableGrid const& grid, TableFrame const& frame,
                                       Wrapping wrapping);

/// The same in a table whose cells may part words so that columns have no more than so many parts
/// in sum: each cell is at least as wide as without, or as a number of cells, the largest for which
/// there is room.
std::vector<ColumnNeed> fittingNeeds(TableGrid const& grid, TableFrame const& frame,
                                     std::int64_t parts);

/// By fixed layout: as the elements of columns do, and else the cells of the first row.
std::vector<ColumnNeed> fixedNeeds(TableGrid const& grid, TableFrame const& frame);

}  // namespace galley::web
