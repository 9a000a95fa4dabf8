#pragma once

#include <vector>

#include "galley/check/Finding.h"
#include "xml/dom/nodes.h"
#include "xml/parser/PullParser.h"

namespace galley {

/// Reads a document as the library does, and goes on behind elements that are unknown or refused.
class DocumentReader {
public:
    enum class Event {
        /// `element` is set, and what `attributes` returns.
        StartOfElement,
        /// `element` is the one that ends.
        EndOfElement,
        /// `text` is set.
        Text,
        /// A comment or the like was skipped.
        Other,
        /// Or an error behind which nothing is read.
        EndOfDocument,
    };

    struct Element {
        UnclosedElement tag;
        CLI::XML::DomNode::Display display = CLI::XML::DomNode::Block;
        /// Otherwise its name is none of the language, and it may hold anything.
        bool isKnown = true;
        /// It or an element around it is not displayed.
        bool isHidden = false;
    };

    /// Reads a copy of the document, which must outlive what is taken from here.
    explicit DocumentReader(std::string_view document);

    Event next();

    /// About what was read last.
    std::optional<Finding> error;
    /// Where that begins. A document that ends without an error before its last byte does so at an
    /// end tag that closes nothing.
    std::size_t start = 0;
    Element element;
    /// Running text as the document has it, a CDATA section without its marks.
    std::string_view text;

    /// Behind what was read last.
    std::size_t position() const { return static_cast<std::size_t>(parser.position); }
    /// Of the last start tag.
    auto const& attributes() const { return parser.attributes; }
    /// The innermost element that is open, or the one around the document.
    Element const& parent() const { return open.empty() ? root : open.back(); }

private:
    Event read(CLI::XML::PullParser::TagType next);
    Event startElement();
    Event endElement();
    Event readText();
    /// Passes the event on, unless reading it failed.
    Event syntax(XCode const& result, Event event);
    Event stop(std::string message, std::size_t place, std::optional<UnclosedElement> unclosed);
    CLI::XML::DomNode::Display displayWithAttributes(CLI::XML::DomNode::Display display) const;
    void checkParent(CLI::XML::DomNode::Display child, std::string_view name, std::size_t place);

    std::string_view source;
    String markup;
    CLI::XML::PullParser parser;
    ZRLWPtr<CLI::XML::DomElement> rootElement;
    /// The same, as what may be a parent.
    Element root;
    std::vector<Element> open;
    bool hasStopped = false;
};

}  // namespace galley
