#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "web/text/properties.h"

namespace galley::web {

/// An extended grapheme cluster of UAX #29, controls and separators of lines counting as what is
/// printed for them: what takes one or two cells, and is never parted.
struct Cluster {
    /// Bytes of the text.
    std::size_t begin = 0;
    std::size_t end = 0;
    /// Cells: 1 or 2, and 0 exactly where it is not printed: a soft hyphen, a format character, a
    /// mark or a joiner without a base.
    unsigned width = 0;
    /// Whether `appendPrinted` appends just its bytes. Not told of each for which that is so.
    bool isPrintedAsIs = false;
    /// Its first code point, which has so many bytes, and what is known of it. Controls count as
    /// U+FFFD.
    char32_t first = 0;
    unsigned firstLength = 0;
    Properties properties = {};
};

/// The cluster that begins at byte `at` of a text that is longer. Marks that come first have no
/// base, whatever stands before them. East Asian ambiguous characters have one cell, or two.
Cluster clusterAt(std::string_view text, std::size_t at, bool isAmbiguousWide);

/// Cells that the clusters of a text take.
int countCells(std::string_view text, bool isAmbiguousWide = false);

/// Appends what a terminal is to print of a text: ill-formed parts and controls as U+FFFD, no-break
/// spaces and separators of lines as blanks, without what is not printed. What is appended is
/// well-formed, and takes as many cells as the clusters of the text, unless what is not printed was
/// between two halves of a flag or of a syllable.
void appendPrinted(std::string& out, std::string_view text);

}  // namespace galley::web
