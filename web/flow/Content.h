#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "web/flow/BlockSink.h"
#include "web/flow/LineBreaker.h"
#include "web/flow/PackedParagraph.h"

namespace galley::web {

/// How wide content is, in cells.
struct Widths {
    /// Where every line breaks that may.
    int least = 0;
    /// Where none does that need not.
    int most = 0;

    bool operator==(Widths const&) const = default;

    void widen(Widths const& other) {
        least = std::max(least, other.least);
        most = std::max(most, other.most);
    }
};

/// A block that is open, and how wide what is in it is so far.
struct OpenWidths {
    Style const* style = nullptr;
    Widths content;
    /// Columns of its marker and the blank behind that.
    int marker = 0;

    /// A marker that no line of the item's own stands beside is as wide as a block in it.
    void takeBlock() { content.widen({marker, marker}); }
};

/// What is in a table's cell or caption, kept until the table is complete, and measured meanwhile.
class Content {
public:
    /// Of a cell or a caption of that style, which outlives it, and with that background.
    Content(Style const& cell, Colour shown);
    Content(Content&& other) noexcept;
    Content(Content const&) = delete;
    Content& operator=(Content&&) = delete;
    Content& operator=(Content const&) = delete;
    ~Content();

    Style const& style() const { return *ownStyle; }
    /// On which all in it stands that has none of its own, which is transparent meanwhile.
    Colour const& background() const { return ground; }
    /// Whether nothing has been added, not even an empty block.
    bool isEmpty() const { return textSize == 0 && others == nullptr; }
    /// Columns that lines in it may begin before what is around them, by an indent below 0.
    int outdent() const { return mostOutdent; }
    /// If there is no more than one plain text, that. As long as its sink stays.
    std::optional<PlainText> plainText() const;

    /// Hands all of it on, paragraphs in `scratch`. Its tables have been moved away then: once
    /// only.
    void moveTo(BlockSink& sink, Paragraph& scratch);
    /// Of all that has been added; per cent count nothing.
    Widths widths() const { return measured; }
    /// The same where words are parted anywhere. Walks through all of it.
    Widths partedWidths(Paragraph& scratch) const;

private:
    friend class ContentSink;

    struct Open {
        Style const* style = nullptr;
        /// Null for none.
        std::unique_ptr<OutsideMarker> marker;
    };
    struct Close {};
    using Entry = std::variant<Open, Close, KeptText, PackedParagraph, std::unique_ptr<Table>>;

    PlainText first() const { return {ownStyle, {text, textSize}, isAscii}; }

    Style const* ownStyle;
    /// A text that comes first, of the cell's own. In most cells there is nothing else.
    char const* text = nullptr;
    /// Null for none.
    std::unique_ptr<std::vector<Entry>> others;
    std::uint32_t textSize = 0;
    int mostOutdent = 0;
    Widths measured;
    Colour ground;
    bool isAscii = false;
};

/// Takes the content of one cell or caption after the other, and has the texts that come first.
class ContentSink final : public BlockSink {
public:
    /// What comes now is of that one, which stays where it is until the next.
    void begin(Content& content) { filled = &content; }

    void open(Style const& block, OutsideMarker const& marker) override;
    void close() override;
    void add(PlainText const& text) override;
    void add(Paragraph const& paragraph) override;
    void add(std::unique_ptr<Table> table) override;

private:
    std::vector<Content::Entry>& entries();
    void take(Widths const& child);
    void takeBlock();
    void takeIndent(Style const& block);

    Content* filled = nullptr;
    std::vector<OpenWidths> openBlocks;
    std::pmr::monotonic_buffer_resource texts;
};

/// How wide the lines of a text and of a paragraph are.
///@{
Widths measure(PlainText const& text, Wrapping wrapping);
Widths measure(Paragraph const& paragraph, Wrapping wrapping);
///@}

/// How wide a box is for which its style sets a width in cells, or limits.
Widths withLimits(Widths content, Style const& style);

/// How wide a block is with its edges, whose content is that wide.
Widths withEdges(Widths content, Style const& style);

}  // namespace galley::web
