#include "web/flow/Paragraph.h"

#include <algorithm>
#include <utility>

#include "web/flow/lengths.h"
#include "web/flow/transformText.h"
#include "web/text/utf8.h"

namespace galley::web {

namespace {

TextOptions optionsFor(Style const& style) {
    TextOptions options;
    options.isAmbiguousWide = style.cells.isAmbiguousWide;
    switch (style.whiteSpace) {
        case WhiteSpace::normal:
        case WhiteSpace::nowrap:
            options.whiteSpace = TextOptions::WhiteSpace::collapsed;
            break;
        case WhiteSpace::preLine:
            options.whiteSpace = TextOptions::WhiteSpace::lines;
            break;
        case WhiteSpace::pre:
        case WhiteSpace::preWrap:
            options.whiteSpace = TextOptions::WhiteSpace::preserved;
            break;
    }
    switch (style.wordBreak) {
        case WordBreak::normal:
            options.wordBreak = TextOptions::WordBreak::normal;
            break;
        case WordBreak::keepAll:
            options.wordBreak = TextOptions::WordBreak::keepAll;
            break;
        case WordBreak::breakAll:
            options.wordBreak = TextOptions::WordBreak::breakAll;
            break;
    }
    return options;
}

bool isTag(Item const& item) {
    return item.kind == Item::Kind::open || item.kind == Item::Kind::close;
}

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

void Paragraph::begin(Style const& block, Colour background) {
    text.clear();
    all.clear();
    elements.assign(1, {.style = &block, .look = lookOf(block, background), .around = background});
    current = 0;
    isBehindBlank = true;
    lastCharacter = ' ';
    contentEnd = 0;
}

Item& Paragraph::add(Item::Kind kind) {
    auto const at = static_cast<std::uint32_t>(text.size());
    return all.emplace_back(Item{.kind = kind, .element = current, .begin = at, .end = at});
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
    begin(*kept.front().style, kept.front().look.background);
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
    if (contentEnd == 0 || all[contentEnd - 1].kind == Item::Kind::lineFeed) return;
    while (contentEnd < all.size() && isTag(all[contentEnd])) ++contentEnd;
}

/// White space at the end of a line is none, whatever elements end behind it.
void Paragraph::dropBlank() {
    std::size_t end = all.size();
    while (end > 0 && isTag(all[end - 1])) --end;
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
    if (std::exchange(isBehindBlank, true)) return;
    Item& blank = add(Item::Kind::blank);
    blank.width = 1;
}

void Paragraph::addText(std::string_view decoded) {
    if (decoded.empty()) return;
    char32_t const before = lastCharacter;
    lastCharacter = decodeAt(decoded, startBefore(decoded, decoded.size())).value;
    if (style().textTransform != TextTransform::none) {
        std::string transformed;
        transformText(transformed, decoded, style().textTransform, before);
        addGenerated(transformed);
    } else {
        addGenerated(decoded);
    }
}

void Paragraph::addGenerated(std::string_view decoded) {
    joinTo(decoded);
    TextOptions const options = optionsFor(style());
    bool const isWrapped = style().whiteSpace == WhiteSpace::normal;
    SegmentReader reader(decoded, options);
    Segment segment;
    for (;;) {
        if (isWrapped) {
            std::string_view const words = reader.takeWords();
            if (!words.empty()) addWords(words);
        }
        if (style().whiteSpace == WhiteSpace::pre) {
            addUnbroken(reader.takeUnbroken());
        } else if (style().whiteSpace != WhiteSpace::nowrap) {
            addIdeographs(reader.takeIdeographs());
        }
        if (!reader.next(segment)) return;
        bool const isWord = isWrapped && segment.isPlain && segment.end > segment.begin &&
                            segment.behind == Segment::Behind::space;
        // A soft hyphen is there, since a word may be parted before it.
        bool const isHyphen = segment.behind == Segment::Behind::softHyphen;
        std::size_t const end = isHyphen ? segment.next : segment.end;
        std::string_view const bytes = decoded.substr(segment.begin, end - segment.begin);
        if (isWord) {
            addWords(bytes);
            text += ' ';
            ++all.back().end;
        } else {
            if (!bytes.empty()) addWord(bytes, segment);
            addBehind(segment);
        }
    }
}

/// Lets a line break between the last word and a text, if it may where both are one text.
void Paragraph::joinTo(std::string_view decoded) {
    constexpr std::size_t s_context = 16;
    auto last = all.rbegin();
    while (last != all.rend() &&
           (last->kind == Item::Kind::open || last->kind == Item::Kind::close)) {
        ++last;
    }
    if (last == all.rend() || last->kind != Item::Kind::word || last->mayBreakBehind) return;
    std::string_view const word = textOf(*last);
    std::size_t from = word.size() - std::min(word.size(), s_context);
    while (from < word.size() && (static_cast<unsigned char>(word[from]) & 0xC0U) == 0x80U) ++from;
    std::string joint(word.substr(from));
    joint += decoded.substr(0, s_context);
    std::size_t const place = word.size() - from;
    SegmentReader reader(joint, optionsFor(style()));
    Segment segment;
    while (reader.next(segment) && segment.next <= place) {
        bool const isOpportunity = segment.behind == Segment::Behind::opportunity;
        if (segment.next == place && isOpportunity) last->mayBreakBehind = true;
    }
}

/// Adds words with a blank behind each, or one whose blank is added next.
void Paragraph::addWords(std::string_view words) {
    isBehindBlank = true;
    bool const goesOn =
        !all.empty() && all.back().kind == Item::Kind::words && all.back().element == current;
    if (!goesOn) add(Item::Kind::words);
    contentEnd = all.size();
    text += words;
    all.back().end = static_cast<std::uint32_t>(text.size());
}

void Paragraph::addIdeographs(std::string_view ideographs) {
    if (ideographs.empty()) return;
    isBehindBlank = false;
    Item& added = add(Item::Kind::ideographs);
    added.isPlain = false;
    contentEnd = all.size();
    text += ideographs;
    added.end = static_cast<std::uint32_t>(text.size());
}

/// Adds blanks that count and words as one word.
void Paragraph::addUnbroken(std::string_view bytes) {
    if (bytes.empty()) return;
    addWord(bytes, {.width = bytes.size()});
}

void Paragraph::addWord(std::string_view bytes, Segment const& segment) {
    isBehindBlank = false;
    Item& word = add(Item::Kind::word);
    contentEnd = all.size();
    text += bytes;
    word.end = static_cast<std::uint32_t>(text.size());
    word.width = static_cast<std::uint32_t>(segment.width);
    word.isPlain = segment.isPlain;
    word.isPrintedAsIs = segment.isPrintedAsIs;
    word.hyphenates = segment.behind == Segment::Behind::softHyphen;
    word.mayBreakBehind = word.hyphenates || segment.behind == Segment::Behind::opportunity;
}

void Paragraph::addBehind(Segment const& segment) {
    bool const isPreserved =
        style().whiteSpace == WhiteSpace::pre || style().whiteSpace == WhiteSpace::preWrap;
    switch (segment.behind) {
        case Segment::Behind::space:
            if (isPreserved) {
                Item& blanks = add(Item::Kind::blanks);
                blanks.width = static_cast<std::uint32_t>(segment.next - segment.end);
                contentEnd = all.size();
                isBehindBlank = false;
            } else {
                addBlank();
            }
            break;
        case Segment::Behind::tab:
            add(Item::Kind::tab);
            contentEnd = all.size();
            isBehindBlank = false;
            break;
        case Segment::Behind::lineFeed:
            addLineFeed();
            break;
        case Segment::Behind::opportunity:
        case Segment::Behind::softHyphen:
            // Without a word before it, as at the beginning of a text.
            if (segment.begin == segment.end) add(Item::Kind::breakable);
            break;
        case Segment::Behind::end:
            break;
    }
}

}  // namespace galley::web
