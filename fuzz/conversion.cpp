// The whole conversion. An input is a width in decimal on the first line, then the markup up to a
// line "%%", then a style sheet.

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "fuzz/canvases.h"
#include "fuzz/check.h"
#include "xml/dom/buildDomTree.h"
#include "xml/dom/nodes.h"
#include "xml/layout/boxes.h"
#include "xml/xml.h"

namespace CLI::XML {
namespace {

struct Input {
    unsigned width = 80;
    String markup;
    String sheet;

    explicit Input(std::string_view bytes) {
        auto const lineEnd = std::min(bytes.find('\n'), bytes.size());
        std::from_chars(bytes.data(), bytes.data() + lineEnd, width);
        bytes.remove_prefix(std::min(lineEnd + 1, bytes.size()));
        constexpr std::string_view s_separator = "\n%%\n";
        auto const markupEnd = std::min(bytes.find(s_separator), bytes.size());
        markup.assign(bytes.substr(0, markupEnd));
        sheet.assign(bytes.substr(std::min(markupEnd + s_separator.size(), bytes.size())));
    }
};

/// Takes one of the library's own sequences off the front: a reset, a flag, or a colour.
bool takeSequence(std::string_view& text) {
    for (std::string_view const known :
         {"\x1b[0m", "\x1b[1m", "\x1b[2m", "\x1b[3m", "\x1b[4m", "\x1b[5m", "\x1b[7m", "\x1b[8m"}) {
        if (!text.starts_with(known)) continue;
        text.remove_prefix(known.size());
        return true;
    }
    bool const isColor = text.size() >= 5 && (text.substr(2, 1) == "3" || text.substr(2, 1) == "4");
    if (!isColor) return false;
    auto const end = text.find('m');
    auto const number = text.substr(3, end == std::string_view::npos ? end : end - 3);
    unsigned color = 0;
    auto const parsed = std::from_chars(number.data(), number.data() + number.size(), color);
    bool const isWhole = parsed.ec == std::errc() && parsed.ptr == number.data() + number.size();
    if (!isWhole || color > 7) return false;
    text.remove_prefix(end + 1);
    return true;
}

/// Ends rows where a line feed may stand in one, as part of a border.
constexpr char const* s_rowEnd = "\x1e";

/// Without escape bytes in the input, every sequence is the library's, and a row ends as it began.
void requireOwnSequences(std::string_view rows) {
    bool isDefault = true;
    while (!rows.empty()) {
        if (rows.front() == '\x1b') {
            isDefault = rows.starts_with("\x1b[0m");
            require(takeSequence(rows), "only the library's escape sequences are on the page");
            isDefault = isDefault && !rows.starts_with("\x1b");
            continue;
        }
        require(rows.front() != *s_rowEnd || isDefault, "a row ends in the default attributes");
        rows.remove_prefix(1);
    }
}

bool isWhite(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// The page's letters: no white space, no escape sequences.
std::string lettersOf(std::string_view page) {
    std::string letters;
    while (!page.empty()) {
        if (page.front() == '\x1b' && takeSequence(page)) continue;
        if (!isWhite(page.front())) letters += page.front();
        page.remove_prefix(1);
    }
    return letters;
}

/// Whether a row has fewer cells than one above it: a column that it makes wider may then reach
/// over the next one.
bool hasShorterRow(DomElement const& table) {
    unsigned longest = 0;
    for (ZRLWPtr<DomNode> const& child : table.children) {
        DomElement const* const row = asElement(child.object);
        unsigned const cells = row != nullptr ? row->children.count : 0;
        if (cells < longest) return true;
        longest = cells;
    }
    return false;
}

/// Adds the letters below `node` in document order. False where the order of a page may be another:
/// below attributes, where a block stands within an inline element or a cell, and in a table with a
/// row that is shorter than one above it.
bool addLetters(DomNode const& node, bool isWithinLine, std::string& letters) {
    DomElement const* const element = asElement(&node);
    if (element == nullptr) {
        for (char const c : asText(&node)->text.view()) {
            if (!isWhite(c)) letters += c;
        }
        return true;
    }
    if (element->attributes.count > 0) return false;
    bool const isOnLine =
        element->display == DomNode::Inline || element->display == DomNode::TableCell;
    if (isWithinLine && element->display != DomNode::Inline) return false;
    if (element->display == DomNode::Table && hasShorterRow(*element)) return false;
    for (ZRLWPtr<DomNode> const& child : element->children) {
        if (!addLetters(*child, isOnLine, letters)) return false;
    }
    return true;
}

/// The page by the public operations one after the other, which must be `page`.
void requireSamePage(DomElement& root, unsigned width, std::string_view page, bool isOwn) {
    ZRLWPtr<Box> const box = ZR::MovePtr<Box>(new BlockBox(&root));
    requireMessage(box->createChildren());
    Dimensions containing;
    containing.content.width =
        static_cast<std::int32_t>(std::min(width, unsigned{std::numeric_limits<int>::max()}));
    box->layout(containing);
    if (!areCanvasesSmall(*box)) return;
    Canvas canvas;
    box->drawTo(canvas, Canvas::Attributes());
    require(canvas.dump("\n").view() == page, "the stages make the page of a conversion");
    if (isOwn) requireOwnSequences(canvas.dump(s_rowEnd).view());
}

bool holds(Input const& input, char byte) {
    return input.markup.indexOf(byte) >= 0 || input.sheet.indexOf(byte) >= 0;
}

void convert(Input const& input) {
    StyleList rules;
    requireMessage(parseCss(rules, input.sheet));
    String outputs[] = {"before", "before"};
    XCode result;
    for (String& output : outputs) {
        result = xmlToText(output, input.markup, rules, input.width);
        requireMessage(result);
    }
    require(outputs[0] == outputs[1], "the same input gives the same page");
    for (ZRLWPtr<StyleNode> const& rule : rules) {
        require(rule->refCount == 1, "a conversion keeps no rule");
    }
    if (!result) {
        require(outputs[0] == "before", "a failure leaves the output alone");
        return;
    }
    std::string_view const page = outputs[0].view().substr(6);
    require(page.empty() || page.back() == '\n', "every row ends with a line feed");
    // Large pages and deep documents take too long to be looked at, and to be made in another way.
    constexpr std::size_t s_largestPage = 100'000;
    constexpr int s_largestMarkup = 20'000;
    if (page.size() > s_largestPage || input.markup.length() > s_largestMarkup) return;
    bool const hasEscapes = holds(input, '\x1b');

    PullParser parser(input.markup);
    ZRLWPtr<DomElement> root;
    require(buildDomTree(root, true, parser, rules), "a conversion reads as the builder does");
    requireSamePage(*root, input.width, page, !hasEscapes && !holds(input, *s_rowEnd));

    std::string letters;
    bool const isPlain = rules.count == 0 && !hasEscapes && input.markup.indexOf('\0') < 0;
    if (isPlain && addLetters(*root, false, letters)) {
        require(lettersOf(page) == letters, "words come out in document order");
    }
}

}  // namespace
}  // namespace CLI::XML

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are the text
    CLI::XML::convert(CLI::XML::Input({reinterpret_cast<char const*>(data), size}));
    return 0;
}
