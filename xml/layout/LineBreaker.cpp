#include "xml/layout/LineBreaker.h"

#include <limits>

namespace CLI::XML {

namespace {

std::int32_t outerWidth(ElementStyle const& style, std::int32_t width) {
    if (!style.isStyled) return width;
    Dimensions box = style.box;
    box.content.width = width;
    return box.marginBox().width;
}

}  // namespace

LineBreaker::LineBreaker(Items const& paragraph, Position end, std::int32_t columns)
    : items(paragraph), available(columns), limits{end} {}

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
        if (item.kind < Item::Open || !item.style->isStyled) continue;
        if (item.kind == Item::Open) {
            goingOn.push_back(item.style);
        } else {
            goingOn.pop_back();
        }
    }
}

void LineBreaker::begin() {
    room = available;
    levels.assign(1 + goingOn.size(), {.room = available});
}

/// Where what is between `from` and `limit` has to be broken to fit, as far as one look tells;
/// `limit` where it is not.
Position LineBreaker::breakIn(Position from, Position limit) {
    begin();
    for (Position at = from; at < limit; at = {at.item + 1, 0}) {
        Item const& item = items[at.item];
        std::optional<Position> found;
        switch (item.kind) {
            case Item::Words:
                found = takeWords(at, limit);
                break;
            case Item::Word:
                found = takeWord(at, items.text(item), {at.item + 1, 0}, limit);
                break;
            case Item::Open:
                open(at.item);
                break;
            case Item::Close:
                found = takeClose(at.item, from, limit);
                break;
        }
        if (found) return *found;
    }
    return takeEnd(limit);
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
        return takeWord(at, word, behind, limit);
    }
    take(room - static_cast<std::int64_t>(fitting), static_cast<std::int64_t>(fitting));
    if (fitting == words.length()) return std::nullopt;
    return Position{at.item, at.offset + static_cast<std::uint32_t>(fitting)};
}

std::optional<Position> LineBreaker::takeWord(Position at, std::string_view word, Position behind,
                                              Position limit) {
    auto const width = static_cast<std::int64_t>(word.length());
    if (width > room) return cut({!levels.back().hasChild, at, behind}, limit);
    take(room - width, width);
    return std::nullopt;
}

void LineBreaker::open(std::uint32_t item) {
    levels.push_back({.room = room, .open = item, .isFirst = !levels.back().hasChild});
}

std::optional<Position> LineBreaker::takeClose(std::uint32_t close, Position from, Position limit) {
    Item const& item = items[close];
    bool const hasLevel = item.other >= from.item || item.style->isStyled;
    Level const level = levels.back();
    if (hasLevel) levels.pop_back();
    if (level.width > level.room) {
        return cut({level.isFirst, {item.other, 0}, {close + 1, 0}}, limit);
    }
    take(level.room - level.width, hasLevel ? outerWidth(*item.style, level.width) : 0);
    return std::nullopt;
}

/// The elements that are open at `limit`, and opened on the line, end there.
Position LineBreaker::takeEnd(Position limit) {
    while (opensHere()) {
        Level const level = levels.back();
        levels.pop_back();
        if (level.width > level.room) return cut({level.isFirst, {level.open, 0}, limit}, limit);
        take(level.room - level.width, outerWidth(*items[level.open].style, level.width));
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
