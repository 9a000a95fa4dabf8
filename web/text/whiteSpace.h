#pragma once

#include <algorithm>
#include <string_view>

namespace galley::web {

/// Whether it is white space of a document, which collapses.
inline bool isWhiteSpace(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// Whether there is nothing else.
inline bool isBlank(std::string_view text) {
    return std::all_of(text.begin(), text.end(), isWhiteSpace);
}

}  // namespace galley::web
