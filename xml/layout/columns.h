#pragma once

#include "base/ZRVector.h"
#include "xml/layout/Dimensions.h"

namespace CLI::XML {

/// Raises the record of a table's column, which is added where it is missing, to what a cell in it
/// takes where nothing constrains it: each of its horizontal sizes, and its position, which is not
/// before the column on the left ends. Rows are taken in order. Returns whether anything changed.
bool raiseColumn(ZRVector<Dimensions>& columns, unsigned index, Dimensions const& cell);

}  // namespace CLI::XML
