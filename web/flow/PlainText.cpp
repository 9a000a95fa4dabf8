#include "web/flow/PlainText.h"

#include <algorithm>

#include "web/flow/textOptions.h"

namespace galley::web {

bool readPlainText(KeptText& plain, std::string_view decoded, Style const& block) {
    plain.block = &block;
    plain.text.clear();
    plain.isAscii = true;
    // Those are broken by other rules, and these are spread.
    if (block.whiteSpace != WhiteSpace::normal || block.textAlign == TextAlign::justify)
        return false;
    if (block.textTransform != TextTransform::none) return false;
    SegmentReader reader(decoded, textOptions(block));
    Segment segment;
    for (;;) {
        plain.text += reader.takeWords();
        if (!reader.next(segment)) return true;
        using Behind = Segment::Behind;
        bool const isBeforeBlank = segment.behind == Behind::space;
        if (!segment.isOfLetters || (!isBeforeBlank && segment.behind != Behind::end)) return false;
        plain.isAscii = plain.isAscii && segment.isPlain;
        plain.text += decoded.substr(segment.begin, segment.end - segment.begin);
        if (isBeforeBlank && !plain.text.empty() && plain.text.back() != ' ') plain.text += ' ';
    }
}

PlainLine plainLine(PlainText const& plain, int columns, bool partsWords) {
    auto const room = static_cast<std::size_t>(std::max(columns, 0));
    std::string_view const text = plain.text;
    std::size_t const reached = plain.bytesOf(room);
    std::size_t end = reached == text.size() ? reached : text.rfind(' ', reached);
    if (end == std::string_view::npos) {
        end = partsWords ? plain.bytesOf(std::max<std::size_t>(room, 1)) : text.find(' ', reached);
        end = std::min(end, text.size());
    }
    std::string_view const line = text.substr(0, end);
    bool const isBeforeBlank = end < text.size() && text[end] == ' ';
    return {line, static_cast<int>(plain.cellsOf(line)), end + (isBeforeBlank ? 1 : 0)};
}

}  // namespace galley::web
