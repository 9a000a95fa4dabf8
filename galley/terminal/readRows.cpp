#include "galley/terminal/readRows.h"

#include <algorithm>
#include <cstddef>

#include "galley/terminal/columns.h"
#include "galley/terminal/sgr.h"
#include "web/text/utf8.h"

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

/// Bytes up to a sequence or the end of the line. An escape byte that begins no sequence is text.
std::size_t textLength(std::string_view line) {
    std::size_t end = line.find('\x1b');
    while (end != std::string_view::npos && sequenceLength(line.substr(end)) == 0) {
        end = line.find('\x1b', end + 1);
    }
    return std::min(end, line.length());
}

int countCharacters(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.length();) {
        std::size_t const end = web::skipAscii(text, i);
        count += end - i;
        i = end;
        for (; i < text.length() && !web::isAscii(text[i]); ++count) i += lengthAt(text, i);
    }
    return static_cast<int>(count);
}

/// Adds a part of a row, which changes the look of what is behind it.
void addTo(Row& row, std::string_view line, Look& look) {
    while (!line.empty()) {
        std::size_t length = sequenceLength(line);
        if (length > 0) {
            apply(codeOf(line.substr(0, length)), look);
        } else {
            length = textLength(line);
            std::string_view const text = line.substr(0, length);
            row.add(text, countCharacters(text), look);
        }
        line.remove_prefix(length);
    }
}

}  // namespace

void readRows(std::string_view page, web::RowSink& rows) {
    Row row;
    Look look;
    for (std::size_t end = page.find('\n'); end != std::string_view::npos; end = page.find('\n')) {
        addTo(row, page.substr(0, end), look);
        rows.take(row);
        row.clear();
        page.remove_prefix(end + 1);
    }
}

void makePlain(String& page) {
    char* kept = page.data();
    std::string_view rest = page.view();
    for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
        char const* const row = kept;
        for (std::string_view line = rest.substr(0, end); !line.empty();) {
            std::size_t const length = textLength(line);
            kept = std::copy_n(line.data(), length, kept);
            line.remove_prefix(length);
            line.remove_prefix(sequenceLength(line));
        }
        while (kept > row && kept[-1] == ' ') --kept;
        *kept++ = '\n';
        rest.remove_prefix(end + 1);
    }
    page.deleteRegion(static_cast<int>(kept - page.data()), page.length());
}

}  // namespace galley
