#include "web/text/visible.h"

#include <utf8proc.h>

#include <cstdint>
#include <cstdio>

#include "web/text/utf8.h"

namespace galley::web {

bool isHidden(char32_t c) {
    auto const* const properties = utf8proc_get_property(static_cast<std::int32_t>(c));
    switch (properties->boundclass) {
        case UTF8PROC_BOUNDCLASS_CR:
        case UTF8PROC_BOUNDCLASS_LF:
        case UTF8PROC_BOUNDCLASS_CONTROL:
            return true;
        default:
            return false;
    }
}

std::string notation(char32_t c) {
    char text[sizeof "<U+10FFFF>"];
    std::snprintf(text, sizeof text, "<U+%04X>", static_cast<unsigned>(c));
    return text;
}

std::string visible(std::string_view text) {
    std::string shown;
    for (std::size_t at = 0; at < text.size();) {
        CodePoint const c = decodeAt(text, at);
        if (c.isWellFormed && isHidden(c.value)) {
            shown += notation(c.value);
        } else {
            shown += text.substr(at, c.length);
        }
        at += c.length;
    }
    return shown;
}

}  // namespace galley::web
