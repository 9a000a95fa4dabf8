#pragma once

#include <cstddef>
#include <string_view>

namespace galley {

/// What takes a cell in the rows of a page.
enum class CellRule {
    characters,    ///< each of Unicode, and each byte that belongs to none
    clusters,      ///< each that a person would call a character, a wide one two
    wideClusters,  ///< the same, East Asian ambiguous ones being wide
};

/// A part of a row.
struct Piece {
    /// Blanks, or others than that which have one cell each, or two.
    enum class Kind { blank, narrow, wide };

    Kind kind;
    std::string_view text;
    std::size_t cells;
};

/// Takes the least that is never parted off the beginning of a text, which is not empty.
Piece takeUnit(std::string_view& text, CellRule rule);

/// Takes as much of one kind as there is.
Piece takePiece(std::string_view& text, CellRule rule);

}  // namespace galley
