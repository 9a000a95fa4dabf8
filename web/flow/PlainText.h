#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "web/Style.h"
#include "web/text/letters.h"

namespace galley::web {

/// A paragraph of a single text, of nothing but printable ASCII and common letters, a cell a
/// character, with one blank between two words, where alone a line may break unless words are
/// parted. Most paragraphs are such; their lines are those that `LineBreaker` comes to by its rules
/// for all, found by a search for blanks.
struct PlainText {
    Style const* block = nullptr;
    /// Begins and ends with a word.
    std::string_view text;
    /// It is printable ASCII, so that bytes are cells.
    bool isAscii = false;

    std::size_t cellsOf(std::string_view part) const {
        return isAscii ? part.size() : cellsOfLetters(part);
    }
    /// The bytes of so many cells at its start, all of it where it has no more.
    std::size_t bytesOf(std::size_t cells) const {
        return isAscii ? std::min(cells, text.size()) : bytesOfCells(text, cells);
    }
};

/// The same, in memory of its own.
struct KeptText {
    Style const* block = nullptr;
    std::string text;
    bool isAscii = true;

    PlainText view() const { return {block, text, isAscii}; }
};

/// Reads the first text of a paragraph, in the block itself, as plain text, with a blank behind it
/// if there is white space. False, and nothing of use in `plain`, where it is not.
bool readPlainText(KeptText& plain, std::string_view decoded, Style const& block);

/// The first line of a text.
struct PlainLine {
    std::string_view text;
    int cells;
    /// Where the next line begins, in bytes.
    std::size_t next;
};

/// That of at most so many columns where it can be. Words that have no room are parted, or stick
/// out.
PlainLine plainLine(PlainText const& plain, int columns, bool partsWords);

/// Calls `take` with each line, its cells and the columns that it is indented, in a container of so
/// many.
template <class Take>
void breakLines(PlainText plain, int columns, bool partsWords, int indent, Take take) {
    for (; !plain.text.empty(); indent = 0) {
        PlainLine const line = plainLine(plain, columns - indent, partsWords);
        take(line.text, line.cells, indent);
        plain.text.remove_prefix(line.next);
    }
}

}  // namespace galley::web
