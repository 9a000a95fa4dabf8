#include "web/flow/plainLine.h"

#include <algorithm>
#include <string_view>

namespace galley::web {

namespace {

/// Bytes of text that stand in a line, which are its cells, and those up to the next line.
struct Extent {
    std::size_t length;
    std::size_t next;
};

Extent extentOf(std::string_view text, std::size_t room, bool mayPartWords) {
    if (text.size() <= room) return {text.size(), text.size()};
    std::size_t end = text.rfind(' ', room);
    if (end == std::string_view::npos) {
        end = mayPartWords ? std::max<std::size_t>(room, 1) : text.find(' ', room);
        end = std::min(end, text.size());
    }
    bool const isBlankNext = end < text.size() && text[end] == ' ';
    return {end, end + (isBlankNext ? 1 : 0)};
}

}  // namespace

TextLine plainLine(Paragraph const& paragraph, Place from, int columns, bool mayPartWords) {
    std::string_view const text = paragraph.plainText(from);
    Extent const extent =
        extentOf(text, static_cast<std::size_t>(std::max(columns, 0)), mayPartWords);
    return {.begin = from,
            .end = paragraph.behindPlain(from, extent.next),
            .width = static_cast<int>(extent.length),
            .isLast = extent.next == text.size()};
}

}  // namespace galley::web
