#pragma once

#include <memory>
#include <vector>

#include "xml/dom/readDocument.h"
#include "xml/layout/BlockFlow.h"
#include "xml/render/BoxPainting.h"

namespace CLI::XML {

/// Lays out and paints a document while it is read. What is finished is let go: of a child of an
/// open block, and of a full line of an open paragraph, only the painted cells stay, and where no
/// box can reach up any more only the text of the page.
///
/// This holds as long as every open element around is a block. What stands in an inline element or
/// a table is kept until that is closed, since its boxes may be laid out again.
class PageBuilder final : public DocumentHandler, public BlockFlow::Taker {
public:
    /// `expectedLength` bytes of text, and some more, are provided for. The document must have no
    /// extreme edges. The budget outlives the builder.
    PageBuilder(DomElement& root, unsigned width, int expectedLength, CellBudget& budget);
    PageBuilder(PageBuilder const&) = delete;
    PageBuilder& operator=(PageBuilder const&) = delete;
    ~PageBuilder() override;

    bool mayShareElements() const override { return true; }
    void startElement(ZRLWPtr<DomElement> const& element) override;
    void endElement() override;
    void addWords(std::string_view read) override;
    void addWord(std::string_view word) override;

    /// To be called at the end of the document: finishes the page and returns its text in `out`,
    /// which is empty where it could not be held as a whole; or says why a child was refused by its
    /// parent, the first that was.
    XCode finish(String& out);

private:
    /// A block that is being read, all of whose ancestors are.
    struct OpenBlock {
        OpenBlock(ZRLWPtr<BlockBox> made, Dimensions const& containing, BlockFlow::Taker& taker,
                  Canvas& canvas, Canvas::Attributes const& attributes);

        /// The block around, null for the root.
        std::unique_ptr<OpenBlock> around;
        ZRLWPtr<BlockBox> box;
        BlockFlow flow;
        BoxPainting painting;
        /// What is painted goes straight to the page, down from its first row.
        bool paintsOnPage = false;
    };

    Box& parent();
    bool takesText();
    void openBlock(ZRLWPtr<Box> const& box);
    void closeBlock();
    void finishBlock();
    void addSubtree(ZRLWPtr<Box> box);
    void take(ZRLWPtr<Box> box) override;
    void releaseRows(std::int64_t height);
    void moveRowsAbove(unsigned row);

    Canvas page;
    /// Rows of the page that nothing can change any more.
    String text;
    bool isTextComplete = true;
    std::unique_ptr<OpenBlock> innermost;
    /// In the innermost block, the boxes that are being read from one that is not a block on.
    std::vector<ZRLWPtr<Box>> subtree;
    /// All of them are inline.
    bool isSubtreeInline = false;
    /// Open elements from the outermost one on that is not displayed.
    unsigned hidden = 0;
    XCode refusal;
    Words words;
};

}  // namespace CLI::XML
