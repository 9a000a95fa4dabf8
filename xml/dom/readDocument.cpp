#include "xml/dom/readDocument.h"

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

#include "xml/dom/TextBytes.h"
#include "xml/dom/vocabulary.h"
#include "xml/parser/scan.h"

namespace CLI::XML {

namespace {

/// The open elements of one reading, innermost last.
class Reader {
public:
    Reader(DocumentHandler& taker, PullParser& source, StyleList const& rules)
        : handler(taker), parser(source), keepsNothing(handler.keepsNothing()) {
        for (ZRLWPtr<StyleNode> const& rule : rules) lastRules[rule->selector.view()] = &rule;
    }

    bool hasOpenElements() const { return !open.empty(); }

    XCode startElement() {
        for (ZRLWPtr<DomElement> const& element : plainElements) {
            if (takeTag("<", *element)) return beginElement(element);
        }
        XCode result = syntax(parser.readStartTag());
        if (!result) return result;
        bool const isPlain = parser.attributes.count == 0 && keepsNothing;
        ZRLWPtr<DomElement> const element = isPlain ? plainElement() : makeElement();
        if (!element) {
            return testExpression(false).setStringF("Invalid tag: <%s>", parser.name.c_str());
        }
        return beginElement(element);
    }

    /// Closes the innermost open element.
    XCode endElement() {
        String const& name = open.back()->name;
        if (!takeTag("</", *open.back())) {
            XCode result = syntax(parser.readEndTag());
            if (!result) return result;
            if (!(parser.name == name)) {
                return testExpression(false).setStringF(
                    "End tag </%s> does not match start tag <%s>", parser.name.c_str(),
                    name.c_str());
            }
        }
        open.pop_back();
        handler.endElement();
        return XCode();
    }

    XCode addContent() {
        if (keepsNothing && parser.text[parser.position] != '<') {
            std::string_view const content =
                takeUntil(parser.text, parser.position, parser.line, s_endOfText);
            if (!content.empty()) {
                addWords(content);
                return XCode();
            }
        }
        XCode result = syntax(parser.readContent());
        if (result) addWords(parser.content.view());
        return result;
    }

    /// Passes the code of a parser's operation on, a failure with the parser's message.
    XCode syntax(XCode result) const {
        if (!result) result.setString(parser.errorMessage);
        return result;
    }

private:
    /// Passes over the next tag, whose beginning is known, if it is as most are: with the name of
    /// an element and nothing else.
    bool takeTag(std::string_view beginning, DomElement const& element) const {
        std::string_view const name = element.name.view();
        std::size_t const length = beginning.length() + name.length();
        std::string_view const rest =
            parser.text.view().substr(static_cast<std::size_t>(parser.position));
        if (!keepsNothing || parser.selfClosing || rest.length() <= length || rest[length] != '>' ||
            rest.substr(beginning.length(), name.length()) != name) {
            return false;
        }
        parser.position += static_cast<int>(length) + 1;
        return true;
    }

    XCode beginElement(ZRLWPtr<DomElement> const& element) {
        open.push_back(element);
        handler.startElement(element);
        return XCode();
    }

    /// An element for the start tag that was read; null where there is none of its name.
    ZRLWPtr<DomElement> makeElement() const {
        ZRLWPtr<DomElement> element = createDomElement(parser.name);
        if (!element) return {};
        if (parser.attributes.count > 0) setAttributes(*element);
        auto const rule = lastRules.find(element->name.view());
        if (rule != lastRules.end()) element->styleNode = *rule->second;
        return element;
    }

    /// The same, one for all start tags of a name.
    ZRLWPtr<DomElement> plainElement() {
        for (ZRLWPtr<DomElement> const& element : plainElements) {
            if (element->name == parser.name) return element;
        }
        ZRLWPtr<DomElement> element = makeElement();
        if (element) plainElements.push_back(element);
        return element;
    }

