#include "xml/layout/LineBreaker.h"

#include <algorithm>

#include "xml/layout/layOut.h"

namespace CLI::XML {

LineBreaker::LineBreaker(Items const& paragraph, std::int32_t columns)
    : items(paragraph), available(columns), limits{{paragraph.count(), 0}} {
    if (items.mayShrink()) sums.emplace(items);
}

Walk LineBreaker::layOutBlocks(Position from) {
    Position const limit = limits.back();
    begin();
    std::int64_t seen = 0;
    std::int64_t widest = 0;
    for (Position at = from; at < limit && seen <= std::max<std::int64_t>(available, widestBlock);
         at = {at.item + 1, 0}) {
        Item const& item = items[at.item];
        if (item.kind == Item::Open) {
            levels.push_back({.open = at.item});
        } else if (item.kind == Item::Close) {
            take(0, endLevel(at.item, from));
        } else {
            std::int64_t width = 0;
            if (item.kind == Item::Block) {
                Dimensions around;
                around.content.width = levels.back().width;
                co_await layOut(*item.box, around, LayoutPass::Again);
                width = item.box->dimensions.marginBox().width;
                widest = std::max(widest, width);
            } else {
                width = item.bytes.length - at.offset;
            }
            seen += width;
            take(0, width);
        }
    }
    if (from == Position()) widestBlock = widest;
}

Position LineBreaker::next(Position from) {
    // A width that is cut off at the largest one does not exceed it.
    if (available == std::numeric_limits<std::int32_t>::max()) return limits.back();
    for (;;) {
        Position const limit = limits.back();
        Position const end = breakIn(from, limit);
        if (end == limit && limits.size() > 1) limits.pop_back();
        if (end == limit || !holdsOpen(from, end)) {
            accept(from, end);
            return end;
        }
        limits.push_back(end);
    }
}

/// Whether an element opens in a part: only then there may be another break in it.
bool LineBreaker::holdsOpen(Position from, Position end) const {
    for (std::uint32_t i = from.item; i < end.item; ++i) {
        if (items[i].kind == Item::Open) return true;
    }
    return false;
}

void LineBreaker::accept(Position from, Position end) {
    for (std::uint32_t i = from.item; i < end.item; ++i) {
        Item const& item = items[i];
        if (item.kind < Item::Open || !mayGoOn(item)) continue;
        if (item.kind == Item::Open) {
            goingOn.push_back(i);
        } else {
            goingOn.pop_back();
        }
    }
}

/// Whether an element has a level on each line that it goes on on.
bool LineBreaker::mayGoOn(Item const& item) const { return sums || items.edges(item).hasEdges(); }

void LineBreaker::begin() {
    room = available;
    levels.assign(1 + goingOn.size(), {.room = available});
}

/// Where what is between `from` and `limit` has to be broken to fit, as far as one look tells;
/// `limit` where it is not.
Position LineBreaker::breakIn(Position from, Position limit) {
    begin();
    Position at = sums ? skipGoingOn(from, limit) : from;
    while (at < limit) {
        Item const& item = items[at.item];
        Position behind = {at.item + 1, 0};
        std::optional<Position> found;
        switch (item.kind) {
            case Item::Words:
                found = takeWords(at, limit);
                break;
            case Item::Word:
                found = takeWhole(at, {item.bytes.length, item.bytes.length}, behind, limit);
                break;
            case Item::Block: {
                Dimensions const& box = item.box->dimensions;
                found = takeWhole(at, {box.content.width, box.marginBox().width}, behind, limit);
                break;
            }
            case Item::Open:
                behind = takeOpen(at.item, limit);
                break;
            case Item::Close:
                found = takeClose(at.item, from, limit);
                break;
        }
        if (found) return *found;
        at = behind;
    }
    return takeEnd(limit);
}

/// Takes the outermost element that goes on and fits whole, or all of the line, and returns what is
/// behind it; `from` where none does.
Position LineBreaker::skipGoingOn(Position from, Position limit) {
    std::int64_t edges = 0;
    for (std::uint32_t const opened : goingOn) edges += sums->edges(opened);
    if (sums->between(from, limit) + edges <= available) return limit;
    for (std::size_t i = 0; i < goingOn.size(); ++i) {
        std::uint32_t const closed = items[goingOn[i]].other;
        Position const end = std::min(limit, Position{closed, 0});
        std::int64_t const own = sums->edges(goingOn[i]);
        edges -= own;
        std::int64_t const content = sums->between(from, end) + edges;
        if (content > available) continue;
        levels.resize(1 + i);
        take(available - content, content + own);
        return end < limit ? Position{closed + 1, 0} : limit;
    }
    return from;
}

/// Takes something in whole.
void LineBreaker::take(std::int64_t columnsLeft, std::int64_t width) {
    room = columnsLeft;
    Level& level = levels.back();
    level.width = saturate(level.width + width);
    level.hasChild = true;
}

std::optional<Position> LineBreaker::takeWords(Position at, Position limit) {
    std::string_view words = items.text(items[at.item]);
    if (limit.item == at.item) words = words.substr(0, limit.offset);
    words.remove_prefix(at.offset);
    auto const length = static_cast<std::int64_t>(words.length());
    std::size_t fitting = words.length();
    if (length > room) {
        fitting = room > 0 ? words.rfind(' ', static_cast<std::size_t>(room) - 1) + 1 : 0;
    }
    if (fitting == 0) {
        std::string_view const word = Items::firstWord(words);
        Position behind = {at.item, at.offset + static_cast<std::uint32_t>(word.length())};
        if (word.length() == words.length()) behind = {at.item + 1, 0};
        auto const width = static_cast<std::int64_t>(word.length());
        return takeWhole(at, {width, width}, behind, limit);
    }
    take(room - static_cast<std::int64_t>(fitting), static_cast<std::int64_t>(fitting));
    if (fitting == words.length()) return std::nullopt;
    return Position{at.item, at.offset + static_cast<std::uint32_t>(fitting)};
}

std::optional<Position> LineBreaker::takeWhole(Position at, Width width, Position behind,
                                               Position limit) {
    if (width.content > room) return cut({!levels.back().hasChild, at, behind}, limit);
    take(room - width.content, width.outer);
    return std::nullopt;
}

/// What is to be looked at behind the start of an element: what is in it, unless it is known to
/// fit.
Position LineBreaker::takeOpen(std::uint32_t opened, Position limit) {
    Position const begin = {opened + 1, 0};
    if (sums) {
        std::uint32_t const closed = items[opened].other;
        Position const end = std::min(limit, Position{closed, 0});
        std::int64_t const content = sums->between(begin, end);
        if (content <= room) {
            take(room - content, content + sums->edges(opened));
            return end < limit ? Position{closed + 1, 0} : limit;
        }
    }
    levels.push_back({.room = room, .open = opened, .isFirst = !levels.back().hasChild});
    return begin;
}

std::optional<Position> LineBreaker::takeClose(std::uint32_t close, Position from, Position limit) {
    Level const level = levels.back();
    std::int64_t const outer = endLevel(close, from);
    if (level.width > level.room) {
        return cut({level.isFirst, {items[close].other, 0}, {close + 1, 0}}, limit);
    }
    take(level.room - level.width, outer);
    return std::nullopt;
}

/// Ends the level of an element that closes, and returns what it adds to the one around, in
/// columns.
std::int64_t LineBreaker::endLevel(std::uint32_t close, Position from) {
    Item const& item = items[close];
    if (item.other < from.item && !mayGoOn(item)) return 0;
    std::int32_t const width = levels.back().width;
    levels.pop_back();
    return items.outerWidth(item, width);
}

/// The elements that are open at `limit`, and opened on the line, end there.
Position LineBreaker::takeEnd(Position limit) {
    while (opensHere()) {
        Level const level = levels.back();
        levels.pop_back();
        if (level.width > level.room) return cut({level.isFirst, {level.open, 0}, limit}, limit);
        take(level.room - level.width, items.outerWidth(items[level.open], level.width));
    }
    return limit;
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
