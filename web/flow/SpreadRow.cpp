#include "web/flow/SpreadRow.h"

#include <algorithm>
#include <iterator>

#include "web/text/Cluster.h"

namespace galley::web {

namespace {

/// Whether a justified line may be spread on both sides of a character: in scripts without blanks
/// between words, and around emoji, as far as Chromium does so.
bool isSpreadAround(Cluster const& cluster) {
    char32_t const c = cluster.first;
    // What is wide among symbols is an emoji, but for two brackets.
    bool const isSymbol = c > 0x232A && c < 0x2C00;
    bool const isEmoji = isSymbol || c == 0x231A || c == 0x231B;
    if (isEmoji && cluster.properties.width == EastAsianWidth::wide) return true;
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

}  // namespace

void SpreadRow::addText(std::string_view text, int cells, bool isPrintedAsIs,
                        Inline const& element) {
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

void SpreadRow::addWords(std::string_view text, Inline const& element) {
    for (;;) {
        std::size_t const blank = text.find(' ');
        std::string_view const word = text.substr(0, blank);
        if (!word.empty()) isBehindGap = false;
        addText(word, static_cast<int>(word.size()), true, element);
        if (blank == std::string_view::npos) return;
        addBlank(element.look);
        text.remove_prefix(blank + 1);
    }
}

void SpreadRow::addClusters(std::string_view text, Inline const& element) {
    constexpr char32_t noBreakSpace = 0xA0;
    for (std::size_t i = 0; i < text.size();) {
        Cluster const cluster = clusterAt(text, i, element.style->cells.isAmbiguousWide);
        bool const isSpreadHere = isSpreadAround(cluster);
        if (isSpreadHere && !isBehindGap) addGap(element.look);
        isBehindGap = false;
        addText(text.substr(i, cluster.end - i), static_cast<int>(cluster.width), false, element);
        if (isSpreadHere || cluster.first == noBreakSpace) addGap(element.look);
        i = cluster.end;
    }
}

void SpreadRow::addBlank(Look const& look) {
    row.fill(row.width() + 1, look);
    addGap(look);
}

void SpreadRow::addBlanks(std::uint32_t count, Look const& look) {
    for (; count > 0; --count) addBlank(look);
}

void SpreadRow::addTab(Inline const& element) {
    int const stop = element.style->tabSize;
    if (stop == 0) return;
    int const column = row.width() - start - added;
    row.fill(row.width() + stop - column % stop, element.look);
    addGap(element.look);
}

/// Adds a part of what is spare.
void SpreadRow::addGap(Look const& look) {
    ++passed;
    isBehindGap = true;
    if (rest.cells == 0) return;
    int const part = (rest.cells + rest.gaps - 1) / rest.gaps;
    row.fill(row.width() + part, look);
    added += part;
    rest.cells -= part;
    --rest.gaps;
}

}  // namespace galley::web
