#include "web/markup/EmbeddedSheet.h"

#include <algorithm>

#include "web/markup/References.h"

namespace galley::web {

EmbeddedSheet::EmbeddedSheet(Piece const& startTag, std::vector<Problem>& problems)
    : marks{{0, startTag.offset}} {
    for (Attribute const& attribute : startTag.attributes) {
        if (attribute.name != "media") continue;
        decodeValue(attribute.value, attribute.valueOffset, mediaList, problems);
    }
}

void EmbeddedSheet::add(Piece const& piece, std::vector<Problem>& problems) {
    if (piece.kind == Piece::Kind::literalText) return add(piece.text, piece.offset);
    References references(piece.text, piece.offset, problems);
    for (References::Part part; references.next(part);) add(part.text, part.offset);
}

void EmbeddedSheet::add(std::string_view part, std::size_t offset) {
    marks.push_back({decoded.size(), offset});
    decoded += part;
}

std::size_t EmbeddedSheet::offsetOf(std::size_t position) const {
    auto const behind = std::ranges::upper_bound(marks, position, {}, &Mark::position);
    Mark const& mark = *(behind - 1);
    return mark.offset + position - mark.position;
}

}  // namespace galley::web
