#include "web/flow/TextBreaker.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "web/flow/scanText.h"
#include "web/text/LineBreaks.h"

namespace galley::web {

namespace {

using Kind = Item::Kind;

bool isText(Item const& item) {
    return item.kind == Kind::words || item.kind == Kind::word || item.kind == Kind::ideographs ||
           item.kind == Kind::blank || item.kind == Kind::blanks ||
           (item.kind == Kind::breakable && !item.mayBreakBehind);
}

}  // namespace

bool TextBreaker::goesOn(Place begin, Place place) const {
    if (place.item >= paragraph.end()) return false;
    Item const& first = paragraph.items()[begin.item];
    Item const& item = paragraph.items()[place.item];
    bool const isNextText = item.beginsText && place.item > begin.item && place.offset == 0;
    return isText(first) && isText(item) && item.element == first.element && !isNextText;
}

bool TextBreaker::mayBreakBehindRest(Place begin, Place end) {
    if (begin.offset == 0 || end.item != begin.item + 1 || end.offset > 0) return true;
    std::size_t const next = textAt(end);
    if (next >= paragraph.end()) return true;
    auto const& items = paragraph.items();
    std::string_view const rest = paragraph.textOf(items[begin.item]).substr(begin.offset);
    return mayBreakBehindFirst(rest, paragraph.textOf(items[next]));
}

bool TextBreaker::isBlank(Place place) const {
    if (place.item >= paragraph.end()) return false;
    Item const& item = paragraph.items()[place.item];
    if (item.kind == Kind::words) return paragraph.textOf(item)[place.offset] == ' ';
    return item.kind == Kind::blank || item.kind == Kind::blanks || item.kind == Kind::tab;
}

Place TextBreaker::behindBlank(Place place, int& cells) const {
    Item const& item = paragraph.items()[place.item];
    if (item.kind == Kind::words) {
        cells = 1;
        return paragraph.behind(place, 1);
    }
    cells = static_cast<int>(item.width);
    return {place.item + 1, 0};
}

int TextBreaker::blanksAtEnd(Place begin, Place end) const {
    if (end <= begin) return 0;
    if (end.offset > 0) {
        std::string_view const text = paragraph.textOf(paragraph.items()[end.item]);
        return text[end.offset - 1] == ' ' ? 1 : 0;
    }
    Item const& last = paragraph.items()[end.item - 1];
    if (last.kind == Kind::words) return 1;
    return last.kind == Kind::blank || last.kind == Kind::blanks ? static_cast<int>(last.width) : 0;
}

TextPart TextBreaker::take(Place begin, int room, int roomWithHyphen, Parting parting) {
    auto const scan = [&](int cells) {
        return scanText(paragraph, *this, begin, std::max(cells, 0), parting);
    };
    TextPart part = scan(room);
    bool const isTooLong = part.hyphenates && !part.isLeast && part.width == roomWithHyphen;
    if (isTooLong && part.width <= room) part = scan(room - 1);
    if (part.hyphenates) ++part.width;
    bool const hasEnd = part.end > begin;
    part.fits = hasEnd && part.width <= roomWithHyphen;
    if (hasEnd && !goesOn(begin, part.end)) {
        part.mayEndLine = parting == Parting::anywhere ||
                          (isOpportunity(part.end) && mayBreakBehindRest(begin, part.end));
    }
    return part;
}

TextPart TextBreaker::takeAll(Place begin) const {
    TextPart part;
    for (part.end = begin; goesOn(begin, part.end); part.end = {part.end.item + 1, 0}) {
        Item const& item = paragraph.items()[part.end.item];
        bool const isMeasured = part.end.offset == 0 && item.width > 0;
        part.width += isMeasured ? static_cast<int>(item.width)
                                 : widthFrom(paragraph, part.end, std::numeric_limits<int>::max());
    }
    return part;
}

bool TextBreaker::isBeforeBlank(Place place) {
    std::size_t const next = textAt(place);
    if (next >= paragraph.end()) return false;
    Item const& item = paragraph.items()[next];
    if (item.kind == Kind::word) return paragraph.textOf(item).starts_with(' ');
    return item.kind == Kind::blank || item.kind == Kind::blanks || item.kind == Kind::tab ||
           item.kind == Kind::lineFeed;
}

bool TextBreaker::isBehindBlank(Place place) {
    std::size_t const last = textBefore(place);
    if (last == 0) return false;
    Kind const kind = paragraph.items()[last - 1].kind;
    return kind != Kind::word && kind != Kind::ideographs && kind != Kind::breakable;
}

bool TextBreaker::isBehindText(Place place) {
    std::size_t const last = textBefore(place);
    return last > 0 && !isBehindBlank(place) &&
           !paragraph.textOf(paragraph.items()[last - 1]).ends_with(' ');
}

bool TextBreaker::isOpportunity(Place place) {
    if (textAt(place) >= paragraph.end()) return true;
    std::size_t const last = textBefore(place);
    if (last == 0) return false;
    if (isBehindBlank(place)) return !isBeforeBlank(place);
    Item const& item = paragraph.items()[last - 1];
    return item.kind != Kind::word || item.mayBreakBehind;
}

/// The first item at a place, or behind it, that is neither the beginning nor the end of an
/// element.
std::size_t TextBreaker::textAt(Place place) {
    findTags(place);
    return nextText;
}

/// One past the last such item before a place; 0 without one.
std::size_t TextBreaker::textBefore(Place place) {
    findTags(place);
    return behindText;
}

void TextBreaker::findTags(Place place) {
    if (place.item >= behindText && place.item <= nextText) return;
    auto const& items = paragraph.items();
    behindText = nextText = place.item;
    while (behindText > 0 && isTag(items[behindText - 1])) --behindText;
    while (nextText < paragraph.end() && isTag(items[nextText])) ++nextText;
}

}  // namespace galley::web