    void setAttributes(DomElement& element) const {
        ZRStringHashTable<String> attributes;
        for (PullParser::Attribute const& attribute : parser.attributes) {
            attributes.set(attribute.name, attribute.value);
        }
        element.setAttributes(attributes);
    }

    /// Cuts running text, up to its first NUL byte, into words. A word that white space follows
    /// keeps one space of it, which takes its place. Words that stand as they are passed on
    /// together.
    void addWords(std::string_view content) {
        char const* const end = content.data() + content.length();
        char const* first = skipSpace(content.data(), end);
        char const* next = first;
        while (next < end) {
            next = bytes.skipPlainWords(next, end);
            while (next < end && bytes.isPlain(*next)) ++next;
            if (next == end || *next == '\0') break;
            if (*next == ' ' && (next + 1 == end || !bytes.isSpace(next[1]))) {
                ++next;
                continue;
            }
            while (next > first && next[-1] != ' ') --next;
            passOn(first, next);
            first = next = addChanged(next, end);
        }
        passOn(first, next);
    }

    char const* skipSpace(char const* next, char const* end) const {
        while (next < end && bytes.isSpace(*next)) ++next;
        return next;
    }

    void passOn(char const* first, char const* end) {
        if (first != end) handler.addText({first, static_cast<std::size_t>(end - first)}, false);
    }

    /// Passes on the word at `start`, in which a reference is to be decoded, or of which the white
    /// space is not one space. Returns where the next one begins. References are decoded after
    /// cutting, so that a decoded space never splits a word.
    char const* addChanged(char const* start, char const* end) {
        char const* next = start;
        while (next < end && bytes.isOfWord(*next)) ++next;
        changed.assign({start, static_cast<std::size_t>(next - start)});
        bool const hasReference = changed.indexOf('&') >= 0;
        char const* const behind = skipSpace(next, end);
        if (behind > next) changed += " ";
        handler.addText(hasReference ? replaceEntities(changed).view() : changed.view(),
                        hasReference);
        return behind;
    }

    DocumentHandler& handler;
    PullParser& parser;
    bool keepsNothing;
    /// By selector.
    std::map<std::string_view, ZRLWPtr<StyleNode> const*> lastRules;
    /// At most one for each name that the language knows.
    std::vector<ZRLWPtr<DomElement>> plainElements;
    TextBytes bytes;
    /// A word, kept for its memory.
    String changed;
    std::vector<ZRLWPtr<DomElement>> open;
};

XCode failOnLine(int line, char const* text) {
    return testExpression(false).setStringF("Line %d: %s", line, text);
}

}  // namespace

XCode readDocument(DocumentHandler& handler, bool isTopLevel, PullParser& parser,
                   StyleList const& styles) {
    Reader reader(handler, parser, styles);
    for (;;) {
        XCode result;
        switch (parser.getNextTag()) {
            case PullParser::TAG_ERROR:
                return reader.syntax(testExpression(false));
            case PullParser::TAG_END_OF_DOCUMENT:
                if (isTopLevel && !reader.hasOpenElements()) return XCode();
                return failOnLine(parser.line, "Missing end tag at the end");
            case PullParser::TAG_START:
                result = reader.startElement();
                break;
            case PullParser::TAG_OTHER:
                result = reader.syntax(parser.skipOtherTag());
                break;
            case PullParser::TAG_END:
                if (!reader.hasOpenElements()) return XCode();
                result = reader.endElement();
                break;
            case PullParser::TAG_CONTENT:
                result = reader.addContent();
                break;
            case PullParser::TAG_COMMENT:
                result = reader.syntax(parser.skipCommentTag());
                break;
            default:
                return failOnLine(parser.line, "Invalid XML parser tag");
        }
        if (!result) return result;
    }
}

ZRLWPtr<DomElement> createRootElement() {
    return ZR::MovePtr<DomElement>(new DomElement("html", DomNode::Block));
}

}  // namespace CLI::XML
