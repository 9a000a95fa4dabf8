#include "xml/dom/buildDomTree.h"

#include <cctype>
#include <utility>
#include <vector>

#include "xml/dom/DomText.h"
#include "xml/dom/createDomElement.h"
#include "xml/dom/replaceEntities.h"

namespace CLI::XML {

namespace {

bool isSpace(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

/// Cuts running text, up to its first NUL byte, into words and appends a text node for each. A
/// word that white space follows keeps one space of it. References are decoded after cutting, so
/// that a decoded space never splits a word.
void appendWords(String const& content, DomElement& parent) {
    char const* next = content.c_str();
    for (;;) {
        while (isSpace(*next)) ++next;
        if (*next == '\0') return;
        char const* const start = next;
        while (*next != '\0' && !isSpace(*next)) ++next;
        String word(start, 0, static_cast<int>(next - start));
        if (*next != '\0') word += " ";
        parent.children.add(ZR::MovePtr<DomNode>(new DomText(replaceEntities(word))));
    }
}

/// The open elements of one build, innermost last, above the element that the caller gave.
class Builder {
public:
    Builder(DomElement& root, PullParser& source, StyleList const& rules)
        : outermost(root), parser(source), styles(rules) {}

    bool hasOpenElements() const { return !open.empty(); }

    XCode startElement() {
        XCode result = syntax(parser.readStartTag());
        if (!result) return result;
        ZRLWPtr<DomElement> element = createDomElement(parser.name);
        if (!element) {
            return testExpression(false).setStringF("Invalid tag: <%s>", parser.name.c_str());
        }
        ZRStringHashTable<String> attributes;
        for (PullParser::Attribute const& attribute : parser.attributes) {
            attributes.set(attribute.name, attribute.value);
        }
        element->setAttributes(attributes);
        open.push_back(std::move(element));
        return XCode();
    }

    /// Closes the innermost open element and appends it to the one around it.
    XCode endElement() {
        XCode result = syntax(parser.readEndTag());
        if (!result) return result;
        ZRLWPtr<DomElement> const element = std::move(open.back());
        open.pop_back();
        if (!(parser.name == element->name)) {
            return testExpression(false).setStringF("End tag </%s> does not match start tag <%s>",
                                                    parser.name.c_str(), element->name.c_str());
        }
        for (ZRLWPtr<StyleNode> const& rule : styles) {
            if (rule->selector == element->name) element->styleNode = rule;
        }
        innermost().children.add(ZRLWPtr<DomNode>(element));
        return XCode();
    }

    XCode addContent() {
        XCode result = syntax(parser.readContent());
        if (result) appendWords(parser.content, innermost());
        return result;
    }

    /// Passes the code of a parser's operation on, a failure with the parser's message.
    XCode syntax(XCode result) const {
        if (!result) result.setString(parser.errorMessage);
        return result;
    }

private:
    DomElement& innermost() { return open.empty() ? outermost : *open.back(); }

    DomElement& outermost;
    PullParser& parser;
    StyleList const& styles;
    std::vector<ZRLWPtr<DomElement>> open;
};

XCode failOnLine(int line, char const* text) {
    return testExpression(false).setStringF("Line %d: %s", line, text);
}

}  // namespace

XCode buildDomTree(ZRLWPtr<DomElement>& parent, bool isTopLevel, PullParser& parser,
                   ZRList<ZRLWPtr<StyleNode>> const& styles) {
    if (!parent) parent = ZR::MovePtr<DomElement>(new DomElement("html", DomNode::Block));
    Builder builder(*parent, parser, styles);
    for (;;) {
        XCode result;
        switch (parser.getNextTag()) {
            case PullParser::TAG_ERROR:
                return builder.syntax(testExpression(false));
            case PullParser::TAG_END_OF_DOCUMENT:
                if (isTopLevel && !builder.hasOpenElements()) return XCode();
                return failOnLine(parser.line, "Missing end tag at the end");
            case PullParser::TAG_START:
                result = builder.startElement();
                break;
            case PullParser::TAG_OTHER:
                result = builder.syntax(parser.skipOtherTag());
                break;
            case PullParser::TAG_END:
                if (!builder.hasOpenElements()) return XCode();
                result = builder.endElement();
                break;
            case PullParser::TAG_CONTENT:
                result = builder.addContent();
                break;
            case PullParser::TAG_COMMENT:
                result = builder.syntax(parser.skipCommentTag());
                break;
            default:
                return failOnLine(parser.line, "Invalid XML parser tag");
        }
        if (!result) return result;
    }
}

}  // namespace CLI::XML
