#include "galley/formats/cells.h"

#include "galley/terminal/columns.h"
#include "web/text/Cluster.h"

namespace galley {

namespace {

/// At the beginning of a text.
Piece unitOf(std::string_view text, CellRule rule) {
    if (text.front() == ' ') return {Piece::Kind::blank, text.substr(0, 1), 1};
    if (rule == CellRule::characters) {
        return {Piece::Kind::narrow, text.substr(0, lengthAt(text, 0)), 1};
    }
    web::Cluster const cluster = web::clusterAt(text, 0, rule == CellRule::wideClusters);
    Piece::Kind const kind = cluster.width > 1 ? Piece::Kind::wide : Piece::Kind::narrow;
    return {kind, text.substr(0, cluster.end), cluster.width};
}

}  // namespace

Piece takeUnit(std::string_view& text, CellRule rule) {
    Piece const unit = unitOf(text, rule);
    text.remove_prefix(unit.text.length());
    return unit;
}

Piece takePiece(std::string_view& text, CellRule rule) {
    std::string_view const whole = text;
    Piece piece = takeUnit(text, rule);
    while (!text.empty()) {
        Piece const next = unitOf(text, rule);
        if (next.kind != piece.kind) break;
        piece.cells += next.cells;
        text.remove_prefix(next.text.length());
    }
    piece.text = whole.substr(0, whole.length() - text.length());
    return piece;
}

}  // namespace galley
