#pragma once

#include "web/flow/Row.h"

namespace galley::web {

/// Takes the rows of a table and its captions.
class TableSink : public RowSink {
public:
    /// Comes first: columns from the left of the table's container to the first cells of the rows.
    virtual void begin(int left) = 0;
    /// The row that comes next is that of the table's baseline.
    virtual void takeBaseline() = 0;
};

}  // namespace galley::web
