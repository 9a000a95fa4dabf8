#pragma once

#include <vector>

#include "web/flow/TableFrame.h"
#include "web/flow/columnWidths.h"

namespace galley::web {

/// What the columns of a table ask for, in parts of cells, by automatic layout: as all of its cells
/// do.
std::vector<ColumnNeed> automaticNeeds(TableGrid const& grid, TableFrame const& frame,
                                       Wrapping wrapping);

/// By fixed layout: as the elements of columns do, and else the cells of the first row.
std::vector<ColumnNeed> fixedNeeds(TableGrid const& grid, TableFrame const& frame);

}  // namespace galley::web
