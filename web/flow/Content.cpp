#include "web/flow/Content.h"

#include <algorithm>
#include <limits>
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
    return std::all_of(paragraph.items().begin(), paragraph.items().end(), [](Item const& item) {
        bool const isText = item.kind == Item::Kind::word || item.kind == Item::Kind::words;
        return (isText && item.isPlain) || item.kind == Item::Kind::blank;
    });
}

/// Whether there is nothing but a word that its style does not let be parted to make room.
bool isOneWord(Paragraph const& paragraph) {
    bool const mayPart = paragraph.block().overflowWrap == OverflowWrap::anywhere;
    return paragraph.end() == 1 && paragraph.items().front().kind == Item::Kind::word && !mayPart;
}

}  // namespace

Content::Content() = default;
Content::Content(Content&& other) noexcept = default;
Content::~Content() = default;

void Content::open(Style const& block, OutsideMarker marker) {
    bool const hasMarker = !marker.text.empty();
    int const columns = marker.columns;
    entries.emplace_back(
        Open{&block, hasMarker ? std::make_unique<OutsideMarker>(std::move(marker)) : nullptr});
    around().takeBlock();
    openBlocks.push_back({&block, {}, columns});
}

void Content::close() {
    entries.emplace_back(Close{});
    Measured const block = openBlocks.back();
    openBlocks.pop_back();
    around().take(withEdges(block.content, *block.style));
}

void Content::add(Paragraph const& paragraph) {
    around().take(measure(paragraph, Wrapping::asStyled));
    entries.emplace_back(PackedParagraph(paragraph));
}

void Content::add(std::unique_ptr<Table> table) {
    around().takeBlock();
    around().take(table->outerWidths(Wrapping::asStyled));
    entries.emplace_back(std::move(table));
}

void Content::Measured::take(Widths const& child) {
    content.least = std::max(content.least, child.least);
    content.most = std::max(content.most, child.most);
}

Widths Content::partedWidths(Paragraph& scratch) const {
    std::vector<Measured> blocks(1);
    for (auto const& entry : entries) {
        if (auto const* const opened = std::get_if<Open>(&entry)) {
            blocks.back().takeBlock();
            bool const hasMarker = opened->marker != nullptr;
            blocks.push_back({opened->style, {}, hasMarker ? opened->marker->columns : 0});
        } else if (auto const* const paragraph = std::get_if<PackedParagraph>(&entry)) {
            paragraph->unpackTo(scratch);
            blocks.back().take(measure(scratch, Wrapping::anywhere));
        } else if (auto const* const table = std::get_if<std::unique_ptr<Table>>(&entry)) {
            blocks.back().takeBlock();
            blocks.back().take((*table)->outerWidths(Wrapping::anywhere));
        } else {
            Measured const block = blocks.back();
            blocks.pop_back();
            blocks.back().take(withEdges(block.content, *block.style));
        }
    }
    return blocks.front().content;
}

void Content::moveTo(BlockSink& sink, Paragraph& scratch) {
    for (auto& entry : entries) {
        if (auto* const opened = std::get_if<Open>(&entry)) {
            sink.open(*opened->style,
                      opened->marker != nullptr ? std::move(*opened->marker) : OutsideMarker());
        } else if (std::holds_alternative<Close>(entry)) {
            sink.close();
        } else if (auto const* const paragraph = std::get_if<PackedParagraph>(&entry)) {
            paragraph->unpackTo(scratch);
            sink.add(scratch);
        } else {
            sink.add(std::move(std::get<std::unique_ptr<Table>>(entry)));
        }
    }
    std::vector<Entry>().swap(entries);
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
    if (wrapping == Wrapping::asStyled && isOneWord(paragraph)) return {most, most};
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
