#include "web/flow/LineBreaker.h"

#include <algorithm>

#include "web/flow/lengths.h"
#include "web/text/Cluster.h"
#include "web/text/ideographs.h"

namespace galley::web {

namespace {

bool wraps(Style const& style) {
    return style.whiteSpace != WhiteSpace::nowrap && style.whiteSpace != WhiteSpace::pre;
}

}  // namespace

bool LineBreaker::mayPart(Style const& style) const {
    if (!wraps(style)) return false;
    if (wrapping == Wrapping::anywhere || style.overflowWrap == OverflowWrap::anywhere) return true;
    return style.overflowWrap == OverflowWrap::breakWord && purpose == Purpose::layingOut;
}

TextLine LineBreaker::next(Place from, int cells) {
    line = TextLine();
    line.begin = from;
    available = cells;
    at = from;
    used = printed = 0;
    hasText = false;
    lastWord.reset();
    fitting = newest = {};
    while (!isAtEnd(at)) {
        if (step()) return line;
    }
    if (printed > available && fitting.isThere) {
        end(fitting);
    } else {
        line.isLast = true;
        end({at, printed, false, true});
    }
    return line;
}

/// Takes what is at `at`. Returns whether that ends the line.
bool LineBreaker::step() {
    Item const& item = paragraph.items()[at.item];
    Place const behind = {at.item + 1, 0};
    if (item.kind == Item::Kind::close) {
        int const edge = paragraph.element(item).rightEdge(container);
        if (newest.isThere && newest.place == at) {
            newest.place = behind;
            newest.width += edge;
        }
        used += edge;
        printed += edge;
        if (edge > 0 && printed > available && !fitting.isThere && partLastWord()) return true;
        at = behind;
        return false;
    }
    if (commit()) return true;
    Style const& style = styleOf(item);
    switch (item.kind) {
        case Item::Kind::words:
            return takeWords(item);
        case Item::Kind::word:
            return takeWord(item);
        case Item::Kind::ideographs:
            return takeIdeographs(item);
        case Item::Kind::blank:
            if (hasText) ++used;
            if (hasText && wraps(style)) offer(behind, printed);
            break;
        case Item::Kind::blanks:
        case Item::Kind::tab:
            used +=
                item.kind == Item::Kind::tab ? cellsToTabStop(style) : static_cast<int>(item.width);
            hasText = true;
            if (wraps(style)) {
                offer(behind, printed);
            } else {
                printed = used;
            }
            break;
        case Item::Kind::lineFeed:
            line.isLast = true;
            return end({behind, printed, false, true});
        case Item::Kind::breakable:
            if (wraps(style) || item.mayBreakBehind) offer(behind, printed);
            break;
        case Item::Kind::open:
            used += paragraph.element(item).leftEdge(container);
            printed += paragraph.element(item).leftEdge(container);
            break;
        case Item::Kind::close:
            break;
    }
    at = behind;
    return false;
}

int LineBreaker::cellsToTabStop(Style const& style) const {
    if (style.tabSize == 0) return 0;
    int const column = container - available + used;
    return style.tabSize - column % style.tabSize;
}

bool LineBreaker::takeWords(Item const& item) {
    std::string_view const words = paragraph.textOf(item).substr(at.offset);
    auto const length = static_cast<int>(words.size());
    int const room = available - used;
    if (length - 1 <= room) {
        hasText = true;
        used += length;
        printed = used - 1;
        at = {at.item + 1, 0};
        offer(at, printed);
        return false;
    }
    // The blank behind the last word that fits.
    std::size_t const blank =
        room > 0 ? words.rfind(' ', static_cast<std::size_t>(room)) : std::string_view::npos;
    if (blank != std::string_view::npos) return endInWords(blank);
    if (fitting.isThere) return end(fitting);
    if (mayPart(styleOf(item))) return part(item);
    return endInWords(words.find(' '));
}

/// Ends the line behind a blank in words, which are at `at`.
bool LineBreaker::endInWords(std::size_t blank) {
    auto const length = static_cast<std::uint32_t>(blank);
    Item const& item = paragraph.items()[at.item];
    Place place = {at.item, at.offset + length + 1};
    if (item.begin + place.offset == item.end) place = {at.item + 1, 0};
    return end({place, used + static_cast<int>(length), false, true});
}

bool LineBreaker::takeWord(Item const& item) {
    int const width = at.offset == 0 ? static_cast<int>(item.width) : restWidth(item);
    if (used + width > available) {
        if (fitting.isThere) return end(fitting);
        if (mayPart(styleOf(item))) return part(item);
    }
    hasText = true;
    lastWord = at;
    usedBeforeWord = used;
    used += width;
    printed = used;
    at = {at.item + 1, 0};
    if (item.mayBreakBehind && wraps(styleOf(item))) {
        offer(at, printed + (item.hyphenates ? 1 : 0), item.hyphenates);
    }
    return false;
}

bool LineBreaker::takeIdeographs(Item const& item) {
    auto const left = static_cast<int>((item.end - item.begin - at.offset) / s_ideographBytes);
    int const fit = std::max(0, available - used) / s_ideographCells;
    if (left <= fit) {
        hasText = true;
        used += left * s_ideographCells;
        printed = used;
        at = {at.item + 1, 0};
        offer(at, printed);
        return false;
    }
    if (fit == 0 && fitting.isThere) return end(fitting);
    if (fit == 0 && mayPart(styleOf(item))) return part(item);
    int const taken = std::max(1, fit);
    auto const bytes = static_cast<std::uint32_t>(taken) * std::uint32_t{s_ideographBytes};
    Place place = {at.item, at.offset + bytes};
    if (item.begin + place.offset == item.end) place = {at.item + 1, 0};
    return end({place, used + taken * s_ideographCells, false, true});
}

/// Cells of what is left of a word that was parted, or more than there is room for.
int LineBreaker::restWidth(Item const& item) const {
    std::string_view const rest = paragraph.textOf(item).substr(at.offset);
    if (item.isPlain) return static_cast<int>(rest.size());
    int width = 0;
    for (std::size_t i = 0; i < rest.size() && used + width <= available;) {
        Cluster const cluster = clusterAt(rest, i, styleOf(item).cells.isAmbiguousWide);
        width += static_cast<int>(cluster.width);
        i = cluster.end;
    }
    return width;
}

/// As much of a word as there is room for; something of it in any case where nothing is before it.
/// Not its last cluster unless `isAll`.
LineBreaker::Part LineBreaker::partOf(Item const& item, std::string_view word, bool isAll) const {
    bool const isAmbiguousWide = styleOf(item).cells.isAmbiguousWide;
    Part part;
    while (part.bytes < word.size()) {
        Cluster const cluster = clusterAt(word, part.bytes, isAmbiguousWide);
        auto const cells = static_cast<int>(cluster.width);
        bool const isFirst = part.bytes == 0 && !hasText;
        if (used + part.width + cells > available && !isFirst) break;
        if (!isAll && cluster.end == word.size()) break;
        part.width += cells;
        part.bytes = cluster.end;
    }
    return part;
}

/// The same of a word in which each byte is a cluster of one cell.
LineBreaker::Part LineBreaker::partOfPlain(std::string_view word, bool isAll) const {
    int const least = hasText ? 0 : 1;
    int const most = static_cast<int>(word.size()) - (isAll ? 0 : 1);
    int const taken = std::min(std::max(available - used, least), most);
    return {static_cast<std::size_t>(taken), taken};
}

/// Ends the line within a word, or before it: behind the last cluster that fits. A line has one at
/// least.
bool LineBreaker::part(Item const& item, bool isAll) {
    std::string_view const rest = paragraph.textOf(item).substr(at.offset);
    std::string_view const word = rest.substr(0, rest.find(' '));
    Part const fit = item.isPlain ? partOfPlain(word, isAll) : partOf(item, word, isAll);
    std::size_t taken = fit.bytes;
    if (taken == 0) {
        // A soft hyphen for which there is no room: the letter before it goes on, too.
        bool const isHyphenated = lastWord && paragraph.items()[lastWord->item].hyphenates;
        return (isHyphenated && partLastWord()) || endBefore(at);
    }
    // A blank behind the word hangs.
    if (taken < rest.size() && rest[taken] == ' ') ++taken;
    Place place = {at.item, at.offset + static_cast<std::uint32_t>(taken)};
    if (item.begin + place.offset == item.end) place = {at.item + 1, 0};
    return end({place, used + fit.width, false, true});
}

/// Parts the word before the end of an element, whose edge has no room behind it: its last cluster
/// goes on with the edge. Returns whether there is more than one.
bool LineBreaker::partLastWord() {
    if (!lastWord || lastWord->item + 1 != at.item) return false;
    Item const& word = paragraph.items()[lastWord->item];
    std::string_view const text = paragraph.textOf(word).substr(lastWord->offset);
    if (!mayPart(styleOf(word)) ||
        clusterAt(text, 0, styleOf(word).cells.isAmbiguousWide).end == text.size())
        return false;
    at = *lastWord;
    used = usedBeforeWord;
    hasText = false;
    return part(word, false);
}

/// Ends the line before a place; starts of elements there go with what is in them.
bool LineBreaker::endBefore(Place place) {
    int width = printed;
    while (place.item > line.begin.item + 1 &&
           paragraph.items()[place.item - 1].kind == Item::Kind::open) {
        --place.item;
        width -= paragraph.element(paragraph.items()[place.item]).leftEdge(container);
    }
    return end({place, width, false, true});
}

void LineBreaker::offer(Place place, int width, bool hyphenates) {
    newest = {place, width, hyphenates, true};
}

/// Something comes behind the newest opportunity. Returns whether the line ends there, or at one
/// before it.
bool LineBreaker::commit() {
    if (!newest.isThere) return false;
    Opportunity const opportunity = newest;
    newest.isThere = false;
    if (opportunity.width <= available) {
        fitting = opportunity;
        return false;
    }
    // A soft hyphen for which there is no room is none.
    if (opportunity.hyphenates && opportunity.width - 1 <= available) return false;
    return end(fitting.isThere ? fitting : opportunity);
}

bool LineBreaker::end(Opportunity const& where) {
    line.end = where.place;
    line.width = where.width;
    line.hyphenates = where.hyphenates;
    takeLineFeed();
    return true;
}

/// A line feed behind what did not fit ends this line, not an empty one.
void LineBreaker::takeLineFeed() {
    auto const& items = paragraph.items();
    if (line.end.offset > 0) return;
    for (std::uint32_t i = line.end.item; i < items.size(); ++i) {
        Item const& item = items[i];
        bool const isNothing =
            item.kind == Item::Kind::blank || item.kind == Item::Kind::breakable ||
            (item.kind == Item::Kind::close && paragraph.element(item).rightEdge(container) == 0);
        if (item.kind == Item::Kind::lineFeed && line.end.item > line.begin.item && !line.isLast) {
            line.end = {i + 1, 0};
            line.isLast = true;
        }
        if (!isNothing) return;
    }
}

}  // namespace galley::web
