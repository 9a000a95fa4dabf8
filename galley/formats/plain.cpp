#include "galley/formats/plain.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "base/append.h"
#include "galley/terminal/AnsiReader.h"

void CLI::XML::makePlain(String& page) {
    if (page.indexOf('\x1b') < 0) return;
    String plain;
    plain.reserve(page.length());
    std::string_view rest = page.view();
    for (std::size_t escape = 0; (escape = rest.find('\x1b')) != std::string_view::npos;) {
        std::size_t const length = sequenceLength(rest.substr(escape));
        // An escape byte that begins no sequence is text.
        append(plain, rest.substr(0, length > 0 ? escape : escape + 1));
        rest.remove_prefix(escape + std::max<std::size_t>(length, 1));
    }
    append(plain, rest);
    page = std::move(plain);
}
