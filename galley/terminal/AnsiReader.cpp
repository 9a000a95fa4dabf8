#include "galley/terminal/AnsiReader.h"

#include <algorithm>

namespace galley {

namespace {

void apply(unsigned code, Look& look) {
    unsigned const color = code % 10;
    if (code == 0) look = {};
    if (code >= Look::Bold && code <= Look::Hidden) look.attributes |= 1U << code;
    if (code / 10 == 3) look.foreground = std::min(color, Look::s_noColor);
    if (code / 10 == 4) look.background = std::min(color, Look::s_noColor);
}

}  // namespace

std::size_t sequenceLength(std::string_view text) {
    if (!text.starts_with("\x1b[")) return 0;
    std::size_t const end = text.find_first_not_of("0123456789", 2);
    return end != std::string_view::npos && text[end] == 'm' ? end + 1 : 0;
}

void AnsiReader::readSequences() {
    while (std::size_t const length = sequenceLength(page)) {
        unsigned code = 0;
        for (char const digit : page.substr(2, length - 3)) {
            code = code * 10 + static_cast<unsigned>(digit - '0');
        }
        apply(code, look);
        page.remove_prefix(length);
    }
}

bool AnsiReader::next(Run& run) {
    readSequences();
    if (page.empty()) return false;
    // An escape byte that begins no sequence is text.
    std::size_t end = page.find_first_of("\n\x1b");
    while (end < page.length() && page[end] == '\x1b' && sequenceLength(page.substr(end)) == 0) {
        end = page.find_first_of("\n\x1b", end + 1);
    }
    end = std::min(end, page.length());
    run.text = page.substr(0, end);
    run.look = look;
    page.remove_prefix(end);
    readSequences();
    run.endsRow = page.starts_with('\n');
    if (run.endsRow) page.remove_prefix(1);
    return true;
}

}  // namespace galley
