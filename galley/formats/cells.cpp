#include "galley/formats/cells.h"

#include "galley/terminal/columns.h"
#include "web/text/Cluster.h"

namespace galley {

namespace {

/// What is never parted.
Piece unitOf(std::string_view text, CellRule rule) {
    if (text.front() == ' ') return {Piece::Kind::blank, text.substr(0, 1), 1};
    if (rule == CellRule::characters) {
        return {Piece::Kind::narrow, text.substr(0, lengthAt(text, 0)), 1};
    }
    web::Cluster const cluster = web::clusterAt(text, 0, false);
    Piece::Kind const kind = cluster.width > 1 ? Piece::Kind::wide : Piece::Kind::narrow;
    return {kind, text.substr(0, cluster.end), cluster.width};
}

}  // namespace

Piece takePiece(std::string_view& text, CellRule rule) {
    std::string_view rest = text;
    Piece piece = unitOf(rest, rule);
    for (Piece unit = piece; unit.kind == piece.kind;) {
        rest.remove_prefix(unit.text.length());
        if (rest.empty()) break;
        unit = unitOf(rest, rule);
        if (unit.kind == piece.kind) piece.cells += unit.cells;
    }
    piece.text = text.substr(0, text.length() - rest.length());
    text = rest;
    return piece;
}

}  // namespace galley
