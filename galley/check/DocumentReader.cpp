#include "galley/check/DocumentReader.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "base/append.h"
#include "xml/css/properties.h"
#include "xml/dom/readDocument.h"
#include "xml/dom/vocabulary.h"
#include "xml/layout/children.h"

namespace galley {

namespace {

using CLI::XML::DomNode;
using CLI::XML::PullParser;

constexpr std::string_view s_cdataStart = "<![CDATA[";
constexpr std::string_view s_cdataEnd = "]]>";

Finding makeError(std::string message, std::size_t position) {
    return {Finding::Kind::Error, std::move(message), position, std::nullopt};
}

}  // namespace

DocumentReader::DocumentReader(std::string_view document)
    : source(document),
      parser(PullParser::withoutCopy(markup)),
      rootElement(CLI::XML::createRootElement()) {
    CLI::XML::append(markup, document);
    root.tag.name = rootElement->name.view();
    root.display = rootElement->display;
}

DocumentReader::Event DocumentReader::next() {
    error.reset();
    if (hasStopped) return Event::EndOfDocument;
    start = position();
    PullParser::TagType const next = parser.getNextTag();
    if (next != PullParser::TAG_END_OF_DOCUMENT && (!open.empty() || next != PullParser::TAG_END)) {
        return read(next);
    }
    hasStopped = true;
    if (open.empty()) return Event::EndOfDocument;
    return stop("Missing end tag at the end", start, open.back().tag);
}

DocumentReader::Event DocumentReader::read(PullParser::TagType next) {
    switch (next) {
        case PullParser::TAG_START:
            return startElement();
        case PullParser::TAG_END:
            return endElement();
        case PullParser::TAG_CONTENT:
            return readText();
        case PullParser::TAG_COMMENT:
            return syntax(parser.skipCommentTag(), Event::Other);
        default:
            return syntax(parser.skipOtherTag(), Event::Other);
    }
}

DocumentReader::Event DocumentReader::startElement() {
    Event const event = syntax(parser.readStartTag(), Event::StartOfElement);
    if (hasStopped) return event;
    std::string_view const name = source.substr(start + 1, parser.name.view().length());
    auto const* const entry = CLI::XML::findInVocabulary(name);
    element = {{start, name}, DomNode::Block, entry != nullptr, parent().isHidden};
    if (entry != nullptr) {
        element.display = displayWithAttributes(entry->display);
        element.isHidden = element.isHidden || element.display == DomNode::None;
        if (!element.isHidden) checkParent(element.display, name, start);
    } else {
        error = makeError("Invalid tag: <" + std::string(name) + ">", start);
    }
    open.push_back(element);
    return event;
}

DocumentReader::Event DocumentReader::endElement() {
    Event const event = syntax(parser.readEndTag(), Event::EndOfElement);
    if (hasStopped) return event;
    element = open.back();
    if (parser.name.view() != element.tag.name) {
        return stop("End tag </" + std::string(parser.name.view()) +
                        "> does not match start tag <" + std::string(element.tag.name) + ">",
                    start, element.tag);
    }
    open.pop_back();
    return event;
}

DocumentReader::Event DocumentReader::readText() {
    Event const event = syntax(parser.readContent(), Event::Text);
    if (hasStopped) return event;
    text = source.substr(start, position() - start);
    if (text.starts_with(s_cdataStart)) {
        text.remove_prefix(s_cdataStart.length());
        text.remove_suffix(s_cdataEnd.length());
    }
    auto const isSpace = [](unsigned char c) { return std::isspace(c) != 0; };
    auto const* const word = std::find_if_not(text.begin(), text.end(), isSpace);
    // A NUL byte ends the words.
    if (word != text.end() && *word != '\0' && !parent().isHidden) {
        checkParent(DomNode::Inline, "text", static_cast<std::size_t>(word - source.begin()));
    }
    return event;
}

DocumentReader::Event DocumentReader::syntax(XCode const& result, Event event) {
    if (result) return event;
    // Behind the line and ": ".
    std::string_view const message = parser.errorMessage.view();
    return stop(std::string(message.substr(message.find(' ') + 1)), position(), std::nullopt);
}

DocumentReader::Event DocumentReader::stop(std::string message, std::size_t place,
                                           std::optional<UnclosedElement> unclosed) {
    hasStopped = true;
    error = makeError(std::move(message), place);
    error->unclosed = unclosed;
    return Event::EndOfDocument;
}

DomNode::Display DocumentReader::displayWithAttributes(DomNode::Display display) const {
    // Of several the last one counts.
    for (unsigned i = parser.attributes.count; i-- > 0;) {
        PullParser::Attribute const& attribute = parser.attributes.data[i];
        if (attribute.name.view() == CLI::XML::Property::s_display.name) {
            return CLI::XML::displayOr(display, attribute.value.view());
        }
    }
    return display;
}

void DocumentReader::checkParent(DomNode::Display child, std::string_view name, std::size_t place) {
    if (!parent().isKnown || CLI::XML::mayHold(parent().display, child)) return;
    error = makeError(
        "Cannot layout '" + std::string(name) + "' within '" + std::string(parent().tag.name) + "'",
        place);
}

}  // namespace galley
