#pragma once

#include <vector>

#include "xml/layout/Box.h"
#include "xml/layout/Items.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

/// Builds boxes from what is read: blocks in inline elements, whose lines then take no boxes, and
/// what widths alone do not lay out. All are good until `clear`.
class BoxBuilder {
public:
    /// Begins a block of its own.
    Box& begin(ZRLWPtr<DomElement> const& element);
    /// Begins a child of the innermost box that is open.
    Box& beginChild(ZRLWPtr<DomElement> const& element);
    void end() { open.pop_back(); }
    bool isOpen() const { return !open.empty(); }
    /// The element of the innermost box that is open.
    DomElement const& innermost() const { return *asElement(open.back()->node); }
    /// Adds words to that box, or one word, as they are read.
    void addText(std::string_view text, bool isWord);
    /// Adds what was read as items to that box.
    void add(Items const& items);
    /// How many words there are boxes for.
    std::int64_t words() const { return static_cast<std::int64_t>(texts.size()); }
    void clear();

private:
    // What boxes are of outlives them.
    std::vector<ZRLWPtr<DomElement>> elements;
    std::vector<ZRLWPtr<DomNode>> texts;
    /// Those that are of their own.
    std::vector<ZRLWPtr<Box>> blocks;
    /// Innermost last.
    std::vector<Box*> open;
};

/// Paints a box that is laid out, and all in it, in the innermost frame.
void paintBox(Grid& grid, Box& box, Canvas::Attributes const& attributes);

}  // namespace CLI::XML
