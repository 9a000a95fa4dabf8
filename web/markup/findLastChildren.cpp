#include "web/markup/findLastChildren.h"

#include <optional>

#include "web/markup/Scanner.h"

namespace galley::web {

std::vector<bool> findLastChildren(std::string_view markup) {
    std::vector<Problem> ignored;
    Scanner scanner(markup, ignored);
    std::vector<bool> isLast;
    /// Of each open element, and of the document, the last element in it so far.
    std::vector<std::optional<std::size_t>> lastChildren(1);
    auto const endParent = [&] {
        if (auto const& last = lastChildren.back()) isLast[*last] = true;
        lastChildren.pop_back();
    };
    Piece piece;
    while (!lastChildren.empty() && scanner.next(piece) &&
           piece.kind != Piece::Kind::endOfDocument) {
        if (piece.kind == Piece::Kind::startTag) {
            lastChildren.back() = isLast.size();
            isLast.push_back(false);
            if (!piece.isClosed) lastChildren.emplace_back();
        } else if (piece.kind == Piece::Kind::endTag) {
            endParent();
        }
    }
    while (!lastChildren.empty()) endParent();
    return isLast;
}

}  // namespace galley::web
