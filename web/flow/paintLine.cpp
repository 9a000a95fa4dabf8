#include "web/flow/paintLine.h"

#include <algorithm>
#include <string>

#include "web/flow/Border.h"
#include "web/flow/lengths.h"
#include "web/text/Cluster.h"
#include "web/text/ideographs.h"

namespace galley::web {

namespace {

/// Whether a justified line may be spread on both sides of a character: in scripts without blanks
/// between words, and around emoji, as far as Chromium does so.
bool isSpreadAround(char32_t c) {
    struct Range {
        char32_t first;
        char32_t last;
    };
    constexpr Range s_ranges[] = {{0x2E80, 0x312F},   {0x3190, 0x31E3},   {0x3200, 0x9FFF},
                                  {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF01, 0xFF9D},
                                  {0x1B000, 0x1B2FF}, {0x1F1E6, 0x1FAFF}, {0x20000, 0x3FFFF}};
    return std::any_of(std::begin(s_ranges), std::end(s_ranges),
                       [c](Range const& range) { return c >= range.first && c <= range.last; });
}

/// What is spare in a justified line, and the gaps that share it, of which the first get more.
struct Spread {
    int cells = 0;
    int gaps = 0;
};

class LinePainter {
public:
    LinePainter(Row& painted, Paragraph const& source, TextLine const& part, int columns, int left)
        : row(painted), paragraph(source), line(part), container(columns), start(left) {
        findLast();
    }

    void paint() {
        for (std::uint32_t i = line.begin.item; i < endItem(); ++i) {
            index = i;
            paintItem(paragraph.items()[i]);
        }
    }

    void paintSpread(Spread shared) {
        isSpread = true;
        rest = shared;
        paint();
    }

    /// Gaps that have been painted, but for one at the end.
    int gaps() const { return passed - (isBehindGap && passed > 0 ? 1 : 0); }

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
                if (isBegun && index < last && hasText) paintBlank(element.look);
                break;
            case Item::Kind::blanks:
                if (!isHanging(element)) paintBlanks(item.width, element);
                break;
            case Item::Kind::tab:
                if (!isHanging(element)) paintTab(element);
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

    /// White space behind all text hangs where a line may break.
    bool isHanging(Inline const& element) const {
        return (index > last || !hasText) && wraps(*element.style);
    }

    void paintText(Item const& item, Inline const& element) {
        std::string_view const text = textOf(item);
        isBegun = true;
        if (!isSpread) {
            addText(text, cellsOf(item, text), item.isPrintedAsIs, element);
        } else if (isAscii(item)) {
            paintWords(text, element);
        } else {
            paintClusters(text, element);
        }
        if (line.hyphenates && index == last) addText("-", 1, true, element);
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

    void paintWords(std::string_view text, Inline const& element) {
        for (;;) {
            std::size_t const blank = text.find(' ');
            std::string_view const word = text.substr(0, blank);
            if (!word.empty()) isBehindGap = false;
            addText(word, static_cast<int>(word.size()), true, element);
            if (blank == std::string_view::npos) return;
            paintBlank(element.look);
            text.remove_prefix(blank + 1);
        }
    }

    void paintClusters(std::string_view text, Inline const& element) {
        constexpr char32_t noBreakSpace = 0xA0;
        for (std::size_t i = 0; i < text.size();) {
            Cluster const cluster = clusterAt(text, i, element.style->cells.isAmbiguousWide);
            bool const isSpreadHere = isSpreadAround(cluster.first);
            if (isSpreadHere && !isBehindGap) paintGap(element.look);
            isBehindGap = false;
            addText(text.substr(i, cluster.end - i), static_cast<int>(cluster.width), false,
                    element);
            if (isSpreadHere || cluster.first == noBreakSpace) paintGap(element.look);
            i = cluster.end;
        }
    }

    void paintBlank(Look const& look) {
        row.fill(row.width() + 1, look);
        paintGap(look);
    }

    void paintBlanks(std::uint32_t count, Inline const& element) {
        isBegun = true;
        for (; count > 0; --count) paintBlank(element.look);
    }

    void paintTab(Inline const& element) {
        isBegun = true;
        int const stop = element.style->tabSize;
        if (stop == 0) return;
        int const column = row.width() - start - added;
        row.fill(row.width() + stop - column % stop, element.look);
        paintGap(element.look);
    }

    /// Adds a part of what is spare.
    void paintGap(Look const& look) {
        ++passed;
        isBehindGap = true;
        if (rest.cells == 0) return;
        int const part = (rest.cells + rest.gaps - 1) / rest.gaps;
        row.fill(row.width() + part, look);
        added += part;
        rest.cells -= part;
        --rest.gaps;
    }

    void addText(std::string_view text, int cells, bool isPrintedAsIs, Inline const& element) {
        if (!isVisible(*element.style)) {
            row.fill(row.width() + cells, element.look);
        } else if (isPrintedAsIs) {
            row.add(text, cells, element.look);
        } else {
            printed.clear();
            appendPrinted(printed, text);
            row.add(printed, cells, element.look);
        }
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
    /// The last item that is text, if there is one, and the one at hand.
    std::uint32_t last = 0;
    std::uint32_t index = 0;
    bool hasText = false;
    bool isBegun = false;
    /// Of a line whose gaps are wider: what they have not got yet, and what they have.
    ///@{
    bool isSpread = false;
    Spread rest;
    int added = 0;
    ///@}
    int passed = 0;
    bool isBehindGap = true;
    std::string printed;
};

}  // namespace

void paintLine(Row& row, Paragraph const& paragraph, TextLine const& line, int container, int start,
               int spare) {
    LinePainter painter(row, paragraph, line, container, start);
    if (spare == 0) return painter.paint();
    Row unspread;
    LinePainter counter(unspread, paragraph, line, container, 0);
    counter.paintSpread({});
    painter.paintSpread({counter.gaps() > 0 ? spare : 0, counter.gaps()});
}

}  // namespace galley::web
