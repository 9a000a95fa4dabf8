#include "web/flow/TextBreaker.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>

#include "web/text/Cluster.h"
#include "web/text/ideographs.h"

namespace galley::web {

namespace {

using Kind = Item::Kind;

constexpr int s_unlimited = std::numeric_limits<int>::max();
constexpr char32_t s_softHyphen = 0xAD;

bool isTag(Item const& item) { return item.kind == Kind::open || item.kind == Kind::close; }

bool isText(Item const& item) {
    return item.kind == Kind::words || item.kind == Kind::word || item.kind == Kind::ideographs ||
           item.kind == Kind::blank || item.kind == Kind::blanks ||
           (item.kind == Kind::breakable && !item.mayBreakBehind);
}

/// Cells of the text of an item from a place in it on, as far as they pass a number.
int widthFrom(Paragraph const& paragraph, Place place, int most) {
    Item const& item = paragraph.items()[place.item];
    std::string_view const text = paragraph.textOf(item).substr(place.offset);
    if (item.kind == Kind::ideographs) return cellsOfIdeographs(text);
    if (item.isPlain) return static_cast<int>(text.size());
    int width = 0;
    for (std::size_t i = 0; i < text.size() && width <= most;) {
        Cluster const cluster = clusterAt(text, i, paragraph.isAmbiguousWide());
        width += static_cast<int>(cluster.width);
        i = cluster.end;
    }
    return width;
}

/// Goes through a text up to where there is no more room.
class Scan {
public:
    Scan(Paragraph const& scanned, TextBreaker const& breaker, Place from, int cells, Parting how)
        : paragraph(scanned), texts(breaker), begin(from), at(from), room(cells), parting(how) {}

    TextPart run() {
        while (texts.goesOn(begin, at)) {
            if (takeItem()) return found;
        }
        finish({.end = at, .width = used, .hyphenates = paragraph.items()[at.item - 1].hyphenates});
        return found;
    }

private:
    /// Goes on, at least behind one cluster. Returns whether the part ends.
    bool takeItem() {
        Item const& item = paragraph.items()[at.item];
        if (item.kind == Kind::blank || item.kind == Kind::blanks) {
            return takeBlanks({at.item + 1, 0}, static_cast<int>(item.width));
        }
        if (item.kind == Kind::breakable) {
            at = {at.item + 1, 0};
            return offer(false);
        }
        std::string_view const text = paragraph.textOf(item).substr(at.offset);
        if (item.kind == Kind::ideographs) return takeIdeographs(text);
        if (parting == Parting::anywhere) return takeCluster(text);
        return item.kind == Kind::words ? takeWords(text) : takeWord(item);
    }

    bool takeWords(std::string_view words) {
        auto const length = static_cast<int>(words.size());
        std::size_t blank = words.size() - 1;
        if (overflows) {
            blank = words.find(' ');
        } else if (used + length > room) {
            blank = words.rfind(' ', static_cast<std::size_t>(room - used));
            if (blank == std::string_view::npos) return overflow();
        }
        at.offset += static_cast<std::uint32_t>(blank);
        used += static_cast<int>(blank);
        bool const endsHere =
            at != begin && (overflows || used + 1 > room || blank + 1 < words.size());
        if (endsHere) return finish({.end = at, .width = used, .mayEndLine = true});
        return takeBlanks(paragraph.behind(at, 1), 1);
    }

    bool takeWord(Item const& item) {
        int const left = room - used;
        bool const isWhole = at.offset == 0;
        int const width = isWhole ? static_cast<int>(item.width)
                                  : widthFrom(paragraph, at, overflows ? s_unlimited : left);
        if (!overflows && width > left) return overflow();
        used += width;
        at = {at.item + 1, 0};
        return item.mayBreakBehind && offer(item.hyphenates);
    }

