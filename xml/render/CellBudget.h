#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace CLI::XML {

/// What the canvases of one page may hold together, in cells: a short document cannot demand work
/// and memory without end. Counted are the cells that are drawn and those that fill the way to
/// them, one for every row, and one for every byte of escape text. Of a canvas that is composed
/// onto another the cells have been counted: only rows and fillers that come into use there count.
class CellBudget {
public:
    /// The budget of a document of that many bytes.
    static unsigned ofDocument(int bytes) {
        constexpr std::int64_t s_least = std::int64_t{1} << 26;
        constexpr std::int64_t s_most = std::numeric_limits<unsigned>::max();
        return static_cast<unsigned>(std::clamp(std::int64_t{bytes} * 100, s_least, s_most));
    }

    /// A budget of that many cells.
    explicit CellBudget(unsigned cells) : limit(cells), left(cells) {}

    /// Whether that many cells are left. Where they are not, nothing suffices from now on.
    bool suffices(std::uint64_t cells) {
        if (cells > left) isSpent = true;
        return !isSpent;
    }
    /// Takes cells for which it suffices.
    void take(std::uint64_t cells) { left -= cells; }

    /// Cells that may still be taken; 0 once one was asked for too many.
    std::uint64_t remaining() const { return isSpent ? 0 : left; }
    /// Whether there ever was a demand for which it did not suffice.
    bool isExceeded() const { return isSpent; }

    /// What there was at first.
    unsigned const limit;

private:
    std::uint64_t left;
    bool isSpent = false;
};

}  // namespace CLI::XML
