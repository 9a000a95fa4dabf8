#include "xml/render/Grid.h"

#include <algorithm>
#include <utility>

namespace CLI::XML {

Grid::Grid(CellBudget& cells) : budget(cells) {
    rows.growBy = 64;
    frames.push_back({0, 0, 0, 0, 0, 0, 0, 0});
}

void Grid::enter(int x, int y) {
    Frame const& around = frames.back();
    Frame inner = {around.x + x, around.y + y, 0, 0, 0, 0, around.extents, 0};
    inner.left = std::max(inner.x, around.left);
    inner.top = std::max(inner.y, around.top);
    inner.end = inner.top;
    std::size_t const index = frames.size() - 1;
    if (index > 0) {
        bool const isSame = around.extents == frames[index - 1].extents;
        inner.otherExtents = isSame ? around.otherExtents : index;
    }
    if (inner.top < around.end && inner.left < around.widest) {
        ownExtents.push_back({inner.left, inner.top, {}});
        inner.extents = ownExtents.size();
    }
    frames.push_back(inner);
}

void Grid::leave() {
    Frame const inner = frames.back();
    frames.pop_back();
    settled = std::min(settled, frames.size() - 1);
    Frame& around = frames.back();
    if (inner.extents != around.extents) {
        Extents const own = std::move(ownExtents.back());
        ownExtents.pop_back();
        for (std::size_t i = 0; around.extents > 0 && i < own.ends.size(); ++i) {
            raise(around.extents, own.top + static_cast<std::int64_t>(i), own.ends[i]);
        }
    }
    if (inner.end == inner.top) return;
    around.end = std::max(around.end, inner.end);
    around.widest = std::max(around.widest, inner.widest);
}

void Grid::leaveAndCover() {
    Frame const& inner = frames.back();
    cover.left = inner.left;
    cover.top = inner.top;
    for (std::int64_t y = inner.top; y < inner.end && budget.pay(1); ++y) {
        cover.ends.push_back(extent(inner.extents, y));
    }
    leave();
}

std::int64_t Grid::extent(std::size_t extents, std::int64_t y) const {
    if (extents > 0) return ownExtents[extents - 1].end(y);
    return y < endOfRows() ? row(y).length : 0;
}

void Grid::raise(std::size_t extents, std::int64_t y, std::int64_t end) {
    Extents& own = ownExtents[extents - 1];
    auto const index = static_cast<std::size_t>(y - own.top);
    if (index >= own.ends.size()) {
        if (!budget.pay(static_cast<std::int64_t>(index + 1 - own.ends.size()))) return;
        own.ends.resize(index + 1, own.left);
    }
    own.ends[index] = std::max(own.ends[index], end);
}

/// Brings a row, which will be drawn up to column `end`, into use in all frames.
void Grid::touchNewRow(std::int64_t y, std::int64_t end) {
    bringIntoUse(y, end);
    if (budget.isExceeded()) return;
    for (; settled + 1 < frames.size(); ++settled) {
        fillRows(settled, frames[settled].end, frames[settled + 1].top);
    }
    Frame& innermost = frames.back();
    fillRows(frames.size() - 1, innermost.end, y + 1);
    innermost.end = y + 1;
}

/// Fills rows of a frame, and of all frames around, up to the left end of each.
void Grid::fillRows(std::size_t frame, std::int64_t begin, std::int64_t end) {
    if (frames[frame].left == 0 || begin >= end) return;
    // Of frames in the same extents the innermost one goes furthest.
    inward.clear();
    for (std::size_t inner = frame; inner > 0; inner = frames[inner].otherExtents) {
        inward.push_back(inner);
        Frame& around = frames[inner - 1];
        around.widest = std::max(around.widest, frames[inner].left);
    }
    for (std::int64_t y = begin; y < end; ++y) {
        for (std::size_t i = inward.size(); i-- > 0;) {
            if (i > 0 && !budget.pay(1)) return;
            fill(frames[inward[i] - 1].extents, y, frames[inward[i]].left);
        }
    }
}

void Grid::fill(std::size_t extents, std::int64_t y, std::int64_t end) {
    std::int64_t const begin = extent(extents, y);
    if (begin >= end || !budget.pay(end - begin)) return;
    set(" ", begin, {begin, end}, y, Attributes());
    if (extents > 0) raise(extents, y, end);
}

void Grid::draw(std::string_view text, int x, int y, Attributes const& attributes) {
    draw(text, 1, x, y, 1, attributes);
}

void Grid::draw(std::string_view text, std::int64_t times, int x, int y, std::int64_t height,
                Attributes const& attributes) {
    if (text.empty() || times <= 0) return;
    Frame const& frame = frames.back();
    std::string_view const pattern = text.substr(0, text.find('\0'));
    if (pattern.length() < text.length()) times = 1;
    auto const length = static_cast<std::int64_t>(pattern.length()) * times;
    // What the frame itself clips away brings no row into use.
    if (x < 0 && -std::int64_t{x} >= length) return;
    Span const span = {frame.x + x, frame.x + x + length};
    std::int64_t const first = std::max(frame.y + y, frame.top);
    std::int64_t const end = frame.y + y + height;
    for (std::int64_t row = first; row < end && !budget.isExceeded(); ++row) {
        touch(row, span.end);
        if (!pattern.empty()) drawInRow(pattern, span, row, attributes);
    }
}

void Grid::drawInRow(std::string_view pattern, Span where, std::int64_t y,
                     Attributes const& attributes) {
    Frame& frame = frames.back();
    Span const shown = {std::max(where.begin, frame.left), where.end};
    if (shown.begin >= shown.end) return;
    Span const covered = {std::clamp(cover.left, shown.begin, shown.end),
                          std::clamp(cover.end(y), shown.begin, shown.end)};
    std::int64_t const drawn = shown.end - shown.begin - (covered.end - covered.begin);
    if (!budget.pay(std::max<std::int64_t>(drawn, 1))) return;
    if (extent(frame.extents, y) < shown.begin) fill(frame.extents, y, shown.begin);
    if (budget.isExceeded()) return;
    if (shown.begin < covered.begin) {
        set(pattern, where.begin, {shown.begin, covered.begin}, y, attributes);
    }
    if (covered.end < shown.end) {
        set(pattern, where.begin, {covered.end, shown.end}, y, attributes);
    }
    if (frame.extents > 0) raise(frame.extents, y, shown.end);
    frame.widest = std::max(frame.widest, shown.end);
}

}  // namespace CLI::XML
