#pragma once

#include <cstddef>
#include <string_view>

#include "galley/formats/PageWriter.h"
#include "galley/formats/cells.h"
#include "galley/formats/palette.h"

namespace galley {

/// Writes a picture of a terminal as a self-contained SVG document in ASCII, each word at its cell;
/// a dark one where the theme is automatic. What is no character, or a control character, becomes
/// U+FFFD.
class SvgWriter final : public PageWriter {
public:
    SvgWriter(String& page, Theme colours, CellRule cellRule);

    void take(web::Row const& row) override;
    void finish() override;

private:
    void drawGround(std::string_view text, web::Look const& look);
    void drawText(std::string_view text, web::Look const& look);
    void drawPiece(Piece const& piece);
    void changeLink(web::Link const* next);
    /// Adds the text of a row behind all its grounds.
    void endRow();

    String& out;
    Theme const theme;
    CellRule const rule;
    CellColors const usual;
    /// What is in the picture; its size, which comes before that, is known at the end.
    String rows;
    /// Of the row that is being drawn.
    String words;
    web::Link const* link = nullptr;
    std::size_t column = 0;
    std::size_t rowCount = 0;
    /// Cells of the longest row.
    std::size_t columnCount = 0;
    bool blinks = false;
};

}  // namespace galley
