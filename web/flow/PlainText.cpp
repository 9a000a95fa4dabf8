#include "web/flow/PlainText.h"

#include <algorithm>

namespace galley::web {

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
