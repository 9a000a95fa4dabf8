#pragma once

#include <memory>
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
};

/// What is in a table's cell or caption, kept until the table is complete, and measured meanwhile.
class Content final : public BlockSink {
public:
    Content();
    Content(Content&& other) noexcept;
    Content(Content const&) = delete;
    Content& operator=(Content&&) = delete;
    Content& operator=(Content const&) = delete;
    ~Content() override;

    void open(Style const& block, OutsideMarker const& marker) override;
    void close() override;
    void add(PlainText const& text) override;
    void add(Paragraph const& paragraph) override;
    void add(std::unique_ptr<Table> table) override;

    /// Whether nothing has been added, not even an empty block.
    bool isEmpty() const { return first.block == nullptr && others == nullptr; }
    /// Columns that lines in it may begin before what is around them, by an indent below 0.
    int outdent() const { return mostOutdent; }
    /// If there is no more than one plain text, that. As long as the content stays.
    std::optional<PlainText> plainText() const;

    /// Hands all of it on, paragraphs in `scratch`. Its tables have been moved away then: once
    /// only.
    void moveTo(BlockSink& sink, Paragraph& scratch);
    /// Of all that has been added; per cent count nothing.
    Widths widths() const { return measured; }
    /// The same where words are parted anywhere. Walks through all of it.
    Widths partedWidths(Paragraph& scratch) const;

private:
    struct Open {
        Style const* style = nullptr;
        /// Null for none.
        std::unique_ptr<OutsideMarker> marker;
    };
    struct Close {};
    struct KeptText {
        Style const* block = nullptr;
        Colour background;
        std::string text;

        PlainText view() const { return {block, background, text}; }
    };
    using Entry = std::variant<Open, Close, KeptText, PackedParagraph, std::unique_ptr<Table>>;

    /// A block that is open, and how wide what is in it is so far.
    struct Measured {
        Style const* style = nullptr;
        Widths content;
        /// Columns of its marker and the blank behind that.
        int marker = 0;

        /// A marker that no line of the item's own stands beside is as wide as a block in it.
        void takeBlock();
    };

    struct Parts {
        std::vector<Entry> entries;
        std::vector<Measured> openBlocks;
    };

    Parts& parts();
    void take(Widths const& child);
    void takeBlock();
    void takeIndent(Style const& block);

    /// Comes first, if it has a block. In most cells there is nothing else.
    KeptText first;
    /// Null for none.
    std::unique_ptr<Parts> others;
    Widths measured;
    int mostOutdent = 0;
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
