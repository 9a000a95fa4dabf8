#include "galley/formats/AnsiWriter.h"

#include <algorithm>
#include <utility>

#include "base/append.h"
#include "galley/formats/encodeAddress.h"
#include "galley/terminal/sgr.h"

namespace galley {

using CLI::XML::append;
using web::Colour;
using web::Look;
using web::Row;

void AnsiWriter::take(Row const& row) {
    std::size_t const end = shownLength(row);
    for (Row::Span const& span : row.spans()) {
        if (span.begin >= end) break;
        changeLink(span.look.link);
        changeLook(span.look);
        append(out, row.text().substr(span.begin, std::min(span.end, end) - span.begin));
    }
    changeLook({});
    changeLink(nullptr);
    append(out, "\n");
}

std::size_t AnsiWriter::shownLength(Row const& row) const {
    std::size_t length = row.text().find_last_not_of(' ') + 1;
    for (Row::Span const& span : row.spans()) {
        if (showsBlanks(span.look)) length = std::max(length, span.end);
    }
    return length;
}

bool AnsiWriter::showsBlanks(Look const& look) const {
    bool const hasGround =
        look.background.kind != Colour::Kind::terminal && depth != ColourDepth::none;
    return hasGround || look.isUnderlined || look.isStruckThrough || look.isInverse;
}

void AnsiWriter::changeLook(Look const& look) {
    if (look == current) return;
    current = look;
    std::string next = sgrParameters(look, depth);
    if (next == parameters) return;
    std::string_view const reset = parameters.empty() ? "" : next.empty() ? "0" : "0;";
    append(out, "\x1b[", reset, next, "m");
    parameters = std::move(next);
}

// A terminal takes parts of several rows for one link where they have the same id.
void AnsiWriter::changeLink(web::Link const* next) {
    if (next == link) return;
    link = next;
    if (link == nullptr) {
        append(out, "\x1b]8;;\x1b\\");
    } else {
        append(out, "\x1b]8;id=", std::to_string(link->number), ";", encodeAddress(link->address),
               "\x1b\\");
    }
}

}  // namespace galley
