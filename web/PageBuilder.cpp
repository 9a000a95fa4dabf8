#include "web/PageBuilder.h"

#include <algorithm>
#include <string>
#include <utility>

#include "web/text/whiteSpace.h"

namespace galley::web {

namespace {

bool isTablePart(Display display) { return display > Display::table; }

/// In cells; a wider one shows no more.
constexpr unsigned s_widestPage = 1'000'000;

}  // namespace

PageBuilder::PageBuilder(Sheet const& defaults, std::span<Sheet const* const> authors,
                         Media const& shownOn, RowSink& rows, PageBudget& cells,
                         std::vector<Problem>& found)
    : defaultSheet(defaults),
      sheets(authors.begin(), authors.end()),
      media(shownOn),
      problems(found),
      page(rows, cells, static_cast<int>(std::min(shownOn.width, s_widestPage)), {},
           Flow::OuterMargins::dropped) {
    initial.cells = media.cells;
}

/// A fragment, which begins with another element or with text, stands in `html` and `body`.
void PageBuilder::openRoot(std::string_view name) {
    if (open.size() > 1) return;
    if (depth == 0) push(page, initial);
    if (open.empty()) {
        if (name == "html") return;
        openImplied(html, "html");
    }
    bool const isInHtml = html.style != nullptr;
    if (!isInHtml || name == "body") return;
    body.parent = &html;
    openImplied(body, "body");
}

/// A background of `body` is that of the page (CSS Backgrounds 3, 2.11.2), where `html` has none.
void PageBuilder::spreadBackground(Style const& bodyStyle) {
    OpenElement const& root = open.back();
    bool const isInRoot = open.size() == 1 && root.role == Role::block;
    if (!isInRoot || isDrawn(root.style->background)) return;
    canvas = *root.style;
    canvas.background = bodyStyle.background;
    page.restyle(canvas);
}

void PageBuilder::openImplied(Element& element, std::string_view name) {
    element.name = name;
    enter(element);
}

void PageBuilder::startElement(Element& element) {
    openRoot(element.name);
    if (element.parent == nullptr && element.name != "html") {
        element.parent = element.name == "body" ? &html : &body;
    }
    enter(element);
}

void PageBuilder::enter(Element& element) {
    Style const* const style = cascade->styleOf(element);
    element.style = style;
    if (open.empty()) readLanguage(element);
    if (element.name == "body") spreadBackground(*style);
    bool const isHidden = !open.empty() && open.back().role == Role::hidden;
    Role role = Role::hidden;
    if (!isHidden && style->display != Display::none) {
        if (!isTablePart(style->display)) closeImpliedTable();
        role = openElement(element, *style);
    }
    OpenElement& opened = open.emplace_back(OpenElement{role, style});
    opened.isBody = element.name == "body";
    opened.isList = !isHidden && (element.name == "ol" || element.name == "ul");
    if (opened.isList) opened.nextNumber = firstNumberOf(element);
}

PageBuilder::Role PageBuilder::openElement(Element const& element, Style const& style) {
    // The outermost element is in no line and part of no table (CSS Display 3, 2.8).
    bool const isRoot = open.empty() && style.display != Display::table;
    switch (isRoot ? Display::block : style.display) {
        case Display::inlined:
            return openInline(element, style);
        case Display::table:
            if (isInTable()) openAnonymousCell();
            openTable(style, element.name == "table" ? Table::Sizing::borderBox
                                                     : Table::Sizing::contentBox);
            return Role::table;
        case Display::block:
        case Display::listItem:
            openBlock(element, style);
            return Role::block;
        default:
            return openTablePart(element, style);
    }
}

void PageBuilder::text(std::string_view decoded) {
    bool const isOfBlanks = isBlank(decoded);
    if (!isOfBlanks) openRoot({});
    if (open.empty()) return;
    if (open.back().role == Role::hidden || open.back().role == Role::columnGroup) return;
    if (!isOfBlanks) closeImpliedTable();
    if (isInTable()) {
        if (isOfBlanks) return;
        openAnonymousCell();
    }
    Frame& current = frame();
    bool const isFirst = current.plain.text.empty() && !current.hasParagraph;
    if (isFirst && isOfBlanks && current.style->whiteSpace == WhiteSpace::normal) return;
    if (isFirst && readPlainText(current.plain, decoded, *current.style)) return;
    if (isFirst) current.plain.text.clear();
    paragraph().addText(decoded);
}

void PageBuilder::endElement(Element& element) {
    static_cast<void>(element);
    closeElement();
}

void PageBuilder::closeElement() {
    closeAnonymousCell();
    closeImpliedTable();
    OpenElement const closed = open.back();
    open.pop_back();
    if (closed.isBody && closed.role == Role::block) {
        endParagraph();
        linkList.moveTo(*frame().sink, *frame().style);
    }
    endRole(closed.role);
}

void PageBuilder::endRole(Role role) {
    switch (role) {
        case Role::quote:
            // As in Chromium, it ends no word.
            paragraph().addGenerated(--quoteDepth == 0 ? "”" : "’");
            paragraph().close();
            break;
        case Role::inlined:
            paragraph().close();
            break;
        case Role::numberedLink:
            paragraph().close();
            paragraph().addGenerated("\u00A0[" + std::to_string(linkNumbers.back()) + "]");
            linkNumbers.pop_back();
            break;
        case Role::block:
            endParagraph();
            frame().sink->close();
            pop();
            letGo();
            break;
        case Role::table:
        case Role::impliedTable:
            closeTable();
            break;
        case Role::columnGroup:
            tables.back()->endColumnGroup();
            break;
        case Role::rowGroup:
            tables.back()->endGroup();
            break;
        case Role::row:
            tables.back()->endRow();
            break;
        case Role::cell:
            endParagraph();
            pop();
            break;
        case Role::hidden:
        case Role::point:
            break;
    }
}

Element const* PageBuilder::implied() const {
    if (body.style != nullptr) return &body;
    return html.style != nullptr ? &html : nullptr;
}

void PageBuilder::finish() {
    while (!open.empty()) closeElement();
    if (depth > 0) {
        endParagraph();
        // Of a document without a body, and behind it.
        linkList.moveTo(page, *frame().style);
    }
    page.finish();
}

/// Where nothing of the document waits any more but what is open, drops the rest.
void PageBuilder::letGo() {
    bool const hasOpenInline = frame().hasParagraph && frame().paragraph.hasOpen();
    if (!tables.empty() || hasOpenInline) return;
    if (!links.empty()) links.clear();
    if (!anonymousStyles.empty()) anonymousStyles.clear();
    if (!cascade->isFull()) return;
    std::vector<Style const*> inUse = {html.style, body.style};
    for (OpenElement const& each : open) inUse.push_back(each.style);
    cascade->letGo(inUse);
}

}  // namespace galley::web
