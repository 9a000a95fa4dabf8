#pragma once

#include <deque>
#include <string_view>

#include "xml/LinePainter.h"
#include "xml/boxesOf.h"
#include "xml/dom/readDocument.h"
#include "xml/layout/Items.h"
#include "xml/layout/placement.h"
#include "xml/render/Grid.h"

namespace CLI::XML {

/// Lays out and paints a document while it is read: a block opens as a frame, what stands between
/// two blocks is broken into lines and painted when the second one comes, a table when it closes.
/// Nothing of it is kept then but the page.
class PageBuilder final : public DocumentHandler {
public:
    /// `expectedLength` bytes of text, and some more, are provided for. Rows leave the page early,
    /// unless `keepsRows`: a box may reach up then. The budget outlives the builder.
    PageBuilder(ZRLWPtr<DomElement> const& root, unsigned width, int expectedLength, bool keepsRows,
                CellBudget& cells);

    bool keepsNothing() const override { return true; }
    void startElement(ZRLWPtr<DomElement> const& element) override;
    void endElement() override;
    void addText(std::string_view read, bool isWord) override;

    /// To be called at the end of the document: finishes the page and returns its text in `out`;
    /// or says why a child was refused by its parent, the first that was.
    XCode finish(String& out);

private:
    /// A block that is being read, all of whose ancestors are.
    struct OpenBlock {
        /// Whose content box begins there, of `offered` columns less its edges.
        OpenBlock(ElementStyle const& styleOfBlock, Rect const& place, std::int32_t offered,
                  Canvas::Attributes const& attributes);

        ElementStyle const* style;
        /// As wide as what its children are offered until the end.
        Rect content;
        Canvas::Attributes handedDown;
        Canvas::Attributes ofContent;
        DownwardStack stack;
        /// Nothing will be drawn beneath what is drawn in it, or around.
        bool isBare = false;
    };

    DomElement const& parent() const;
    bool mayAdd(DomElement const* child);
    void openBlock(ZRLWPtr<DomElement> const& element);
    void closeBlock();
    void endItems();
    void addWords();
    void addParagraph();
    void addTable();
    void addBoxes();
    void take(Dimensions const& box);
    void releaseRows(std::int32_t height);

    CellBudget& budget;
    Grid grid;
    /// Rows of the page that nothing can change any more.
    String text;
    bool mayRelease;
    /// Innermost last.
    std::deque<OpenBlock> blocks;
    /// Of those.
    ElementStyles blockStyles;
    /// Of the elements among the items.
    ElementStyles styles;
    /// What has been read since the last block.
    Items items;
    /// Of blocks in it.
    BoxBuilder boxes;
    /// Of paragraphs, kept for its memory.
    LinePainter linePainter{items, Gap::Larger, grid};
    /// Open elements from the outermost one on that is not displayed.
    unsigned hidden = 0;
    XCode refusal;
};

}  // namespace CLI::XML
