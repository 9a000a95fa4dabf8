#include "xml/layout/columns.h"

#include <algorithm>

#include "base/saturate.h"

namespace CLI::XML {

namespace {

void raise(std::int32_t& maximum, std::int32_t value) { maximum = std::max(maximum, value); }

void raiseSides(EdgeSizes& maxima, EdgeSizes const& edges) {
    raise(maxima.left, edges.left);
    raise(maxima.right, edges.right);
}

}  // namespace

bool raiseColumn(ZRVector<Dimensions>& columns, unsigned index, Dimensions const& cell) {
    bool const isNew = index >= columns.count;
    Dimensions& column = columns[index];
    Dimensions const former = column;
    raiseSides(column.margin, cell.margin);
    raiseSides(column.border, cell.border);
    raiseSides(column.padding, cell.padding);
    raise(column.content.x, cell.content.x);
    raise(column.content.width, cell.content.width);
    if (index > 0) {
        Dimensions const& before = columns[index - 1];
        raise(column.content.x, saturate(std::int64_t{before.content.x} + before.content.width +
                                         before.edges().right + column.edges().left));
    }
    return isNew || !(column == former);
}

}  // namespace CLI::XML
