#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "web/markup/Piece.h"
#include "web/markup/Utf8Check.h"

namespace galley::web {

/// The text between two tags, put together from its pieces. What is one piece without references
/// is not copied.
class TextRun {
public:
    /// The document and these must outlive it.
    TextRun(Utf8Check& check, std::vector<Problem>& found) : utf8(check), problems(found) {}

    /// Adds a piece of text, literal or with references.
    void add(Piece const& piece);
    /// All that was added, until the next piece is. Empties the run.
    std::string_view take();

private:
    Utf8Check& utf8;
    std::vector<Problem>& problems;
    /// Of the document or `joined`.
    std::string_view text;
    std::string joined;
};

}  // namespace galley::web
