#include "web/flow/Content.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

#include "web/flow/LineBreaker.h"
#include "web/flow/Table.h"
#include "web/flow/lengths.h"

namespace galley::web {

namespace {

/// Whether there are words of single cells, without edges or an indent, so that with these parted
/// anywhere a cell is enough.
bool isOfSingleCells(Paragraph const& paragraph) {
    Style const& style = paragraph.block();
    if (style.whiteSpace != WhiteSpace::normal || style.textIndent != Length()) return false;
    if (!style.wrapsAsCell) return false;
    return std::all_of(paragraph.items().begin(), paragraph.items().end(), [](Item const& item) {
        bool const isText = item.kind == Item::Kind::word || item.kind == Item::Kind::words;
        return (isText && item.isPlain) || item.kind == Item::Kind::blank;
    });
}

/// Cells of the longest word.
int longestWord(PlainText const& plain) {
    std::size_t longest = 0;
    std::string_view text = plain.text;
    while (text.size() > longest) {
        std::size_t const length = std::min(text.find(' '), text.size());
        if (length > longest) longest = std::max(longest, plain.cellsOf(text.substr(0, length)));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return static_cast<int>(longest);
}

/// In the widest line of a text where all lines break that may.
int widestLine(PlainText const& text, bool partsWords, int indentation) {
    if (indentation == 0) return partsWords ? 1 : longestWord(text);
    int widest = 0;
    breakLines(text, 0, partsWords, indentation,
               [&widest](std::string_view, int cells, int indent) {
                   widest = std::max(widest, indent + cells);
               });
    return widest;
}

}  // namespace

Content::Content(Style const& cell, Colour shown) : ownStyle(&cell), ground(shown) {}
Content::Content(Content&& other) noexcept = default;
Content::~Content() = default;

std::vector<Content::Entry>& ContentSink::entries() {
    if (filled->others == nullptr) filled->others = std::make_unique<std::vector<Content::Entry>>();
    return *filled->others;
}

void ContentSink::open(Style const& block, OutsideMarker const& marker) {
    bool const hasMarker = !marker.text.empty();
    takeBlock();
    entries().emplace_back(
        Content::Open{&block, hasMarker ? std::make_unique<OutsideMarker>(marker) : nullptr});
    openBlocks.push_back({&block, {}, marker.columns});
}

void ContentSink::close() {
    entries().emplace_back(Content::Close{});
    OpenWidths const block = openBlocks.back();
    openBlocks.pop_back();
    take(withEdges(block.content, *block.style));
}

void ContentSink::add(PlainText const& text) {
    takeIndent(*text.block);
    take(measure(text, Wrapping::asStyled));
    if (!filled->isEmpty()) {
        entries().emplace_back(KeptText{text.block, std::string(text.text), text.isAscii});
        return;
    }
    auto* const copy = static_cast<char*>(texts.allocate(text.text.size(), 1));
    text.text.copy(copy, text.text.size());
    filled->text = copy;
    filled->textSize = static_cast<std::uint32_t>(text.text.size());
    filled->isAscii = text.isAscii;
}

void ContentSink::add(Paragraph const& paragraph) {
    takeIndent(paragraph.block());
    take(measure(paragraph, Wrapping::asStyled));
    entries().emplace_back(PackedParagraph(paragraph));
}

void ContentSink::add(std::unique_ptr<Table> table) {
    takeBlock();
    take(table->outerWidths(Wrapping::asStyled));
    entries().emplace_back(std::move(table));
}

void ContentSink::takeIndent(Style const& block) {
    filled->mostOutdent = std::max(filled->mostOutdent, -across(block.textIndent, 0));
}

void ContentSink::take(Widths const& child) {
    (openBlocks.empty() ? filled->measured : openBlocks.back().content).widen(child);
}

void ContentSink::takeBlock() {
    if (!openBlocks.empty()) openBlocks.back().takeBlock();
}

Widths Content::partedWidths(Paragraph& scratch) const {
    if (isEmpty()) return {};
    Widths const ofText = textSize > 0 ? measure(first(), Wrapping::anywhere) : Widths();
    if (others == nullptr) return ofText;
    std::vector<OpenWidths> blocks = {{nullptr, ofText, 0}};
    auto const take = [&blocks](Widths const& child) { blocks.back().content.widen(child); };
    for (auto const& entry : *others) {
        if (auto const* const opened = std::get_if<Open>(&entry)) {
            blocks.back().takeBlock();
            bool const hasMarker = opened->marker != nullptr;
            blocks.push_back({opened->style, {}, hasMarker ? opened->marker->columns : 0});
        } else if (auto const* const kept = std::get_if<KeptText>(&entry)) {
            take(measure(kept->view(), Wrapping::anywhere));
        } else if (auto const* const paragraph = std::get_if<PackedParagraph>(&entry)) {
            paragraph->unpackTo(scratch);
            take(measure(scratch, Wrapping::anywhere));
        } else if (auto const* const table = std::get_if<std::unique_ptr<Table>>(&entry)) {
            blocks.back().takeBlock();
            take((*table)->outerWidths(Wrapping::anywhere));
        } else {
            OpenWidths const block = blocks.back();
            blocks.pop_back();
            take(withEdges(block.content, *block.style));
        }
    }
    return blocks.front().content;
}

std::optional<PlainText> Content::plainText() const {
    if (textSize == 0 || others != nullptr) return std::nullopt;
    return first();
}

void Content::moveTo(BlockSink& sink, Paragraph& scratch) {
    if (textSize > 0) sink.add(first());
    if (others == nullptr) return;
    for (auto& entry : *others) {
        if (auto* const opened = std::get_if<Open>(&entry)) {
            sink.open(*opened->style,
                      opened->marker != nullptr ? *opened->marker : OutsideMarker());
        } else if (std::holds_alternative<Close>(entry)) {
            sink.close();
        } else if (auto const* const kept = std::get_if<KeptText>(&entry)) {
            sink.add(kept->view());
        } else if (auto const* const paragraph = std::get_if<PackedParagraph>(&entry)) {
            paragraph->unpackTo(scratch);
            sink.add(scratch);
        } else {
            sink.add(std::move(std::get<std::unique_ptr<Table>>(entry)));
        }
    }
    others.reset();
}

Widths measure(PlainText const& text, Wrapping wrapping) {
    bool const partsWords =
        LineBreaker::mayPart(*text.block, LineBreaker::Purpose::measuring, wrapping);
    int const indent = across(text.block->textIndent, 0);
    int const most = std::max(0, static_cast<int>(text.cellsOf(text.text)) + indent);
    return {widestLine(text, partsWords, indent), most};
}

Widths measure(Paragraph const& paragraph, Wrapping wrapping) {
    constexpr int s_unlimited = std::numeric_limits<int>::max() / 2;
    auto const widest = [&](int cells) {
        LineBreaker breaker(paragraph, 0, LineBreaker::Purpose::measuring, wrapping);
        int indent = across(paragraph.block().textIndent, 0);
        int result = 0;
        for (Place at; !breaker.isAtEnd(at);) {
            TextLine const line = breaker.next(at, cells, indent);
            result = std::max(result, indent + line.width);
            at = line.end;
            indent = 0;
        }
        return result;
    };
    int const most = widest(s_unlimited);
    if (wrapping == Wrapping::anywhere && isOfSingleCells(paragraph)) return {1, most};
    return {widest(0), most};
}

Widths withLimits(Widths content, Style const& style) {
    if (style.width.kind == Length::Kind::cells) {
        content.least = content.most = style.width.value;
    }
    if (style.maxWidth.kind == Length::Kind::cells) {
        content.least = std::min(content.least, style.maxWidth.value);
        content.most = std::min(content.most, style.maxWidth.value);
    }
    if (style.minWidth.kind == Length::Kind::cells) {
        content.least = std::max(content.least, style.minWidth.value);
        content.most = std::max(content.most, style.minWidth.value);
    }
    return content;
}

Widths withEdges(Widths content, Style const& style) {
    Widths const limited = withLimits(content, style);
    int const edges =
        innerEdges(style, 0) + across(style.margin.left, 0) + across(style.margin.right, 0);
    return {limited.least + edges, limited.most + edges};
}

}  // namespace galley::web
