#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "web/Problem.h"
#include "web/markup/Piece.h"

namespace galley::web {

/// The text of a `style` element, of which it remembers what came from where.
class EmbeddedSheet {
public:
    /// Begins with the start tag of the element. The sheet owns all that it has.
    EmbeddedSheet(Piece const& startTag, std::vector<Problem>& problems);

    /// Adds a piece of text that is in the element itself.
    void add(Piece const& piece, std::vector<Problem>& problems);

    std::string_view text() const { return decoded; }
    /// Of the attribute of this name, the media that the sheet is for; empty where it is for all.
    std::string_view media() const { return mediaList; }
    /// Where a byte of the text, or its end, is in the document; both in bytes from the start.
    std::size_t offsetOf(std::size_t position) const;

private:
    void add(std::string_view part, std::size_t offset);

    /// A part of the text without references.
    struct Mark {
        std::size_t position;
        std::size_t offset;
    };

    std::string decoded;
    std::string mediaList;
    /// The first is that of the element's start; positions ascend.
    std::vector<Mark> marks;
};

}  // namespace galley::web
