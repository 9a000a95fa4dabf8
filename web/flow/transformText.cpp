#include "web/flow/transformText.h"

#include <utf8proc.h>

#include <array>

#include "web/text/utf8.h"

namespace galley::web {

namespace {

bool isLetterOrNumber(std::int32_t c) {
    utf8proc_category_t const category = utf8proc_category(c);
    return (category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO) ||
           (category >= UTF8PROC_CATEGORY_ND && category <= UTF8PROC_CATEGORY_NO);
}

/// What shows no character of its own: a mark, or what only formats.
bool isWithinWord(std::int32_t c) {
    utf8proc_category_t const category = utf8proc_category(c);
    return (category >= UTF8PROC_CATEGORY_MN && category <= UTF8PROC_CATEGORY_ME) ||
           category == UTF8PROC_CATEGORY_CF || c == '\'' || c == 0x2019;
}

}  // namespace

void transformText(std::string& out, std::string_view text, TextTransform transform,
                   bool& isInWord) {
    out.clear();
    for (std::size_t at = 0; at < text.size();) {
        CodePoint const decoded = decodeAt(text, at);
        std::string_view const bytes = text.substr(at, decoded.length);
        at += decoded.length;
        auto const c = static_cast<std::int32_t>(decoded.value);
        std::int32_t mapped = c;
        if (transform == TextTransform::uppercase) {
            mapped = utf8proc_toupper(c);
        } else if (transform == TextTransform::lowercase) {
            mapped = utf8proc_tolower(c);
        } else if (!isInWord && isLetterOrNumber(c)) {
            mapped = utf8proc_totitle(c);
        }
        isInWord = isLetterOrNumber(c) || (isWithinWord(c) && isInWord);
        if (mapped == c) {
            out += bytes;
        } else {
            std::array<std::uint8_t, 4> encoded = {};
            auto const length = utf8proc_encode_char(mapped, encoded.data());
            out.append(encoded.begin(), encoded.begin() + length);
        }
    }
}

}  // namespace galley::web
