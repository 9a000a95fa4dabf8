#pragma once

#include <string_view>

#include "xml/dom/DomText.h"
#include "xml/layout/InlineBox.h"

namespace CLI::XML {

/// Makes the boxes of running text while a document is read. Words that follow one another share a
/// box, and the boxes share a few long texts, of which each shows its part.
class Words {
public:
    using Boxes = ZRVector<ZRLWPtr<Box>>;

    /// Adds words to the end of `boxes`: to the last box where that shows the words before them,
    /// otherwise in a new one. Only the last word may be without its one space.
    void addWords(Boxes& boxes, std::string_view words);
    /// The same for a word that may hold any bytes.
    void addWord(Boxes& boxes, std::string_view word);

    /// Bytes from `start` on up to the end of the word there, its space included.
    static std::size_t lengthOfWord(std::string_view words, std::size_t start);

private:
    void addRun(Boxes& boxes, std::string_view words);

    ZRLWPtr<DomText> text;
};

}  // namespace CLI::XML
