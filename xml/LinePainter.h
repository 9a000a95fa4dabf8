#pragma once

#include <string_view>
#include <vector>

#include "xml/layout/Items.h"
#include "xml/layout/placement.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

/// Lays out and paints lines of a paragraph, each in one walk over its range of items: an element
/// becomes a frame where it opens, its words are drawn, and where it closes its size is known, and
/// with it what lies beneath it.
class LinePainter {
public:
    /// What stands in no element has such gaps. The items and the grid outlive it.
    LinePainter(Items const& paragraph, Gap outermost, Grid& page)
        : items(paragraph), outermostGap(outermost), grid(page) {}

    /// Paints the line at the origin of the innermost frame, with the attributes handed down to it,
    /// and returns its size. What the line before it has left open goes on on it.
    Rect paint(Position from, Position end, Canvas::Attributes const& attributes);

private:
    struct OpenElement {
        ElementStyle const* style = nullptr;
        Canvas::Attributes handedDown;
        Canvas::Attributes content;
    };

    /// The line, or an element that is opened on it, or that goes on on it and is styled: of one
    /// that is not all that is on the line before is the content.
    struct Level {
        /// Grows with what stands in it.
        Rect content;
        RightwardRow row;
        /// Its number among those that are open.
        std::size_t index = 0;
        bool isFrame = false;
    };

    void beginLine();
    void endLine();
    void openElement(std::uint32_t item, Position end);
    void closeElement();
    void place(Dimensions& box, std::size_t depth) const;
    void add(Dimensions const& box);
    void beginLevel(std::size_t index, bool isFrame);
    void endLevel();
    void addWords(std::string_view words);
    void addBlock(Box& block);
    Canvas::Attributes const& attributes() const {
        return open.empty() ? outer : open.back().content;
    }

    Items const& items;
    Gap outermostGap;
    Grid& grid;
    Canvas::Attributes outer = {};
    /// From line to line, outermost first.
    std::vector<OpenElement> open;
    /// Those of them that are styled and were opened on a line before.
    std::vector<std::size_t> styledBefore;
    /// How many are open since before the line.
    std::size_t kept = 0;
    std::vector<Level> levels;
};

}  // namespace CLI::XML
