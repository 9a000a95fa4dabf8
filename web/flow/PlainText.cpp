#include "web/flow/PlainText.h"

#include <algorithm>

#include "web/flow/textOptions.h"

namespace galley::web {

bool readPlainText(std::string& plain, std::string_view decoded, Style const& block) {
    plain.clear();
    // Those are broken by other rules, and these are spread.
    if (block.whiteSpace != WhiteSpace::normal || block.textAlign == TextAlign::justify)
        return false;
    if (block.textTransform != TextTransform::none) return false;
    SegmentReader reader(decoded, textOptions(block));
    Segment segment;
    for (;;) {
        plain += reader.takeWords();
        if (!reader.next(segment)) return true;
        using Behind = Segment::Behind;
        bool const isBeforeBlank = segment.behind == Behind::space;
        if (!segment.isPlain || (!isBeforeBlank && segment.behind != Behind::end)) return false;
        plain += decoded.substr(segment.begin, segment.end - segment.begin);
        if (isBeforeBlank && !plain.empty() && plain.back() != ' ') plain += ' ';
    }
}

PlainLine plainLine(std::string_view text, int columns, bool partsWords) {
    auto const room = static_cast<std::size_t>(std::max(columns, 0));
    if (text.size() <= room) return {text.size(), text.size()};
    std::size_t end = text.rfind(' ', room);
    if (end == std::string_view::npos) {
        end = partsWords ? std::max<std::size_t>(room, 1) : text.find(' ', room);
        end = std::min(end, text.size());
    }
    bool const isBeforeBlank = end < text.size() && text[end] == ' ';
    return {end, end + (isBeforeBlank ? 1 : 0)};
}

}  // namespace galley::web
