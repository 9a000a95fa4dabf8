#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "web/DocumentInfo.h"
#include "web/LinkList.h"
#include "web/css/Cascade.h"
#include "web/css/MediaList.h"
#include "web/flow/Flow.h"
#include "web/flow/Table.h"
#include "web/markup/DocumentHandler.h"
#include "web/markup/attributes.h"

namespace galley::web {

/// Puts a page together while its document is read: what is between two blocks is a paragraph,
/// which goes where it stands, to the page or into the cell of a table.
class PageBuilder final : public DocumentHandler {
public:
    /// The sheets, the sink and the budget outlive the builder. Warnings are appended to `found`.
    PageBuilder(Sheet const& defaults, std::span<Sheet const* const> authors, Media const& shownOn,
                RowSink& rows, PageBudget& cells, std::vector<Problem>& found);

    void styleSheet(EmbeddedSheet const& sheet) override;
    bool asksForLastChild() override;
    void startElement(Element& element) override;
    void text(std::string_view decoded) override;
    void title(std::string_view decoded) override;
    void endElement(Element& element) override;
    /// The innermost element around a fragment, null without: it is in no tag of the document.
    Element const* implied() const;
    /// What has been said so far.
    DocumentInfo const& info() const { return document; }
    /// To be called at the end of the document.
    void finish();

private:
    enum class Role {
        hidden,
        inlined,
        quote,
        /// A link whose number stands behind it.
        numberedLink,
        point,
        block,
        table,
        /// One that parts of tables have around them which stand in none.
        impliedTable,
        columnGroup,
        rowGroup,
        row,
        cell,
    };

    struct OpenElement {
        Role role = Role::hidden;
        Style const* style = nullptr;
        /// It numbers the list items in it, and has the number of the next one.
        ///@{
        bool isList = false;
        int nextNumber = 1;
        ///@}
        /// At its end comes what stands at the end of the page.
        bool isBody = false;
    };

    /// A block, a cell or a caption whose content is being read.
    struct Frame {
        BlockSink* sink = nullptr;
        Style const* style = nullptr;
        /// What has been read since the last block in it: a text that came alone, while it is
        /// plain, or a paragraph, if it has begun.
        ///@{
        KeptText plain;
        Paragraph paragraph;
        bool hasParagraph = false;
        ///@}
    };

    void openRoot(std::string_view name);
    void readLanguage(Element const& root);
    void spreadBackground(Style const& bodyStyle);
    void openImplied(Element& element, std::string_view name);
    void enter(Element& element);
    Role openElement(Element const& element, Style const& style);
    Role openInline(Element const& element, Style const& style);
    Role openLink(std::string_view address, Style const& style);
    void openBlock(Element const& element, Style const& style);
    Role openTablePart(Element const& element, Style const& style);
    Role openCell(Element const& element, Style const& style);
    void openAnonymousCell();
    int spanOf(Element const& element, std::string_view attribute, Limits limits);
    bool isInTable() const;
    bool isBetweenParts() const;
    void closeElement();
    void endRole(Role role);
    void openTable(Style const& style, Table::Sizing sizing);
    void closeTable();
    void openImpliedTable();
    void closeImpliedTable();
    void closeAnonymousCell();
    int firstNumberOf(Element const& list);
    int numberOf(Element const& element);
    OutsideMarker const& outsideMarker(Style const& style, int number);
    void push(BlockSink& sink, Style const& style);
    void pop();
    void endParagraph();
    void letGo();

    Frame& frame() { return frames[depth - 1]; }
    Paragraph& paragraph();

    Sheet const& defaultSheet;
    std::vector<Sheet const*> sheets;
    std::deque<Sheet> embedded;
    std::size_t embeddedBytes = 0;
    Media media;
    std::vector<Problem>& problems;
    std::optional<Cascade> cascade;
    Flow page;
    /// Of what is around the outermost element.
    Style initial;
    /// What a fragment stands in. Open, it has a style, and is the outermost one that is.
    ///@{
    Element html;
    Element body;
    ///@}
    DocumentInfo document;
    /// Of the outermost element with the background of `body`.
    Style canvas;
    std::vector<OpenElement> open;
    /// Those in use come first; the others are kept for their memory.
    std::deque<Frame> frames;
    std::size_t depth = 0;
    /// Innermost last.
    std::vector<std::unique_ptr<Table>> tables;
    /// Loose content of the innermost table stands in a cell of its own.
    std::vector<bool> hasAnonymousCell;
    std::deque<Style> anonymousStyles;
    std::deque<Link> links;
    unsigned linkCount = 0;
    LinkList linkList;
    /// Of the numbered links that are open, innermost last.
    std::vector<unsigned> linkNumbers;
    unsigned quoteDepth = 0;
    Paragraph done;
    /// What an item's marker was made of, and became, last.
    ///@{
    std::optional<Marker> markerSource;
    int lastNumber = 0;
    OutsideMarker lastMarker;
    ///@}
};

}  // namespace galley::web
