#include "web/PageBuilder.h"

#include <algorithm>
#include <string>
#include <utility>

#include "web/css/Tokenizer.h"
#include "web/text/whiteSpace.h"
#include "web/wording.h"

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

void PageBuilder::styleSheet(EmbeddedSheet const& sheet) {
    embeddedBytes += sheet.text().size();
    if (embeddedBytes > Tokenizer::s_longest) {
        return warn(problems, sheet.offsetOf(0),
                    "sheets of a document are read up to 4 MiB; this one has no effect");
    }
    std::string text(sheet.text());
    std::size_t before = 0;
    if (!sheet.media().empty()) {
        std::string const condition = "@media " + std::string(sheet.media()) + "{";
        before = condition.size();
        text.insert(0, condition).append("}");
    }
    std::vector<Problem> found;
    embedded.push_back(Sheet::parse(text, found));
    sheets.push_back(&embedded.back());
    for (Problem& problem : found) {
        problem.offset = sheet.offsetOf(std::max(problem.offset, before) - before);
        tell(problems, std::move(problem));
    }
}

bool PageBuilder::asksForLastChild() {
    cascade.emplace(defaultSheet, sheets, media, problems);
    return std::any_of(sheets.begin(), sheets.end(),
                       [](Sheet const* sheet) { return sheet->asksForLastChild(); });
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

void PageBuilder::openImplied(Element& element, std::string_view name) {
    element.name = name;
    element.style = cascade->styleOf(element);
    open.push_back({openElement(element, *element.style), element.style});
    open.back().isBody = name == "body";
}

void PageBuilder::startElement(Element& element) {
    openRoot(element.name);
    if (element.parent == nullptr && element.name != "html") {
        element.parent = element.name == "body" ? &html : &body;
    }
    Style const* const style = cascade->styleOf(element);
    element.style = style;
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
    switch (style.display) {
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
    bool const isFirst = current.plain.empty() && !current.hasParagraph;
    if (isFirst && isOfBlanks && current.style->whiteSpace == WhiteSpace::normal) return;
    if (isFirst && readPlainText(current.plain, decoded, *current.style)) return;
    if (isFirst) current.plain.clear();
    paragraph().addText(decoded);
}

void PageBuilder::endElement(Element& element) {
    static_cast<void>(element);
    closeAnonymousCell();
    closeImpliedTable();
    closeElement();
}

void PageBuilder::closeElement() {
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
