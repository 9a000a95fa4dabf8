#pragma once

#include <algorithm>
#include <cstddef>

namespace galley::web {

/// In cells.
inline constexpr int s_widestRow = 1'000'000;

/// Thrown where a page becomes too large, or a row of it.
struct PageTooLarge {
    /// There may be so many.
    std::size_t cells = s_widestRow;
    bool isRow = true;
};

/// What a page may cost, in cells: a short document cannot demand work and memory without end.
/// Every row costs its cells, and one for itself and for each block and table that it is in.
class PageBudget {
public:
    /// Of a document of that many bytes.
    explicit PageBudget(std::size_t bytes) : most(std::max(s_least, bytes * s_cellsPerByte)) {}

    /// Throws `PageTooLarge` if there are not that many.
    void take(std::size_t cells) {
        if (cells > most - taken) throw PageTooLarge{most, false};
        taken += cells;
    }

private:
    static constexpr std::size_t s_least = std::size_t{1} << 26;
    static constexpr std::size_t s_cellsPerByte = 100;

    std::size_t most;
    std::size_t taken = 0;
};

}  // namespace galley::web
