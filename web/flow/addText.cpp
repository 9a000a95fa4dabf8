// How text becomes items of a paragraph.

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "web/flow/Paragraph.h"
#include "web/flow/textOptions.h"
#include "web/flow/transformText.h"
#include "web/text/utf8.h"
#include "web/text/whiteSpace.h"

namespace galley::web {

void Paragraph::addText(std::string_view decoded) {
    if (decoded.empty()) return;
    bool const isCollapsed = style().whiteSpace == WhiteSpace::normal;
    if (isBehindBlank && isCollapsed && isBlank(decoded)) {
        keepOpportunity();
    } else if (style().textTransform != TextTransform::none) {
        std::string transformed;
        transformText(transformed, decoded, style().textTransform, lastCharacter);
        addGenerated(transformed);
    } else {
        addGenerated(decoded);
    }
    lastCharacter = isAscii(decoded.back())
                        ? static_cast<char32_t>(decoded.back())
                        : decodeAt(decoded, startBefore(decoded, decoded.size())).value;
}

void Paragraph::addGenerated(std::string_view decoded) {
    joinTo(decoded);
    std::size_t const first = all.size();
    addItems(decoded);
    if (first < all.size()) all[first].beginsText = true;
}

void Paragraph::addItems(std::string_view decoded) {
    TextOptions options = textOptions(style());
    options.before = lastCharacter;
    bool const isWrapped = style().whiteSpace == WhiteSpace::normal;
    SegmentReader reader(decoded, options);
    Segment segment;
    for (;;) {
        if (isWrapped) {
            std::string_view const words = reader.takeWords();
            std::size_t const length = words.rfind(' ') + 1;
            if (length > 0) addWords(words.substr(0, length));
            std::string_view const last = words.substr(length);
            if (!last.empty()) addWord(last, {.width = last.size()});
            if (reader.isAtEnd()) return;
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

/// Lets a line break between the last word and a text, if it may where both are one text in the
/// style of that word, as in Chromium. What stands before the word has a say, too.
void Paragraph::joinTo(std::string_view decoded) {
    constexpr std::size_t s_context = 16;
    Item* const last = lastContent();
    bool const isWord = last != nullptr && last->kind == Item::Kind::word;
    if (!isWord || (last->mayBreakBehind && !last->hyphenates)) return;
    std::size_t const begin = textBegins > 0 ? all[textBegins - 1].end : 0;
    std::string_view const known = std::string_view(text).substr(begin, last->end - begin);
    std::size_t from = known.size() - std::min(known.size(), s_context);
    // Not within a character; all bytes may be ill-formed.
    while (from + 1 < known.size() && (static_cast<unsigned char>(known[from]) & 0xC0U) == 0x80U) {
        ++from;
    }
    std::string joint(known.substr(from));
    joint += decoded.substr(0, s_context);
    std::size_t const place = known.size() - from;
    std::size_t const ofLast = place - startBefore(joint, place);
    SegmentReader reader(joint, textOptions(*elements[last->element].style));
    bool isBeforeLast = false;
    // A soft hyphen is an opportunity only where what is behind it lets a line break.
    bool const endsWithHyphen = std::exchange(last->hyphenates, false);
    if (endsWithHyphen) last->mayBreakBehind = false;
    Segment segment;
    while (reader.next(segment) && segment.next <= place) {
        if (endsWithHyphen && segment.next == place) {
            last->hyphenates = segment.behind == Segment::Behind::softHyphen;
            last->mayBreakBehind = last->hyphenates;
        }
        if (segment.behind != Segment::Behind::opportunity) continue;
        if (segment.next == place) last->mayBreakBehind = true;
        isBeforeLast = isBeforeLast || segment.next + ofLast == place;
    }
    // An opening quotation mark has waited for what is behind it.
    if (isBeforeLast) partBefore(tagsBegin - 1, ofLast);
}

/// Lets a line break before the last bytes of a word.
void Paragraph::partBefore(std::size_t index, std::size_t bytes) {
    Item& word = all[index];
    if (word.end - word.begin > bytes) {
        Item rest = word;
        rest.beginsText = false;
        rest.begin = word.end - static_cast<std::uint32_t>(bytes);
        Cluster const cluster = clusterAt(textOf(rest), 0, isAmbiguousWide());
        rest.width = static_cast<std::uint32_t>(cluster.width);
        word.end = rest.begin;
        word.width -= rest.width;
        word.mayBreakBehind = true;
        all.insert(all.begin() + static_cast<std::ptrdiff_t>(index) + 1, rest);
        ++contentEnd;
        ++tagsBegin;
        return;
    }
    while (index > 0 && isTag(all[index - 1])) --index;
    if (index > 0 && all[index - 1].kind == Item::Kind::word) all[index - 1].mayBreakBehind = true;
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
                bool const goesOn = !all.empty() && all.back().kind == Item::Kind::blanks &&
                                    all.back().element == current;
                Item& blanks = goesOn ? all.back() : add(Item::Kind::blanks);
                blanks.width += static_cast<std::uint32_t>(segment.next - segment.end);
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
            // Without a word before it, as at the beginning of a text.
            if (segment.begin == segment.end) add(Item::Kind::breakable);
            break;
        case Segment::Behind::softHyphen:
        case Segment::Behind::end:
            break;
    }
}

}  // namespace galley::web
