#include "web/flow/paintLine.h"

#include <algorithm>
#include <string>

#include "web/flow/Border.h"
#include "web/flow/lengths.h"
#include "web/text/Cluster.h"
#include "web/text/ideographs.h"

namespace galley::web {

namespace {

class LinePainter {
public:
    LinePainter(Row& painted, Paragraph const& source, TextLine const& part, int columns, int left)
        : row(painted), paragraph(source), line(part), container(columns), start(left) {}

    void paint(int spareCells) {
        findLast();
        if (spareCells > 0) countGaps();
        spare = spareCells;
        for (std::uint32_t i = line.begin.item; i < endItem(); ++i) {
            index = i;
            paintItem(paragraph.items()[i]);
        }
        if (line.hyphenates) addPlain("-", paragraph.element(paragraph.items()[last]));
    }

private:
    /// One past the last item of which something is on the line.
    std::uint32_t endItem() const { return line.end.item + (line.end.offset > 0 ? 1 : 0); }

    static bool isText(Item const& item) {
        return item.kind == Item::Kind::words || item.kind == Item::Kind::word ||
               item.kind == Item::Kind::ideographs || item.kind == Item::Kind::blanks ||
               item.kind == Item::Kind::tab;
    }

    /// Blanks behind the last text show nowhere.
    void findLast() {
        last = endItem();
        while (last > line.begin.item && !isText(paragraph.items()[last - 1])) --last;
        hasText = last > line.begin.item;
        if (hasText) --last;
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

    void countGaps() {
        bool isBehindText = false;
        for (std::uint32_t i = line.begin.item; hasText && i <= last; ++i) {
            index = i;
            Item const& item = paragraph.items()[i];
            if (item.kind == Item::Kind::words) {
                std::string_view const text = textOf(item);
                gaps += static_cast<int>(std::count(text.begin(), text.end(), ' '));
            } else if (item.kind == Item::Kind::blank && isBehindText) {
                ++gaps;
            }
            isBehindText = isBehindText || isText(item);
        }
    }

    void paintItem(Item const& item) {
        Inline const& element = paragraph.element(item);
        switch (item.kind) {
            case Item::Kind::words:
                paintWords(textOf(item), element);
                isBegun = true;
                break;
            case Item::Kind::word:
                paintWord(item, element);
                isBegun = true;
                break;
            case Item::Kind::ideographs:
                add(textOf(item), cellsOfIdeographs(textOf(item)), element);
                isBegun = true;
                break;
            case Item::Kind::blank:
                if (isBegun && index < last && hasText) paintGap(element.look);
                break;
            case Item::Kind::blanks:
                row.fill(row.width() + static_cast<int>(item.width), element.look);
                isBegun = true;
                break;
            case Item::Kind::tab:
                if (element.style->tabSize > 0) {
                    int const column = row.width() - start;
                    row.fill(row.width() + element.style->tabSize - column % element.style->tabSize,
                             element.look);
                }
                isBegun = true;
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

    /// A blank, and its part of what is spare.
    void paintGap(Look const& look) {
        int cells = 1;
        if (spare > 0) {
            int const part = (spare + gaps - 1) / gaps;
            cells += part;
            spare -= part;
            --gaps;
        }
        row.fill(row.width() + cells, look);
    }

    void paintWords(std::string_view text, Inline const& element) {
        while (spare > 0) {
            std::size_t const blank = text.find(' ');
            if (blank == std::string_view::npos) break;
            addPlain(text.substr(0, blank), element);
            paintGap(element.look);
            text.remove_prefix(blank + 1);
        }
        addPlain(text, element);
    }

    void addPlain(std::string_view text, Inline const& element) {
        add(text, static_cast<int>(text.size()), element);
    }

    /// Adds what is printed as it is, and takes so many cells.
    void add(std::string_view text, int cells, Inline const& element) {
        if (isVisible(*element.style)) {
            row.add(text, cells, element.look);
        } else {
            row.fill(row.width() + cells, element.look);
        }
    }

    void paintWord(Item const& item, Inline const& element) {
        std::string_view const text = textOf(item);
        if (item.isPlain) return addPlain(text, element);
        bool const isWhole = text.size() == item.end - item.begin;
        int const cells = isWhole ? static_cast<int>(item.width)
                                  : countCells(text, element.style->cells.isAmbiguousWide);
        if (item.isPrintedAsIs) return add(text, cells, element);
        printed.clear();
        appendPrinted(printed, text);
        add(printed, cells, element);
    }

    void paintLeftEdge(Inline const& element) {
        if (!element.begins) return;
        Style const& style = *element.style;
        row.fill(row.width() + across(style.margin.left, container), blankOn(element.around));
        Colour const ground = element.look.background;
        addVertical(row, style.border.left, ground, isVisible(style));
        row.fill(row.width() + across(style.padding.left, container), blankOn(ground));
    }

    void paintRightEdge(Inline const& element) {
        if (!element.ends) return;
        Style const& style = *element.style;
        Colour const ground = element.look.background;
        row.fill(row.width() + across(style.padding.right, container), blankOn(ground));
        addVertical(row, style.border.right, ground, isVisible(style));
        row.fill(row.width() + across(style.margin.right, container), blankOn(element.around));
    }

    Row& row;
    Paragraph const& paragraph;
    TextLine const& line;
    int container;
    int start;
    int spare = 0;
    int gaps = 0;
    /// The last item that is text, if there is one, and the one at hand.
    std::uint32_t last = 0;
    std::uint32_t index = 0;
    bool hasText = false;
    bool isBegun = false;
    std::string printed;
};

}  // namespace

void paintLine(Row& row, Paragraph const& paragraph, TextLine const& line, int container, int start,
               int spare) {
    LinePainter(row, paragraph, line, container, start).paint(spare);
}

}  // namespace galley::web
