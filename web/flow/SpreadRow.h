#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "web/flow/Paragraph.h"
#include "web/flow/Row.h"

namespace galley::web {

/// What is spare in a justified line, and the gaps that share it, of which the first get more.
struct Spread {
    int cells = 0;
    int gaps = 0;
};

/// A row to which the text of a line is added. Where it is spread, it knows the gaps of the line
/// and widens them: blanks, and both sides of what is written without these.
class SpreadRow {
public:
    /// The row outlives this one. Tabs count from column `left` of it.
    SpreadRow(Row& painted, int left) : row(painted), start(left) {}

    /// To be called before anything is added.
    void spread(Spread shared) {
        spreads = true;
        rest = shared;
    }
    bool isSpread() const { return spreads; }
    /// Gaps that have been added, but for one at the end.
    int gaps() const { return passed - (isBehindGap && passed > 0 ? 1 : 0); }
    Row& painted() { return row; }

    /// Adds text of so many cells with no gap in it. What is invisible is blank.
    void addText(std::string_view text, int cells, bool isPrintedAsIs, Inline const& element);
    /// Adds words of ASCII, between which there are gaps.
    void addWords(std::string_view text, Inline const& element);
    void addClusters(std::string_view text, Inline const& element);
    void addBlank(Look const& look);
    void addBlanks(std::uint32_t count, Look const& look);
    void addTab(Inline const& element);
    /// Adds so many blank cells that are no gap.
    void addCells(int count, Look const& look) { row.fill(row.width() + count, look); }

private:
    void addGap(Look const& look);

    Row& row;
    int start;
    bool spreads = false;
    /// What its gaps have not got yet, and what they have.
    ///@{
    Spread rest;
    int added = 0;
    ///@}
    int passed = 0;
    bool isBehindGap = true;
    std::string printed;
};

}  // namespace galley::web
