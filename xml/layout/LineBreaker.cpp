#include "xml/layout/LineBreaker.h"

#include <algorithm>

#include "xml/dom/readDocument.h"
#include "xml/layout/layOut.h"

namespace CLI::XML {

std::size_t lengthOfFitting(std::string_view words, std::int64_t columns) {
    if (static_cast<std::int64_t>(words.length()) <= columns) return words.length();
    return columns > 0 ? words.rfind(' ', static_cast<std::size_t>(columns) - 1) + 1 : 0;
}

LineBreaker::LineBreaker(Items const& paragraph, std::int32_t columns)
    : items(paragraph),
      available(columns),
      rests(paragraph.count() + 1),
      limits{{paragraph.count(), 0}} {
    sumUp(0, items.count());
}

/// Items `begin` to `end` have their widths, anew where blocks among them were laid out again.
void LineBreaker::sumUp(std::uint32_t begin, std::uint32_t end) {
    for (std::uint32_t i = end; i-- > begin;) rests[i] = rests[i + 1] + items.width(i);
}

Walk LineBreaker::layOutBlocks(Position from) {
    Position const limit = limits.back();
    // What is on the line so far, and was where the content of each element begins.
    std::int64_t seen = -std::int64_t{from.offset};
    std::vector<std::int64_t> begins;
    std::int64_t widest = 0;
    std::uint32_t i = from.item;
    for (; Position{i, 0} < limit && seen <= std::max<std::int64_t>(available, widestBlock); ++i) {
        Item const& item = items[i];
        if (item.kind == Item::Block) {
            Dimensions around;
            around.content.width = saturate(seen - (begins.empty() ? 0 : begins.back()));
            co_await layOut(*item.block, around, LayoutPass::Again);
            std::int64_t const width = item.block->dimensions.marginBox().width;
            widest = std::max(widest, width);
            seen += width;
        } else if (item.kind != Item::Close) {
            seen += items.width(i);
            if (item.kind == Item::Open) begins.push_back(seen);
        } else if (!begins.empty()) {
            begins.pop_back();
        } else {
            seen += items.width(item.other);
        }
    }
    sumUp(from.item, i);
    if (from == Position()) widestBlock = widest;
}

Position LineBreaker::next(Position from) {
    // A width that is cut off at the largest one does not exceed it.
    if (available == std::numeric_limits<std::int32_t>::max()) return limits.back();
    for (;;) {
        Position const limit = limits.back();
        Position const end = breakIn(from, limit);
        if (end == limit) {
            if (limits.size() > 1) limits.pop_back();
            accept(from, end);
            return end;
        }
        limits.push_back(end);
    }
}

void LineBreaker::accept(Position from, Position end) {
    if (!items.haveEdges()) return;
    for (std::uint32_t i = from.item; i < end.item; ++i) {
        Item const& item = items[i];
        if (item.kind < Item::Open || !hasLevel(item)) continue;
        if (item.kind == Item::Open) {
            goingOn.push_back(i);
        } else {
            goingOn.pop_back();
        }
    }
}

/// Whether an element may have a level where it goes on. Without edges, and where no edge takes
/// anything off, what is in it fits if it does: it need not be known to be too wide before.
bool LineBreaker::hasLevel(Item const& item) const {
    return items.mayShrink() || item.edges->hasEdges();
}

/// Where what is between `from` and `limit` has to be broken to fit, as far as one look tells;
/// `limit` where it is not.
Position LineBreaker::breakIn(Position from, Position limit) {
    Position at = skipGoingOn(from, limit);
    while (at < limit) {
        Item const& item = items[at.item];
        Position behind = {at.item + 1, 0};
        if (item.kind == Item::Open) {
            behind = takeElement(at.item, limit);
        } else if (item.kind == Item::Close) {
            // Of an element that does not fit, although all in it did.
            if (item.other >= from.item || hasLevel(item)) return cutAtLevel(behind, limit);
            if (!takeGoingOn(at.item, from)) return cut({true, at, behind}, limit);
        } else if (item.kind == Item::Words) {
            std::string_view words = items.text(item);
            if (limit.item == at.item) words = words.substr(0, limit.offset);
            at = takeFittingWords(at, words);
            words.remove_prefix(at.offset);
            std::size_t const length = firstWord(words).length();
            if (length < words.length()) {
                behind = {at.item, at.offset + static_cast<std::uint32_t>(length)};
            }
            if (length > 0) return cut({!levels.back().hasChild, at, behind}, limit);
        } else {
            std::int64_t width = item.bytes.length;
            if (item.kind == Item::Block) width = item.block->dimensions.content.width;
            if (width > room) return cut({!levels.back().hasChild, at, behind}, limit);
            take(width);
        }
        at = behind;
    }
    return opensHere() ? cutAtLevel(limit, limit) : limit;
}

/// Begins the line, and takes the outermost element that goes on and fits, or all of the line.
/// Returns what is to be looked at.
Position LineBreaker::skipGoingOn(Position from, Position limit) {
    room = available;
    levels.assign(1, {});
    edgesGoingOn = 0;
    for (std::uint32_t const opened : goingOn) edgesGoingOn += items.width(opened);
    if (widthOf(from, limit) + edgesGoingOn <= available) return limit;
    for (std::uint32_t const opened : goingOn) {
        std::uint32_t const closed = items[opened].other;
        Position const end = std::min(limit, Position{closed, 0});
        std::int64_t const content = widthOf(from, end) + edgesGoingOn - items.width(opened);
        if (content <= available) {
            take(content);
            return end < limit ? Position{closed + 1, 0} : limit;
        }
        edgesGoingOn -= items.width(opened);
        levels.push_back({});
    }
    return from;
}

/// Takes something in that fits.
void LineBreaker::take(std::int64_t columns) {
    room -= columns;
    levels.back().hasChild = true;
}

/// Takes an element whole, or where it does not fit begins with what is in it. Returns what is to
/// be looked at next.
Position LineBreaker::takeElement(std::uint32_t opened, Position limit) {
    Position const begin = {opened + 1, 0};
    std::uint32_t const closed = items[opened].other;
    Position const end = std::min(limit, Position{closed, 0});
    std::int64_t const content = widthOf(begin, end);
    if (content > room) {
        levels.push_back({opened, !levels.back().hasChild});
        return begin;
    }
    take(content);
    return end < limit ? Position{closed + 1, 0} : limit;
}

/// Takes the words from `at` on that fit, of `words` up to the limit. Returns where they end.
Position LineBreaker::takeFittingWords(Position at, std::string_view words) {
    words.remove_prefix(at.offset);
    std::size_t const fitting = lengthOfFitting(words, room);
    if (fitting > 0) take(static_cast<std::int64_t>(fitting));
    return {at.item, at.offset + static_cast<std::uint32_t>(fitting)};
}

/// Takes an element without a level that has gone on up to here, unless it does not fit.
bool LineBreaker::takeGoingOn(std::uint32_t close, Position from) {
    room = available - widthOf(from, {close, 0}) - edgesGoingOn;
    levels.back().hasChild = true;
    return room >= 0;
}

/// Cuts at the element of the innermost level, behind which is `end`.
Position LineBreaker::cutAtLevel(Position end, Position limit) {
    Level const level = levels.back();
    levels.pop_back();
    return cut({level.isFirst, {level.open, 0}, end}, limit);
}

/// The break nearest to what does not fit, from there outwards; `limit` where it is alone on the
/// line.
Position LineBreaker::cut(Unfitting part, Position limit) {
    for (;;) {
        if (!part.isFirst) return part.begin;
        bool const isLast = part.end >= limit;
        if (!isLast && items[part.end.item].kind != Item::Close) return part.end;
        if (isLast && !opensHere()) return limit;
        // The last in its parent, which is looked at next.
        part.isFirst = true;
        if (opensHere()) {
            part.isFirst = levels.back().isFirst;
            part.begin = {levels.back().open, 0};
            levels.pop_back();
        }
        if (!isLast) part.end = {part.end.item + 1, 0};
    }
}

}  // namespace CLI::XML
