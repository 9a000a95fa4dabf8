#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "web/Style.h"

namespace galley::web {

/// A paragraph of a single text, of nothing but printable ASCII, a cell a byte, with one blank
/// between two words, where alone a line may break unless words are parted. Most paragraphs are
/// such; their lines are those that `LineBreaker` comes to by its rules for all, found by a search
/// for blanks.
struct PlainText {
    Style const* block = nullptr;
    /// Begins and ends with a word.
    std::string_view text;
};

/// Reads the first text of a paragraph, in the block itself, as plain text, with a blank behind it
/// if there is white space. False, and nothing of use in `plain`, where it is not.
bool readPlainText(std::string& plain, std::string_view decoded, Style const& block);

/// The first line of a text.
struct PlainLine {
    /// In bytes, which are cells.
    std::size_t length;
    /// Where the next line begins.
    std::size_t next;
};

/// That of at most so many columns where it can be. Words that have no room are parted, or stick
/// out.
PlainLine plainLine(std::string_view text, int columns, bool partsWords);

/// Calls `take` with each line and the columns that it is indented, in a container of so many.
template <class Take>
void breakLines(PlainText const& plain, int columns, bool partsWords, int indent, Take take) {
    for (std::string_view rest = plain.text; !rest.empty(); indent = 0) {
        PlainLine const line = plainLine(rest, columns - indent, partsWords);
        take(rest.substr(0, line.length), indent);
        rest.remove_prefix(line.next);
    }
}

}  // namespace galley::web
