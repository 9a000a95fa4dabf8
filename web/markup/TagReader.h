#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "web/Problem.h"
#include "web/markup/Cursor.h"
#include "web/markup/Piece.h"

namespace galley::web {

/// Reads the tags of a document. Each operation begins at a "<", which is the place of the piece;
/// where the tag is at fault it appends an error and returns false.
class TagReader {
public:
    TagReader(Cursor& place, std::vector<Problem>& found) : cursor(place), problems(found) {}

    bool readStartTag(Piece& piece);
    bool readEndTag(Piece& piece);

private:
    bool readAttribute(Piece& piece, bool isApart);
    bool readValue(Piece const& piece, Attribute& attribute);
    /// Whether no attribute is given twice.
    bool areDistinct(std::vector<Attribute> const& attributes);

    /// Where the document ends in the tag, that is the fault.
    bool failInTag(Piece const& piece, std::size_t offset, std::string message);

    Cursor& cursor;
    std::vector<Problem>& problems;
    /// Of the attributes of a tag, in alphabetical order.
    std::vector<std::string_view> names;
};

}  // namespace galley::web
