#pragma once

#include <algorithm>
#include <string_view>

#include "base/XCode.h"
#include "xml/css/StyleNode.h"
#include "xml/dom/nodes.h"
#include "xml/parser/PullParser.h"

namespace CLI::XML {

/// Takes a document as it is read, from beginning to end.
class DocumentHandler {
public:
    virtual ~DocumentHandler() = default;
    /// Whether nothing is kept of a document but what the handler makes of it: then elements that
    /// look alike, without attributes, are one and the same, and the parser's fields may not tell
    /// what was read.
    virtual bool keepsNothing() const = 0;
    /// An element begins: its attributes, display kind and style rule are set, children follow.
    virtual void startElement(ZRLWPtr<DomElement> const& element) = 0;
    /// The innermost open element ends.
    virtual void endElement() = 0;
    /// Words of running text, at least one, each with the one space that followed it: only the last
    /// may be without, and none has another space in it. Or one word in which references were
    /// decoded, to anything. The bytes are gone afterwards.
    virtual void addText(std::string_view text, bool isWord) = 0;
};

/// The first of words, with its space; nothing of nothing.
inline std::string_view firstWord(std::string_view words) {
    return words.substr(0, std::min(words.find(' '), words.length() - 1) + 1);
}

/// Calls `visit` with each word of a text, as it was read.
template <class Visit>
void visitWords(std::string_view text, bool isWord, Visit const& visit) {
    // Of an empty word, too.
    do {
        std::string_view const word = isWord ? text : firstWord(text);
        visit(word);
        text.remove_prefix(word.length());
    } while (!text.empty());
}

/// Reads events until the end tag that closes what was open at the beginning, which is left unread,
/// or the end of the document, which only a top-level call accepts. Running text becomes a text a
/// word; white space is what `isspace` says in the current locale. An element takes the last rule
/// of `styles` whose selector is its name.
///
/// The first failure ends the reading and names its cause.
XCode readDocument(DocumentHandler& handler, bool isTopLevel, PullParser& parser,
                   StyleList const& styles);

/// The implicit element around a document, a block named "html".
ZRLWPtr<DomElement> createRootElement();

}  // namespace CLI::XML
