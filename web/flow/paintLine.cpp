#include "web/flow/paintLine.h"

#include <string_view>

#include "web/flow/Border.h"
#include "web/flow/SpreadRow.h"
#include "web/flow/lengths.h"
#include "web/text/Cluster.h"
#include "web/text/ideographs.h"

namespace galley::web {

namespace {

class LinePainter {
public:
    LinePainter(SpreadRow& painted, Paragraph const& source, TextLine const& part, int columns)
        : row(painted), paragraph(source), line(part), container(columns) {
        findLast();
    }

    void paint() {
        for (std::uint32_t i = line.begin.item; i < endItem(); ++i) {
            index = i;
            paintItem(paragraph.items()[i]);
        }
    }

private:
    /// One past the last item of which something is on the line.
    std::uint32_t endItem() const { return line.end.item + (line.end.offset > 0 ? 1 : 0); }

    /// White space that would hang is none.
    bool isText(Item const& item) const {
        bool const isBlank = item.kind == Item::Kind::blanks || item.kind == Item::Kind::tab;
        return item.kind == Item::Kind::words || item.kind == Item::Kind::word ||
               item.kind == Item::Kind::ideographs ||
               (isBlank && !wraps(*paragraph.element(item).style));
    }

    /// Blanks behind the last text show nowhere.
    void findLast() {
        last = endItem();
        while (last > line.begin.item && !isText(paragraph.items()[last - 1])) --last;
        hasText = last > line.begin.item;
        if (hasText) --last;
        lastEdge = endItem();
        while (lastEdge > line.begin.item && !isEdge(paragraph.items()[lastEdge - 1])) --lastEdge;
    }

    bool isEdge(Item const& item) const {
        Inline const& element = paragraph.element(item);
        return (item.kind == Item::Kind::open && element.leftEdge(container) > 0) ||
               (item.kind == Item::Kind::close && element.rightEdge(container) > 0);
    }

    std::string_view textOf(Item const& item) const {
        std::string_view text = paragraph.textOf(item);
        if (index == line.end.item && line.end.offset > 0) text = text.substr(0, line.end.offset);
        if (index == line.begin.item) text.remove_prefix(line.begin.offset);
        if (item.kind == Item::Kind::words && index == last && text.ends_with(' ')) {
            text.remove_suffix(1);
        }
        return text;
    }

    void paintItem(Item const& item) {
        Inline const& element = paragraph.element(item);
        switch (item.kind) {
            case Item::Kind::words:
            case Item::Kind::word:
            case Item::Kind::ideographs:
                paintText(item, element);
                break;
            case Item::Kind::blank:
                if (isBegun && index < last && hasText) row.addBlank(element.look);
                break;
            case Item::Kind::blanks:
                if (isHanging(element)) break;
                isBegun = true;
                row.addBlanks(item.width, element.look);
                break;
            case Item::Kind::tab:
                if (isHanging(element)) break;
                isBegun = true;
                row.addTab(element);
                break;
            case Item::Kind::open:
                paintLeftEdge(element);
                break;
            case Item::Kind::close:
                paintRightEdge(element);
                break;
            case Item::Kind::lineFeed:
            case Item::Kind::breakable:
                break;
        }
    }

    /// White space behind all text and edges hangs where a line may break.
    bool isHanging(Inline const& element) const {
        bool const isLast = (index > last || !hasText) && index >= lastEdge;
        return isLast && wraps(*element.style);
    }

    void paintText(Item const& item, Inline const& element) {
        std::string_view const text = textOf(item);
        isBegun = true;
        if (!row.isSpread()) {
            row.addText(text, cellsOf(item, text), item.isPrintedAsIs, element);
        } else if (isAscii(item)) {
            row.addWords(text, element);
        } else {
            row.addClusters(text, element);
        }
        if (line.hyphenates && index == last) row.addText("-", 1, true, element);
    }

    static bool isAscii(Item const& item) {
        return item.isPlain && item.kind != Item::Kind::ideographs;
    }

    int cellsOf(Item const& item, std::string_view text) const {
        if (isAscii(item)) return static_cast<int>(text.size());
        if (item.kind == Item::Kind::ideographs) return cellsOfIdeographs(text);
        bool const isWhole = text.size() == item.end - item.begin;
        return isWhole ? static_cast<int>(item.width) : countCells(text, isAmbiguousWide(item));
    }

    bool isAmbiguousWide(Item const& item) const {
        return paragraph.element(item).style->cells.isAmbiguousWide;
    }

    void paintLeftEdge(Inline const& element) {
        if (!element.begins) return;
        Style const& style = *element.style;
        row.addCells(across(style.margin.left, container), blankOn(element.around));
        Colour const ground = element.look.background;
        addVertical(row.painted(), style.border.left, ground, isVisible(style));
        row.addCells(across(style.padding.left, container), blankOn(ground));
    }

    void paintRightEdge(Inline const& element) {
        if (!element.ends) return;
        Style const& style = *element.style;
        Colour const ground = element.look.background;
        row.addCells(across(style.padding.right, container), blankOn(ground));
        addVertical(row.painted(), style.border.right, ground, isVisible(style));
        row.addCells(across(style.margin.right, container), blankOn(element.around));
    }

    SpreadRow& row;
    Paragraph const& paragraph;
    TextLine const& line;
    int container;
    /// The last item that is text, if there is one, and the one at hand.
    std::uint32_t last = 0;
    std::uint32_t index = 0;
    bool hasText = false;
    /// One past the last one that is an edge of an element, or the line's first.
    std::uint32_t lastEdge = 0;
    bool isBegun = false;
};

}  // namespace

void paintLine(Row& row, Paragraph const& paragraph, TextLine const& line, int container, int start,
               int spare) {
    SpreadRow painted(row, start);
    if (spare != 0) {
        Row unspread;
        SpreadRow counted(unspread, 0);
        counted.spread({});
        LinePainter(counted, paragraph, line, container).paint();
        painted.spread({counted.gaps() > 0 ? spare : 0, counted.gaps()});
    }
    LinePainter(painted, paragraph, line, container).paint();
}

}  // namespace galley::web
