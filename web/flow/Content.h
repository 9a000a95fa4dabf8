#pragma once

#include <memory>
#include <variant>
#include <vector>

#include "web/flow/BlockSink.h"

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
    void open(Style const& block, OutsideMarker marker) override;
    void close() override;
    void add(Paragraph&& paragraph) override;
    void add(std::unique_ptr<Table> table) override;

    /// Hands all of it on. Its tables have been moved away then: once only.
    void moveTo(BlockSink& sink);
    /// Of all that has been added; per cent count nothing. `partsWords`: as if all words could be
    /// parted anywhere.
    Widths widths() const { return measured.front(); }

private:
    struct Open {
        Style const* style;
        OutsideMarker marker;
    };
    struct Close {};

    void take(Widths const& child);

    std::vector<std::variant<Open, Close, Paragraph, std::unique_ptr<Table>>> entries;
    /// Of what is around, and of each open block.
    std::vector<Widths> measured = std::vector<Widths>(1);
    std::vector<Style const*> openStyles;
};

/// How wide the lines of a paragraph are.
Widths measure(Paragraph const& paragraph);

/// How wide a block is with its edges, whose content is that wide.
Widths withEdges(Widths content, Style const& style);

}  // namespace galley::web
