#include "web/flow/columnWidths.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

#include "web/flow/lengths.h"

namespace galley::web {

namespace {

constexpr std::int64_t s_whole = 100'000'000;
/// As far as percentages widen a table.
constexpr std::int64_t s_widest = 1'000'000 * s_parts;

bool isPercent(ColumnNeed const& column) { return column.isPercent; }
bool isFixed(ColumnNeed const& column) { return column.isFixed && !isPercent(column); }
bool isAutomatic(ColumnNeed const& column) { return !column.isFixed && !isPercent(column); }

/// Rounded down.
std::int64_t scale(std::int64_t amount, std::int64_t by, std::int64_t of) {
    return static_cast<std::int64_t>(static_cast<double>(amount) * static_cast<double>(by) /
                                     static_cast<double>(of));
}

/// Shares an amount in proportion to weights, of which one is not 0.
std::vector<std::int64_t> inProportion(std::vector<std::int64_t> const& weights,
                                       std::int64_t amount) {
    std::int64_t const sum = std::accumulate(weights.begin(), weights.end(), std::int64_t{0});
    std::vector<std::int64_t> parts;
    parts.reserve(weights.size());
    std::int64_t rest = amount;
    for (std::int64_t const weight : weights) {
        parts.push_back(std::min(rest, scale(amount, weight, sum)));
        rest -= parts.back();
    }
    for (std::size_t i = 0; rest > 0; i = i + 1 == parts.size() ? 0 : i + 1) {
        if (weights[i] == 0) continue;
        ++parts[i];
        --rest;
    }
    return parts;
}

/// The widths of columns while they grow.
class Shares {
public:
    Shares(std::span<ColumnNeed const> shared, std::int64_t total) : columns(shared) {
        rest = total;
        for (ColumnNeed const& column : columns) {
            widths.push_back(column.least);
            rest -= column.least;
        }
    }

    bool isDone() const { return rest <= 0; }

    /// Lets columns of a kind grow to what `wish` says; all by the same part where room is short.
    template <class Wish>
    void grow(bool (*isOfKind)(ColumnNeed const&), Wish const& wish) {
        if (isDone()) return;
        std::vector<std::int64_t> missing(widths.size());
        std::int64_t sum = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (isOfKind(columns[i])) {
                missing[i] = std::max<std::int64_t>(0, wish(columns[i]) - widths[i]);
            }
            sum += missing[i];
        }
        if (sum > 0) add(inProportion(missing, std::min(sum, rest)));
    }

    /// Gives all that is left to columns of a kind, if there are any.
    template <class Weight>
    void spend(bool (*isOfKind)(ColumnNeed const&), Weight const& weight) {
        if (isDone()) return;
        std::vector<std::int64_t> weights(widths.size());
        std::vector<std::int64_t> counts(widths.size());
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (!isOfKind(columns[i])) continue;
            weights[i] = weight(columns[i]);
            counts[i] = columns[i].count;
        }
        auto const isThere = [](std::int64_t amount) { return amount > 0; };
        if (std::any_of(weights.begin(), weights.end(), isThere)) {
            add(inProportion(weights, rest));
        } else if (std::any_of(counts.begin(), counts.end(), isThere)) {
            add(inProportion(counts, rest));
        }
    }

    std::vector<std::int64_t> take() { return std::move(widths); }

private:
    void add(std::vector<std::int64_t> const& parts) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] += parts[i];
            rest -= parts[i];
        }
    }

    std::span<ColumnNeed const> columns;
    std::vector<std::int64_t> widths;
    std::int64_t rest;
};

/// Shares a cell's percentage, less what columns have of it, among those that have none.
void widenPercentages(std::span<ColumnNeed> columns, int percent) {
    std::vector<std::int64_t> weights;
    std::vector<std::int64_t> counts;
    for (ColumnNeed const& column : columns) {
        percent -= column.percent;
        weights.push_back(isPercent(column) ? 0 : column.most);
        counts.push_back(isPercent(column) ? 0 : column.count);
    }
    auto const sum = [](auto const& all) {
        return std::accumulate(all.begin(), all.end(), std::int64_t{0});
    };
    if (percent <= 0 || sum(counts) == 0) return;
    std::vector<std::int64_t> const parts =
        inProportion(sum(weights) > 0 ? weights : counts, percent);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i].percent += static_cast<int>(parts[i]);
        columns[i].isPercent = true;
    }
}

}  // namespace

void widen(ColumnNeed& column, ColumnNeed const& cell) {
    column.least = std::max(column.least, cell.least);
    // A fixed width stands for all that cells of its column would like.
    if (column.isFixed == cell.isFixed) {
        column.most = std::max(column.most, cell.most);
    } else if (cell.isFixed) {
        column.most = cell.most;
    }
    column.most = std::max(column.most, column.least);
    column.percent = std::max(column.percent, cell.percent);
    column.isPercent = column.isPercent || cell.isPercent;
    column.isFixed = column.isFixed || cell.isFixed;
}

void widen(std::span<ColumnNeed> columns, ColumnNeed const& cell) {
    if (isPercent(cell)) widenPercentages(columns, cell.percent);
    std::vector<std::int64_t> const least = shareWidth(columns, cell.least);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i].least = std::max(columns[i].least, least[i]);
        columns[i].most = std::max(columns[i].most, columns[i].least);
    }
    // Fixed widths stand for all that it would like.
    if (std::all_of(columns.begin(), columns.end(), isFixed)) return;
    LastToGrow const last = cell.isFixed ? LastToGrow::percentages : LastToGrow::fixed;
    std::vector<std::int64_t> const most = shareWidth(columns, cell.most, last);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i].most = std::max(columns[i].most, most[i]);
    }
}

void limitPercentages(std::span<ColumnNeed> columns) {
    std::int64_t left = s_whole;
    for (ColumnNeed& column : columns) {
        column.percent = static_cast<int>(std::min<std::int64_t>(column.percent, left));
        left -= column.percent;
    }
}

ColumnSums sumOf(std::span<ColumnNeed const> columns) {
    ColumnSums sum;
    for (ColumnNeed const& column : columns) {
        sum.least += column.least;
        sum.most += column.most;
    }
    return sum;
}

std::int64_t widthOfPercentages(std::span<ColumnNeed const> columns) {
    std::int64_t widest = 0;
    std::int64_t others = 0;
    std::int64_t left = s_whole;
    for (ColumnNeed const& column : columns) {
        left -= column.percent;
        if (column.percent > 0) {
            widest = std::max(widest, scale(column.most, s_whole, column.percent));
        } else {
            others += column.most;
        }
    }
    if (left < s_whole && others > 0) {
        widest = std::max(widest, left > 0 ? scale(others, s_whole, left) : s_widest);
    }
    return std::min(widest, s_widest);
}

std::vector<std::int64_t> shareWidth(std::span<ColumnNeed const> columns, std::int64_t width,
                                     LastToGrow last) {
    auto const most = [](ColumnNeed const& column) { return column.most; };
    auto const percent = [](ColumnNeed const& column) { return std::int64_t{column.percent}; };
    auto const share = [=](ColumnNeed const& column) {
        return scale(width, column.percent, s_whole) + column.percentEdges;
    };
    Shares shares(columns, width);
    shares.grow(isPercent, share);
    shares.grow(isFixed, most);
    shares.grow(isAutomatic, most);
    shares.spend(isAutomatic, most);
    if (last == LastToGrow::percentages) shares.spend(isFixed, most);
    shares.spend(isPercent, percent);
    shares.spend(isFixed, most);
    return shares.take();
}

}  // namespace galley::web
