// How blocks and list items come into the page while they are read, and the paragraphs between
// them.

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "web/PageBuilder.h"
#include "web/flow/markers.h"
#include "web/markup/attributes.h"
#include "web/text/Cluster.h"

namespace galley::web {

namespace {

constexpr Limits s_numbers = {std::numeric_limits<int>::min(), 1'000'000'000};

}  // namespace

void PageBuilder::openBlock(Element const& element, Style const& style) {
    if (isInTable()) openAnonymousCell();
    endParagraph();
    static OutsideMarker const s_none;
    OutsideMarker const* marker = &s_none;
    std::string inside;
    if (style.display == Display::listItem) {
        int const number = numberOf(element);
        if (style.markerPosition == MarkerPosition::inside) {
            inside = markerText(style.marker, number);
        } else {
            marker = &outsideMarker(style, number);
        }
    }
    BlockSink& sink = *frame().sink;
    sink.open(style, *marker);
    push(sink, style);
    if (!inside.empty()) paragraph().addGenerated(inside);
}

/// Those of a list without numbers are all alike.
OutsideMarker const& PageBuilder::outsideMarker(Style const& style, int number) {
    if (!isNumbered(style.marker)) number = 0;
    if (markerSource == style.marker && lastNumber == number) return lastMarker;
    markerSource = style.marker;
    lastNumber = number;
    std::string const text = markerText(style.marker, number);
    lastMarker.text.clear();
    appendPrinted(lastMarker.text, text);
    lastMarker.columns = countCells(text, style.cells.isAmbiguousWide);
    return lastMarker;
}

/// The number of a list's first item.
int PageBuilder::firstNumberOf(Element const& list) {
    return integerAttribute(list, "start", s_numbers, problems).value_or(1);
}

/// The number of a list item: its own, or the next one of the list around it, or without a list of
/// its parent.
int PageBuilder::numberOf(Element const& element) {
    auto list = std::find_if(open.rbegin(), open.rend(),
                             [](OpenElement const& each) { return each.isList; });
    if (list == open.rend()) list = open.rbegin();
    int ofRoot = 1;
    int& next = list == open.rend() ? ofRoot : list->nextNumber;
    int const number = integerAttribute(element, "value", s_numbers, problems).value_or(next);
    next = number + 1;
    return number;
}

void PageBuilder::push(BlockSink& sink, Style const& style) {
    if (depth == frames.size()) frames.emplace_back();
    Frame& opened = frames[depth++];
    opened.sink = &sink;
    opened.style = &style;
    opened.hasParagraph = false;
}

void PageBuilder::pop() { --depth; }

/// The paragraph that is read, or that begins now. A text that came alone is no more alone.
Paragraph& PageBuilder::paragraph() {
    Frame& current = frame();
    if (!std::exchange(current.hasParagraph, true)) {
        current.paragraph.begin(*current.style);
        current.paragraph.addText(current.plain.text);
        current.plain.text.clear();
    }
    return current.paragraph;
}

/// Hands on what has been read since the last block. Inline elements that are open go on behind it.
void PageBuilder::endParagraph() {
    Frame& current = frame();
    std::string& text = current.plain.text;
    if (!text.empty()) {
        if (text.back() == ' ') text.pop_back();
        current.sink->add(current.plain.view());
        return text.clear();
    }
    if (!current.hasParagraph) return;
    if (current.paragraph.hasOpen()) {
        current.paragraph.partInto(done);
        if (!done.isEmpty()) current.sink->add(done);
        return;
    }
    current.hasParagraph = false;
    current.paragraph.finish();
    if (!current.paragraph.isEmpty()) current.sink->add(current.paragraph);
}

}  // namespace galley::web
