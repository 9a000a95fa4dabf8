#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "web/Element.h"

namespace galley::web {

/// A piece of a document, as it is written. All views are into the document.
struct Piece {
    enum class Kind : std::uint8_t {
        startTag,
        endTag,
        /// Up to the next tag, section, comment or the like.
        text,
        /// What is in a CDATA section, where references are none.
        literalText,
        endOfDocument,
    };

    Kind kind = Kind::endOfDocument;
    /// Where it begins; of a section, where its text does. In bytes from the start of the document.
    std::size_t offset = 0;
    /// Of a tag.
    std::string_view name;
    /// Of a start tag. Values have their references still.
    std::vector<Attribute> attributes;
    /// Whether a start tag is the end tag, too.
    bool isClosed = false;
    std::string_view text;
    /// Of a text: whether it is known to be of nothing else, and whether some of it may stand for
    /// something else.
    ///@{
    bool isAscii = false;
    bool hasReferences = false;
    ///@}
};

}  // namespace galley::web
