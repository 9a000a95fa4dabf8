// How tables are put together while they are read, and what stands loose between their parts.

#include <memory>
#include <utility>

#include "web/PageBuilder.h"
#include "web/css/computeStyle.h"
#include "web/markup/attributes.h"

namespace galley::web {

namespace {

constexpr Limits s_columnSpans = {1, 1000};
constexpr Limits s_rowSpans = {0, 65'534};

}  // namespace

/// Whether what comes now stands between the parts of a table.
bool PageBuilder::isInTable() const { return isBetweenParts() && !hasAnonymousCell.back(); }

/// The same, or in the cell that loose content there has.
bool PageBuilder::isBetweenParts() const {
    if (open.empty()) return false;
    Role const around = open.back().role;
    return around == Role::table || around == Role::impliedTable || around == Role::rowGroup ||
           around == Role::row;
}

PageBuilder::Role PageBuilder::openTablePart(Element const& element, Style const& style) {
    closeAnonymousCell();
    bool const isOfGroup = !open.empty() && open.back().role == Role::columnGroup;
    if (!isInTable() && !isOfGroup) openImpliedTable();
    Table& table = *tables.back();
    switch (style.display) {
        case Display::caption:
            push(table.addCaption(style), style);
            return Role::cell;
        case Display::columnGroup:
            table.beginColumnGroup(style, spanOf(element, "span", s_columnSpans));
            return Role::columnGroup;
        case Display::column:
            table.addColumn(style, spanOf(element, "span", s_columnSpans));
            return Role::hidden;
        case Display::row:
            table.beginRow(style);
            return Role::row;
        case Display::cell:
            return openCell(element, style);
        default:
            table.beginGroup(style, style.display);
            return Role::rowGroup;
    }
}

int PageBuilder::spanOf(Element const& element, std::string_view attributeName, Limits limits) {
    return integerAttribute(element, attributeName, limits, problems).value_or(1);
}

PageBuilder::Role PageBuilder::openCell(Element const& element, Style const& style) {
    Table& table = *tables.back();
    int const columns = spanOf(element, "colspan", s_columnSpans);
    BlockSink& content = table.addCell(style, columns, spanOf(element, "rowspan", s_rowSpans));
    push(content, style);
    return Role::cell;
}

/// For what stands between the parts of a table.
void PageBuilder::openAnonymousCell() {
    Table& table = *tables.back();
    Style const& style = anonymousStyles.emplace_back(computeStyle(*open.back().style, {}));
    BlockSink& content = table.addCell(style, 1, 1);
    push(content, style);
    hasAnonymousCell.back() = true;
}

void PageBuilder::closeAnonymousCell() {
    if (!isBetweenParts() || !hasAnonymousCell.back()) return;
    endParagraph();
    pop();
    hasAnonymousCell.back() = false;
}

void PageBuilder::openTable(Style const& style, Table::Sizing sizing) {
    endParagraph();
    tables.push_back(std::make_unique<Table>(style, sizing));
    hasAnonymousCell.push_back(false);
}

void PageBuilder::openImpliedTable() {
    Style const& style = anonymousStyles.emplace_back(computeStyle(*open.back().style, {}));
    openTable(style, Table::Sizing::contentBox);
    open.push_back({Role::impliedTable, &style});
}

void PageBuilder::closeImpliedTable() {
    if (open.empty() || open.back().role != Role::impliedTable) return;
    closeAnonymousCell();
    open.pop_back();
    closeTable();
}

void PageBuilder::closeTable() {
    std::unique_ptr<Table> table = std::move(tables.back());
    tables.pop_back();
    hasAnonymousCell.pop_back();
    frame().sink->add(std::move(table));
    letGo();
}

}  // namespace galley::web
