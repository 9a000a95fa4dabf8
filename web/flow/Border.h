#pragma once

#include <string_view>

#include "web/Style.h"
#include "web/flow/Row.h"

namespace galley::web {

/// The character of a cell in which lines of borders meet, by the sides on which there are any.
/// With one line, or two opposite ones, that is how it is drawn. Empty where there is none.
std::string_view joint(Edges<Border const*> const& lines, bool isRounded);

/// Adds the cell of a border at the left or the right of a box, if it has one.
void addVertical(Row& row, Border const& border, Colour background, bool isVisible = true);

/// Adds so many cells of a border along a row.
void addLine(Row& row, Border const& border, int columns, Colour background);

/// Adds a cell in which borders meet, coloured as one of them. What is a text goes on, lines across
/// the row before those in its columns.
void addJoint(Row& row, Edges<Border const*> const& lines, Border const& coloured,
              Colour background);

/// Adds the row of a border at the top or the bottom of a box of so many columns with its corners.
void addHorizontal(Row& row, Style const& style, bool isTop, int columns, Colour background);

}  // namespace galley::web
