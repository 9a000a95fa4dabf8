#include "web/flow/LineBreaker.h"

#include <algorithm>

#include "web/flow/lengths.h"

namespace galley::web {

using Kind = Item::Kind;

bool LineBreaker::mayPart(Style const& style, Purpose purpose, Wrapping wrapping) {
    if (!wraps(style)) return false;
    if (style.overflowWrap == OverflowWrap::anywhere) return true;
    if (wrapping == Wrapping::anywhere && style.wrapsAsCell) return true;
    return style.overflowWrap == OverflowWrap::breakWord && purpose == Purpose::layingOut;
}

TextLine LineBreaker::next(Place from, int columns, int indentation) {
    line = TextLine();
    line.begin = from;
    indent = indentation;
    available = columns - indent;
    isParting = false;
    fillAgain();
    while (state != State::done) step();
    finish();
    return line;
}

void LineBreaker::step() {
    if (isAtEnd(at)) return takeEnd();
    if (state == State::overflowing && mayEndBehindLast()) state = State::trailing;
    Item const& item = paragraph.items()[at.item];
    switch (item.kind) {
        case Kind::open:
            return takeOpen(item);
        case Kind::close:
            return takeClose(item);
        case Kind::lineFeed:
            return takeLineFeed();
        case Kind::breakable:
            return item.mayBreakBehind ? takeBreakable() : takeText(item);
        default:
            return takeText(item);
    }
}

LineBreaker::Part& LineBreaker::add(Place end, int width) {
    Part& part = parts.emplace_back(Part{.begin = at, .end = end, .width = width});
    used += width;
    at = end;
    return part;
}

void LineBreaker::takeEnd() {
    if (state == State::filling && used > available) overflow();
    if (!isAtEnd(at)) return;
    removeHyphen();
    line.isLast = true;
    state = State::done;
}

void LineBreaker::takeOpen(Item const& item) {
    add({at.item + 1, 0}, paragraph.element(item).leftEdge(container));
}

void LineBreaker::takeClose(Item const& item) {
    Inline const& element = paragraph.element(item);
    Part& part = add({at.item + 1, 0}, element.rightEdge(container));
    if (parts.size() < 2) return;
    Part& last = parts[parts.size() - 2];
    Style const& outer = *paragraph.around(element).style;
    if (last.mayEndLine) {
        last.mayEndLine = false;
        part.mayEndLine = true;
    } else if (wraps(*element.style)) {
        bool const isPreserved = outer.whiteSpace == WhiteSpace::preWrap;
        part.mayEndLine = texts.isBeforeBlank(at) && !isBeforeOpen() &&
                          (!isPreserved || texts.isBehindBlank(part.begin));
    } else if (wraps(outer) && texts.isBehindText(part.begin)) {
        part.mayPart = mayPart(outer);
        bool const isParted = isParting || state == State::overflowing;
        part.mayEndLine = (isParted && part.mayPart) || texts.isOpportunity(at);
    }
}

/// Whether an element begins next, others ending before it.
bool LineBreaker::isBeforeOpen() const {
    std::size_t next = at.item;
    while (next < paragraph.end() && paragraph.items()[next].kind == Kind::close) ++next;
    return next < paragraph.end() && paragraph.items()[next].kind == Kind::open;
}

void LineBreaker::takeBreakable() { add({at.item + 1, 0}, 0).mayEndLine = true; }

/// Ends of elements behind a line feed stay before it.
void LineBreaker::takeLineFeed() {
    if (state == State::filling && used > available) return overflow();
    add({at.item + 1, 0}, 0).mayEndLine = true;
    while (!isAtEnd(at) && paragraph.items()[at.item].kind == Kind::close) {
        takeClose(paragraph.items()[at.item]);
    }
    removeHyphen();
    line.isLast = true;
    state = State::done;
}

void LineBreaker::takeText(Item const& item) {
    if (state == State::trailing) return takeTrailingBlanks();
    Style const& style = styleOf(item);
    int cells = 0;
    if (isLeading && !preserves(style) && texts.isBlank(at)) {
        Place const begin = at;
        at = texts.behindBlank(at, cells);
        if (!texts.goesOn(begin, at)) return;
    }
    if (state == State::filling && used > available) {
        if (wraps(style) && texts.isBlank(at)) {
            takeTrailingBlanks();
            if (state != State::done) {
                state = State::filling;
                return;
            }
        }
        return overflow();
    }
    removeHyphen();
    isLeading = false;
    if (wraps(style)) return takeWrapped(item);
    bool const isTab = item.kind == Kind::tab;
    TextPart const all = isTab ? TextPart{.end = {at.item + 1, 0}, .width = cellsToTabStop(style)}
                               : texts.takeAll(at);
    add(all.end, all.width);
}

/// Takes what there is room for of a text whose lines may break.
void LineBreaker::takeWrapped(Item const& item) {
    int const room = available - used;
    TextPart const taken = breakText(at, room, room);
    std::size_t const index = parts.size();
    Part& part = add(taken.end, taken.width);
    part.mayEndLine = taken.mayEndLine;
    part.isBreakable = !taken.isLeast;
    part.mayPart = mayPart(styleOf(item));
    part.hyphenates = taken.hyphenates;
    if (taken.hyphenates) hyphenated = index;
    if (taken.fits) {
        if (isWithin(at)) takeTrailingBlanks();
        return;
    }
    if (part.end == part.begin) return overflow();
    if (taken.hangs) {
        state = State::trailing;
        if (preserves(styleOf(item))) goBack(index);
    } else if (state == State::overflowing) {
        if (taken.mayEndLine) state = State::trailing;
    } else if (texts.blanksAtEnd(part.begin, part.end) < part.width) {
        overflow();
    }
}

TextPart LineBreaker::breakText(Place begin, int room, int roomWithHyphen) {
    Item const& item = paragraph.items()[begin.item];
    Style const& style = styleOf(item);
    if (item.kind == Kind::tab) {
        TextPart tab = {.end = {begin.item + 1, 0}, .width = cellsToTabStop(style)};
        tab.fits = tab.width <= room;
        tab.hangs = !tab.fits;
        tab.mayEndLine = !texts.isBeforeBlank(tab.end);
        return tab;
    }
    Parting parting = Parting::opportunities;
    if (mayPart(style)) parting = isParting ? Parting::anywhere : Parting::fittingOpportunities;
    return texts.take(begin, room, roomWithHyphen, parting);
}

int LineBreaker::cellsToTabStop(Style const& style) const {
    if (style.tabSize == 0) return 0;
    return style.tabSize - (indent + used) % style.tabSize;
}

/// Takes the white space of a text behind the last opportunity. If the text goes on, the line is
/// done.
void LineBreaker::takeTrailingBlanks() {
    Item const& item = paragraph.items()[at.item];
    Style const& style = styleOf(item);
    Place const begin = at;
    bool const isBlank = wraps(style) && texts.isBlank(at);
    if (isBlank) {
        int cells = 0;
        Place const behind = texts.behindBlank(at, cells);
        if (item.kind == Kind::tab) cells = cellsToTabStop(style);
        if (preserves(style)) {
            add(behind, cells).mayEndLine = !texts.isBlank(behind);
        } else {
            at = behind;
            parts.back().mayEndLine = true;
        }
    }
    state = isBlank && !texts.goesOn(begin, at) ? State::trailing : State::done;
}

void LineBreaker::finish() {
    if (!line.isLast) leaveOpenTags();
    line.end = at;
    line.hyphenates = hyphenated.has_value();
    line.width = used - trailingBlanks();
}

/// Elements that begin at the end of a line begin on the next one.
void LineBreaker::leaveOpenTags() {
    std::size_t count = parts.size();
    while (count > 0 && itemOf(parts[count - 1]).kind == Kind::open) --count;
    if (count > 0 && count < parts.size()) {
        at = parts[count].begin;
        while (parts.size() > count) {
            used -= parts.back().width;
            parts.pop_back();
        }
    }
}

/// Cells of the white space at the end that hangs. What counts does so at the end of a last line
/// only as far as there is no room.
int LineBreaker::trailingBlanks() const {
    int cells = 0;
    bool counts = false;
    bool isBeforeEdge = false;
    for (std::size_t i = parts.size(); i-- > 0;) {
        Part const& part = parts[i];
        Item const& item = itemOf(part);
        isBeforeEdge = isBeforeEdge || (isTag(item) && part.width > 0);
        bool const isEmpty = item.kind == Kind::breakable && item.mayBreakBehind;
        if (isTag(item) || isEmpty || item.kind == Kind::lineFeed) continue;
        Style const& style = styleOf(item);
        if (style.whiteSpace == WhiteSpace::pre || (isBeforeEdge && preserves(style))) break;
        bool const isTab = item.kind == Kind::tab;
        int const blanks = isTab ? part.width : texts.blanksAtEnd(part.begin, part.end);
        cells += blanks;
        counts = preserves(style);
        if (blanks < part.width || !counts) break;
    }
    return line.isLast && counts ? std::clamp(used - available, 0, cells) : cells;
}

}  // namespace galley::web
