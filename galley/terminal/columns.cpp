#include "galley/terminal/columns.h"

#include <algorithm>
#include <clocale>
#include <cwchar>

#include "galley/terminal/controls.h"

namespace galley {

namespace {

wchar_t decode(std::string_view character) {
    auto const byteAt = [character](std::size_t i) {
        return static_cast<unsigned char>(character[i]);
    };
    std::size_t const length = character.length();
    // The lead has a bit set for each byte, and a zero.
    unsigned code = length == 1 ? byteAt(0) : byteAt(0) & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) code = code << 6 | (byteAt(i) & 0x3FU);
    return static_cast<wchar_t>(code);
}

}  // namespace

std::size_t lengthAt(std::string_view text, std::size_t i) {
    return std::max<std::size_t>(characterLength(text, i), 1);
}

unsigned columnsAt(std::string_view text, std::size_t i) {
    std::size_t const length = lengthAt(text, i);
    if (length == 1) return 1;
    // Whatever the environment says, since the text is UTF-8.
    static locale_t const s_utf8 = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (s_utf8 == nullptr) return 1;
    locale_t const former = uselocale(s_utf8);
    int const columns = wcwidth(decode(text.substr(i, length)));
    uselocale(former);
    return columns < 0 ? 1 : static_cast<unsigned>(columns);
}

}  // namespace galley
