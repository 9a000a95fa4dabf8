#pragma once

#include <vector>

#include "web/flow/Content.h"
#include "web/flow/Row.h"

namespace galley::web {

/// A table that has been laid out.
struct TableRows {
    /// Of its margin box, in columns from the left of its container to the first row's first cell.
    int left = 0;
    /// Of the table and its captions.
    std::vector<Row> rows;
};

/// A table with all that is in it, which is measured while it is put together.
class Table {
public:
    explicit Table(Style const& tableStyle) : ownStyle(&tableStyle) {}

    Style const& style() const { return *ownStyle; }
    /// With its margins.
    Widths outerWidths() const { return {}; }
    /// In a container of so many columns, on a background. Once only.
    TableRows layOut(int columns, Colour background);

private:
    Style const* ownStyle;
};

}  // namespace galley::web
