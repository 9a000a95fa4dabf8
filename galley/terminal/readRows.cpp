#include "galley/terminal/readRows.h"

#include <algorithm>
#include <cstddef>

#include "galley/terminal/columns.h"
#include "galley/terminal/sgr.h"

namespace galley {

using web::Colour;
using web::Look;
using web::Row;

namespace {

Colour colourOf(unsigned code) {
    unsigned const number = code % 10;
    return number < 8 ? Colour::ofPalette(static_cast<std::uint8_t>(number)) : Colour();
}

void apply(unsigned code, Look& look) {
    if (code == 0) look = {};
    for (auto const& [candidate, isSet] : s_attributes) {
        if (code == candidate) look.*isSet = true;
    }
    if (code / 10 == 3) look.text = colourOf(code);
    if (code / 10 == 4) look.background = colourOf(code);
}

/// The bytes of the sequence "\x1b[NUMBERm" at the beginning of `text`; 0 where there is none.
std::size_t sequenceLength(std::string_view text) {
    if (!text.starts_with("\x1b[")) return 0;
    std::size_t const end = text.find_first_not_of("0123456789", 2);
    return end != std::string_view::npos && text[end] == 'm' ? end + 1 : 0;
}

unsigned codeOf(std::string_view sequence) {
    unsigned code = 0;
    for (char const digit : sequence.substr(2, sequence.length() - 3)) {
        code = code * 10 + static_cast<unsigned>(digit - '0');
    }
    return code;
}

/// Bytes up to a sequence or the end of the row. An escape byte that begins no sequence is text.
std::size_t textLength(std::string_view page) {
    std::size_t end = 0;
    while (end < page.length() && page[end] != '\n') {
        if (page[end] == '\x1b' && sequenceLength(page.substr(end)) > 0) break;
        ++end;
    }
    return end;
}

int countCharacters(std::string_view text) {
    int count = 0;
    for (std::size_t i = 0; i < text.length(); ++count) {
        bool const isAscii = static_cast<unsigned char>(text[i]) < 0x80;
        i += isAscii ? 1 : lengthAt(text, i);
    }
    return count;
}

}  // namespace

void readRows(std::string_view page, web::RowSink& rows) {
    Row row;
    Look look;
    while (!page.empty()) {
        std::size_t length = sequenceLength(page);
        if (length > 0) {
            apply(codeOf(page.substr(0, length)), look);
        } else if (page.front() == '\n') {
            rows.take(row);
            row.clear();
            length = 1;
        } else {
            length = textLength(page);
            std::string_view const text = page.substr(0, length);
            row.add(text, countCharacters(text), look);
        }
        page.remove_prefix(length);
    }
}

}  // namespace galley
