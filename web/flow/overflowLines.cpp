// What becomes of a line that is too long.

#include <algorithm>

#include "web/flow/LineBreaker.h"

namespace galley::web {

using Kind = Item::Kind;

/// Goes back to the last opportunity for which all before it fits, within a part or behind one.
void LineBreaker::overflow() {
    int excess = used - available;
    bool const hadHyphen = hyphenated.has_value();
    bool arePartable = !isAtEnd(at) && mayPart(styleOf(paragraph.items()[at.item]));
    removeHyphen();
    std::size_t shortest = 0;
    for (std::size_t i = parts.size(); i-- > 0;) {
        arePartable = arePartable || parts[i].mayPart;
        if (i + 1 < parts.size() && parts[i].mayEndLine) {
            if (excess <= 0) return endBehind(i + 1);
            shortest = i + 1;
        }
        excess -= parts[i].width;
        if (excess < 0 && parts[i].isBreakable && shorten(i, -excess)) return;
    }
    // Where a text begins with a soft hyphen that alone has no room, the line ends before it.
    if (hadHyphen && parts.back().width == 0 && used > 0 && used <= available) {
        return endBehind(parts.size() - 1);
    }
    if (!isParting && arePartable) {
        isParting = true;
        return fillAgain();
    }
    if (hadHyphen) restoreHyphen();
    if (shortest > 0) return endBehind(shortest);
    state = mayEndBehindLast() ? State::trailing : State::overflowing;
}

/// Ends the line within a part, if there is an opportunity for which that many cells suffice.
bool LineBreaker::shorten(std::size_t index, int room) {
    Part& part = parts[index];
    if (part.width == 0) return false;
    TextPart const shorter = breakText(part.begin, std::min(room, part.width - 1), room);
    if (!shorter.fits || !shorter.mayEndLine || shorter.end >= part.end) return false;
    used += shorter.width - part.width;
    part.end = shorter.end;
    part.width = shorter.width;
    part.mayEndLine = true;
    part.hyphenates = shorter.hyphenates;
    if (shorter.hyphenates) hyphenated = index;
    if (index + 1 < parts.size()) {
        state = State::trailing;
        goBack(index + 1);
    } else {
        at = part.end;
        takeTrailingBlanks();
    }
    return true;
}

void LineBreaker::fillAgain() {
    at = line.begin;
    state = State::filling;
    parts.clear();
    used = 0;
    hyphenated.reset();
    isLeading = true;
}

/// Ends the line behind so many parts, and those behind them that trail: white space, and elements
/// that are empty.
void LineBreaker::endBehind(std::size_t count) {
    std::size_t depth = 0;
    std::size_t outermost = count;
    for (std::size_t i = count; i < parts.size(); ++i) {
        Item const& item = itemOf(parts[i]);
        if (item.kind == Kind::open) {
            if (depth++ == 0) outermost = i;
        } else if (item.kind == Kind::close) {
            if (depth > 0) --depth;
        } else if (!isTrailing(parts[i])) {
            bool const beginsBlank = texts.isBlank(parts[i].begin) && isWrapping(item);
            state = beginsBlank ? State::trailing : State::done;
            return goBack(beginsBlank || depth == 0 ? i : outermost);
        }
    }
    state = State::done;
    if (depth > 0) return goBack(outermost);
    line.isLast = isAtEnd(at);
}

/// White space or a `wbr`.
bool LineBreaker::isTrailing(Part const& part) const {
    Item const& item = itemOf(part);
    if (!isWrapping(item)) return false;
    if (item.kind == Kind::tab || (item.kind == Kind::breakable && item.mayBreakBehind)) {
        return true;
    }
    return part.end > part.begin && texts.blanksAtEnd(part.begin, part.end) == part.width &&
           texts.isBlank(part.begin);
}

/// Leaves so many parts, and goes on behind them.
void LineBreaker::goBack(std::size_t count) {
    at = count > 0 ? parts[count - 1].end : line.begin;
    isLeading = count == 0;
    parts.resize(count);
    if (hyphenated && *hyphenated >= count) hyphenated.reset();
    used = 0;
    for (Part const& part : parts) used += part.width;
    if (!hyphenated) restoreHyphen();
}

/// The line would end with a hyphen no more: something comes behind it.
void LineBreaker::removeHyphen() {
    if (!hyphenated) return;
    --parts[*hyphenated].width;
    --used;
    hyphenated.reset();
}

/// If the last text ends with a soft hyphen, shows it.
void LineBreaker::restoreHyphen() {
    for (std::size_t i = parts.size(); i-- > 0;) {
        if (isTag(itemOf(parts[i]))) continue;
        if (!parts[i].hyphenates) return;
        ++parts[i].width;
        ++used;
        hyphenated = i;
        return;
    }
}

}  // namespace galley::web