    bool takeIdeographs(std::string_view text) {
        std::size_t const count = text.size() / s_ideographBytes;
        auto const fit = static_cast<std::size_t>(std::max(0, room - used) / s_ideographCells);
        std::size_t const taken = overflows ? 1 : std::min(count, fit);
        if (taken == 0) return overflow();
        used += static_cast<int>(taken) * s_ideographCells;
        at = paragraph.behind(at, taken * s_ideographBytes);
        return offer(false) || (taken < count && overflow());
    }

    bool takeCluster(std::string_view text) {
        Cluster const cluster = clusterAt(text, 0, paragraph.isAmbiguousWide());
        Place const behind = paragraph.behind(at, cluster.end);
        if (text.front() == ' ') return takeBlanks(behind, 1);
        auto const width = static_cast<int>(cluster.width);
        if (!overflows && used + width > room) return overflow();
        used += width;
        at = behind;
        return offer(cluster.first == s_softHyphen);
    }

    /// White space before which a line may end, or behind it if the part would be empty.
    bool takeBlanks(Place behind, int cells) {
        bool const isFirst = at == begin;
        TextPart const part = {.end = isFirst ? behind : at,
                               .width = isFirst ? cells : used,
                               .mayEndLine = true,
                               .hangs = isFirst && cells > room};
        if (overflows || used + cells > room) return finish(part);
        best = part;
        used += cells;
        at = behind;
        return false;
    }

    /// A line may end here.
    bool offer(bool hyphenates) {
        TextPart const part = {
            .end = at, .width = used, .hyphenates = hyphenates, .mayEndLine = true};
        if (overflows) return finish(part);
        best = part;
        return false;
    }

    /// What is next has no room: the part ends at the last opportunity, or goes on to the next.
    bool overflow() {
        if (best) return finish(*best);
        overflows = true;
        return parting == Parting::fittingOpportunities && finish({.end = begin});
    }

    bool finish(TextPart const& part) {
        found = part;
        found.isLeast = overflows;
        return true;
    }

    Paragraph const& paragraph;
    TextBreaker const& texts;
    Place begin;
    Place at;
    int room;
    Parting parting;
    int used = 0;
    bool overflows = false;
    std::optional<TextPart> best;
    TextPart found;
};

}  // namespace

bool TextBreaker::goesOn(Place begin, Place place) const {
    if (place.item >= paragraph.end()) return false;
    Item const& first = paragraph.items()[begin.item];
    Item const& item = paragraph.items()[place.item];
    return isText(first) && isText(item) && item.element == first.element;
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
        return Scan(paragraph, *this, begin, std::max(cells, 0), parting).run();
    };
    TextPart part = scan(room);
    bool const isTooLong = part.hyphenates && !part.isLeast && part.width == roomWithHyphen;
    if (isTooLong && part.width <= room) part = scan(room - 1);
    if (part.hyphenates) ++part.width;
    bool const hasEnd = part.end > begin;
    part.fits = hasEnd && part.width <= roomWithHyphen;
    if (hasEnd && !goesOn(begin, part.end)) {
        part.mayEndLine = parting == Parting::anywhere || isOpportunity(part.end);
    }
    return part;
}

TextPart TextBreaker::takeAll(Place begin) const {
    TextPart part;
    for (part.end = begin; goesOn(begin, part.end); part.end = {part.end.item + 1, 0}) {
        Item const& item = paragraph.items()[part.end.item];
        bool const isMeasured = part.end.offset == 0 && item.width > 0;
        part.width +=
            isMeasured ? static_cast<int>(item.width) : widthFrom(paragraph, part.end, s_unlimited);
    }
    return part;
}

bool TextBreaker::isBeforeBlank(Place place) {
    std::size_t const next = textAt(place);
    if (next >= paragraph.end()) return false;
    Kind const kind = paragraph.items()[next].kind;
    return kind == Kind::blank || kind == Kind::blanks || kind == Kind::tab ||
           kind == Kind::lineFeed;
}

bool TextBreaker::isBehindBlank(Place place) {
    std::size_t const last = textBefore(place);
    if (last == 0) return false;
    Kind const kind = paragraph.items()[last - 1].kind;
    return kind != Kind::word && kind != Kind::ideographs && kind != Kind::breakable;
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
