#include "galley/formats/plain.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "galley/terminal/AnsiReader.h"

namespace galley {

namespace {

/// Moves the text of a row to `out`, which is not behind it. Returns the end of what is there.
char* moveText(char* out, std::string_view row) {
    auto const move = [&](std::size_t length) {
        std::memmove(out, row.data(), length);
        out += length;
    };
    for (std::size_t escape = 0; (escape = row.find('\x1b')) != std::string_view::npos;) {
        std::size_t const length = sequenceLength(row.substr(escape));
        // An escape byte that begins no sequence is text.
        move(length > 0 ? escape : escape + 1);
        row.remove_prefix(escape + std::max<std::size_t>(length, 1));
    }
    move(row.length());
    return out;
}

}  // namespace

void makePlain(String& page) {
    char* out = page.data();
    for (std::string_view rest = page.view(); !rest.empty();) {
        std::string_view const row = rest.substr(0, rest.find('\n'));
        char* const begin = out;
        out = moveText(out, row);
        while (out > begin && out[-1] == ' ') --out;
        rest.remove_prefix(row.length());
        if (rest.empty()) break;
        *out++ = '\n';
        rest.remove_prefix(1);
    }
    page.deleteRegion(static_cast<int>(out - page.data()), page.length());
}

}  // namespace galley
