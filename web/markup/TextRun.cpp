#include "web/markup/TextRun.h"

#include <utility>

#include "web/markup/References.h"

namespace galley::web {

void TextRun::add(Piece const& piece) {
    utf8.check(piece.text, piece.offset);
    bool const isPlain = piece.kind == Piece::Kind::literalText || !hasReferences(piece.text);
    if (isPlain && text.empty()) {
        text = piece.text;
        return;
    }
    if (text.data() != joined.data()) joined = text;
    if (isPlain) {
        joined += piece.text;
    } else {
        decodeReferences(piece.text, piece.offset, joined, problems);
    }
    text = joined;
}

std::string_view TextRun::take() { return std::exchange(text, {}); }

}  // namespace galley::web
