#include "web/flow/Paragraph.h"

#include <algorithm>
#include <utility>

#include "web/flow/lengths.h"

namespace galley::web {

namespace {

/// A container in which any per cent are columns.
constexpr int s_wide = 100'000;

}  // namespace

int Inline::leftEdge(int columns) const {
    if (!begins) return 0;
    return across(style->margin.left, columns) + (style->border.left.isThere() ? 1 : 0) +
           across(style->padding.left, columns);
}

int Inline::rightEdge(int columns) const {
    if (!ends) return 0;
    return across(style->margin.right, columns) + (style->border.right.isThere() ? 1 : 0) +
           across(style->padding.right, columns);
}

void Paragraph::begin(Style const& block) {
    text.clear();
    all.clear();
    constexpr Colour s_ground = Colour::transparent();
    elements.assign(1, {.style = &block, .look = lookOf(block, s_ground), .around = s_ground});
    current = 0;
    isBehindBlank = true;
    lastCharacter = ' ';
    contentEnd = tagsBegin = textBegins = 0;
}

Item& Paragraph::add(Item::Kind kind) {
    auto const at = static_cast<std::uint32_t>(text.size());
    Item& added = all.emplace_back(Item{.kind = kind, .element = current, .begin = at, .end = at});
    if (!isTag(added)) tagsBegin = all.size();
    if (!isTag(added) && !isUnbrokenText(added)) textBegins = all.size();
    return added;
}

void Paragraph::open(Style const& style, Link const* link) {
    Inline const& around = elements[current];
    Colour const ground = around.look.background;
    Inline const opened = {.style = &style,
                           .look = lookOf(style, backgroundOf(style, ground),
                                          link != nullptr ? link : around.look.link),
                           .around = ground,
                           .parent = current};
    bool const hasEdge = opened.leftEdge(s_wide) > 0;
    current = static_cast<std::uint32_t>(elements.size());
    elements.push_back(opened);
    add(Item::Kind::open);
    // An edge makes a line, even without text.
    if (hasEdge) contentEnd = all.size();
}

void Paragraph::close() {
    add(Item::Kind::close);
    if (elements[current].rightEdge(s_wide) > 0) contentEnd = all.size();
    current = elements[current].parent;
}

void Paragraph::partInto(Paragraph& done) {
    finish();
    // Innermost last, as they were opened.
    std::vector<std::uint32_t> parted;
    for (std::uint32_t i = current; i > 0; i = elements[i].parent) parted.push_back(i);
    std::reverse(parted.begin(), parted.end());
    for (std::uint32_t const opened : parted) elements[opened].ends = false;
    done = *this;
    std::vector<Inline> const kept = std::move(elements);
    begin(*kept.front().style);
    for (std::uint32_t const opened : parted) {
        open(*kept[opened].style, kept[opened].look.link);
        elements.back().begins = false;
        elements.back().ends = true;
    }
    contentEnd = 0;
}

void Paragraph::finish() {
    dropBlank();
    // Elements that end or are empty there stand in the last line, too.
    std::size_t last = contentEnd;
    while (last > 0 && all[last - 1].kind == Item::Kind::close) --last;
    if (last == 0 || all[last - 1].kind == Item::Kind::lineFeed) return;
    while (contentEnd < all.size() && isTag(all[contentEnd])) ++contentEnd;
}

/// White space at the end of a line is none, whatever elements end behind it. What comes next, if
/// anything does, is a line feed, so that nothing asks for the content before it.
void Paragraph::dropBlank() {
    std::size_t const end = tagsBegin;
    if (end == 0) return;
    Item& last = all[end - 1];
    if (last.kind == Item::Kind::blank) {
        all.erase(all.begin() + static_cast<std::ptrdiff_t>(end) - 1);
        if (contentEnd >= end) --contentEnd;
    } else if (last.kind == Item::Kind::words) {
        std::string_view const words = textOf(last).substr(0, last.end - last.begin - 1);
        std::size_t const begin = words.rfind(' ') + 1;
        Item word = last;
        word.kind = Item::Kind::word;
        word.beginsText = last.beginsText && begin == 0;
        word.begin += static_cast<std::uint32_t>(begin);
        --word.end;
        word.width = word.end - word.begin;
        last.end = word.begin;
        if (begin == 0) {
            last = word;
        } else {
            all.insert(all.begin() + static_cast<std::ptrdiff_t>(end), word);
            ++contentEnd;
        }
    }
}

void Paragraph::addLineFeed() {
    dropBlank();
    isBehindBlank = true;
    lastCharacter = '\n';
    add(Item::Kind::lineFeed);
    contentEnd = all.size();
}

void Paragraph::addBreakable() { add(Item::Kind::breakable).mayBreakBehind = true; }

void Paragraph::addBlank() {
    if (std::exchange(isBehindBlank, true)) return keepOpportunity();
    Item& blank = add(Item::Kind::blank);
    blank.width = 1;
}

/// White space that is none behind a blank in an element whose lines do not break lets a line
/// break.
void Paragraph::keepOpportunity() {
    if (!wraps(style())) return;
    Item const* const last = lastContent();
    bool const isUnbroken = last != nullptr && last->kind == Item::Kind::blank &&
                            !wraps(*elements[last->element].style);
    if (isUnbroken) addBreakable();
}

}  // namespace galley::web
