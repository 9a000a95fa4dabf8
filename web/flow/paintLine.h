#pragma once

#include "web/flow/LineBreaker.h"
#include "web/flow/Row.h"

namespace galley::web {

/// Adds a line to a row: text and inline edges, without the white space at its ends. `spare` cells
/// are spread over its gaps, those on the left first: blanks, and both sides of what is written
/// without these. Per cent count of `container` columns; tabs from column `start` of the row.
void paintLine(Row& row, Paragraph const& paragraph, TextLine const& line, int container, int start,
               int spare);

}  // namespace galley::web
