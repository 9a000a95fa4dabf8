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

void widen(Widths& widths, Widths const& child) {
    widths.least = std::max(widths.least, child.least);
    widths.most = std::max(widths.most, child.most);
}

/// Cells of the longest word.
int longestWord(std::string_view text) {
    std::size_t longest = 0;
    while (text.size() > longest) {
        std::size_t const length = std::min(text.find(' '), text.size());
        longest = std::max(longest, length);
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return static_cast<int>(longest);
}

/// In the widest line of a text where all lines break that may.
int widestLine(PlainText const& text, bool partsWords, int indentation) {
    if (indentation == 0) return partsWords ? 1 : longestWord(text.text);
    int widest = 0;
    breakLines(text, 0, partsWords, indentation, [&widest](std::string_view line, int indent) {
        widest = std::max(widest, indent + static_cast<int>(line.size()));
    });
    return widest;
}

}  // namespace

Content::Content() = default;
Content::Content(Content&& other) noexcept = default;
Content::~Content() = default;

Content::Parts& Content::parts() {
    if (others == nullptr) others = std::make_unique<Parts>();
    return *others;
}

void Content::open(Style const& block, OutsideMarker const& marker) {
    bool const hasMarker = !marker.text.empty();
    takeBlock();
    parts().entries.emplace_back(
        Open{&block, hasMarker ? std::make_unique<OutsideMarker>(marker) : nullptr});
    parts().openBlocks.push_back({&block, {}, marker.columns});
}

void Content::close() {
    parts().entries.emplace_back(Close{});
    Measured const block = parts().openBlocks.back();
    parts().openBlocks.pop_back();
    take(withEdges(block.content, *block.style));
}

void Content::add(PlainText const& text) {
    takeIndent(*text.block);
    take(measure(text, Wrapping::asStyled));
    KeptText kept = {text.block, text.background, std::string(text.text)};
    if (others == nullptr && first.block == nullptr) {
        first = std::move(kept);
    } else {
        parts().entries.emplace_back(std::move(kept));
    }
}

void Content::add(Paragraph const& paragraph) {
    takeIndent(paragraph.block());
    take(measure(paragraph, Wrapping::asStyled));
    parts().entries.emplace_back(PackedParagraph(paragraph));
}

void Content::add(std::unique_ptr<Table> table) {
    takeBlock();
    take(table->outerWidths(Wrapping::asStyled));
    parts().entries.emplace_back(std::move(table));
}

void Content::takeIndent(Style const& block) {
    mostOutdent = std::max(mostOutdent, -across(block.textIndent, 0));
}

void Content::take(Widths const& child) {
    bool const isInBlock = others != nullptr && !others->openBlocks.empty();
    widen(isInBlock ? others->openBlocks.back().content : measured, child);
}

void Content::takeBlock() {
    if (others != nullptr && !others->openBlocks.empty()) others->openBlocks.back().takeBlock();
}

void Content::Measured::takeBlock() { widen(content, {marker, marker}); }

Widths Content::partedWidths(Paragraph& scratch) const {
    std::vector<Measured> blocks(1);
    auto const take = [&blocks](Widths const& child) { widen(blocks.back().content, child); };
    if (first.block != nullptr) take(measure(first.view(), Wrapping::anywhere));
    if (others == nullptr) return blocks.front().content;
    for (auto const& entry : others->entries) {
        if (auto const* const opened = std::get_if<Open>(&entry)) {
            blocks.back().takeBlock();
            bool const hasMarker = opened->marker != nullptr;
            blocks.push_back({opened->style, {}, hasMarker ? opened->marker->columns : 0});
        } else if (auto const* const text = std::get_if<KeptText>(&entry)) {
            take(measure(text->view(), Wrapping::anywhere));
        } else if (auto const* const paragraph = std::get_if<PackedParagraph>(&entry)) {
            paragraph->unpackTo(scratch);
            take(measure(scratch, Wrapping::anywhere));
        } else if (auto const* const table = std::get_if<std::unique_ptr<Table>>(&entry)) {
            blocks.back().takeBlock();
            take((*table)->outerWidths(Wrapping::anywhere));
        } else {
            Measured const block = blocks.back();
            blocks.pop_back();
            take(withEdges(block.content, *block.style));
        }
    }
    return blocks.front().content;
}

std::optional<PlainText> Content::plainText() const {
    if (first.block == nullptr || others != nullptr) return std::nullopt;
    return first.view();
}

void Content::moveTo(BlockSink& sink, Paragraph& scratch) {
    if (first.block != nullptr) sink.add(first.view());
    first = {};
    if (others == nullptr) return;
    for (auto& entry : others->entries) {
        if (auto* const opened = std::get_if<Open>(&entry)) {
            sink.open(*opened->style,
                      opened->marker != nullptr ? *opened->marker : OutsideMarker());
        } else if (std::holds_alternative<Close>(entry)) {
            sink.close();
        } else if (auto const* const text = std::get_if<KeptText>(&entry)) {
            sink.add(text->view());
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
    int const most = std::max(0, static_cast<int>(text.text.size()) + indent);
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
