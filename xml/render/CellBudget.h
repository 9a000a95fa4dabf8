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

    /// Takes that many cells if they are left. If they are not, none is any more.
    bool pay(std::int64_t cells) {
        isSpent = isSpent || cells > left;
        if (!isSpent) left -= cells;
        return !isSpent;
    }
    /// Whether there were that many cells at first; if there were not, none is left either.
    bool mayHold(std::int64_t cells) {
        isSpent = isSpent || cells > limit;
        return !isSpent;
    }
    /// Whether there ever was a demand for which it did not suffice.
    bool isExceeded() const { return isSpent; }

    /// What there was at first.
    unsigned const limit;

private:
    std::int64_t left;
    bool isSpent = false;
};

}  // namespace CLI::XML
