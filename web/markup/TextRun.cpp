#include "web/markup/TextRun.h"

#include <utility>

#include "web/markup/References.h"

namespace galley::web {

void TextRun::add(Piece const& piece) {
    if (!piece.isAscii) utf8.check(piece.text, piece.offset);
    if (!piece.hasReferences && text.empty()) {
        text = piece.text;
        return;
    }
    if (text.data() != joined.data()) joined = text;
    if (!piece.hasReferences) {
        joined += piece.text;
    } else {
        decodeReferences(piece.text, piece.offset, joined, problems);
    }
    text = joined;
}

std::string_view TextRun::take() { return std::exchange(text, {}); }

}  // namespace galley::web
