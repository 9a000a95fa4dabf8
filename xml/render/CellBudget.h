#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace CLI::XML {

/// What a page may cost, in cells: a short document cannot demand work and memory without end.
/// Counted are the cells that are drawn and those that fill the way to them, one for every row, one
/// for every row that is looked at for what lies beneath a box, or that is drawn otherwise in a
/// frame than on the page, and one for every byte of escape text. Besides, every row takes as much
/// memory as a number of cells, which must suffice for all rows.
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
    /// Whether there were that many cells at first; where there were not, nothing suffices either.
    bool mayHold(std::int64_t cells) {
        isSpent = isSpent || cells > limit;
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
