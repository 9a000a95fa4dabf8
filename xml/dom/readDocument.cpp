#include "xml/dom/readDocument.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <string_view>
#include <vector>

#include "xml/dom/vocabulary.h"

namespace CLI::XML {

namespace {

/// What a byte is to running text. A NUL byte ends it.
class TextBytes {
public:
    /// `isspace` is asked once for every byte.
    TextBytes() {
        for (unsigned byte = 1; byte < kinds.size(); ++byte) {
            kinds[byte] = std::isspace(static_cast<int>(byte)) != 0 ? Space : Plain;
            hasHighSpace = hasHighSpace || (byte > ' ' && kinds[byte] == Space);
        }
        kinds[static_cast<unsigned char>('&')] = Ampersand;
    }
    bool isSpace(char c) const { return kindOf(c) == Space; }
    bool isPlain(char c) const { return kindOf(c) == Plain; }
    bool isOfWord(char c) const { return kindOf(c) >= Plain; }

    /// Passes over words without references between which there is one space, many bytes at a time.
    /// May end anywhere in a word.
    char* skipPlainWords(char* next, char const* end) const {
        if (hasHighSpace) return next;
        while (end - next > s_blockSize && isPlainBlock(next)) next += s_blockSize;
        return next;
    }

private:
    enum Kind : std::uint8_t { Nul, Space, Plain, Ampersand };

    Kind kindOf(char c) const { return kinds[static_cast<unsigned char>(c)]; }

    static constexpr std::ptrdiff_t s_blockSize = 16;
    /// Numbers that one instruction compares.
    using Block [[gnu::vector_size(s_blockSize)]] = unsigned char;

    /// Whether nothing in a block, and the byte behind it, has to be looked at.
    static bool isPlainBlock(char const* bytes) {
        Block shown;
        Block behind;
        std::memcpy(&shown, bytes, sizeof shown);
        std::memcpy(&behind, bytes + 1, sizeof behind);
        auto const found = (shown < ' ') | (shown == '&') | ((shown == ' ') & (behind <= ' '));
        std::array<std::uint64_t, 2> halves{};
        std::memcpy(halves.data(), &found, sizeof found);
        return (halves[0] | halves[1]) == 0;
    }

    std::array<Kind, 256> kinds{};
    /// White space is not only among the bytes up to ' '.
    bool hasHighSpace = false;
};

/// The open elements of one reading, innermost last.
class Reader {
public:
    Reader(DocumentHandler& taker, PullParser& source, StyleList const& rules)
        : handler(taker), parser(source) {
        for (ZRLWPtr<StyleNode> const& rule : rules) lastRules[rule->selector.view()] = &rule;
    }

    bool hasOpenElements() const { return !open.empty(); }

    XCode startElement() {
        XCode result = syntax(parser.readStartTag());
        if (!result) return result;
        bool const isPlain = parser.attributes.count == 0 && handler.mayShareElements();
        ZRLWPtr<DomElement> const element = isPlain ? plainElement() : makeElement();
        if (!element) {
            return testExpression(false).setStringF("Invalid tag: <%s>", parser.name.c_str());
        }
        open.push_back(element);
        handler.startElement(element);
        return XCode();
    }

    /// Closes the innermost open element.
    XCode endElement() {
        XCode result = syntax(parser.readEndTag());
        if (!result) return result;
        String const& name = open.back()->name;
        if (!(parser.name == name)) {
            return testExpression(false).setStringF("End tag </%s> does not match start tag <%s>",
                                                    parser.name.c_str(), name.c_str());
        }
        open.pop_back();
        handler.endElement();
        return XCode();
    }

    XCode addContent() {
        XCode result = syntax(parser.readContent());
        if (result) addWords(parser.content);
        return result;
    }

    /// Passes the code of a parser's operation on, a failure with the parser's message.
    XCode syntax(XCode result) const {
        if (!result) result.setString(parser.errorMessage);
        return result;
    }

private:
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
        auto const isNamed = [this](ZRLWPtr<DomElement> const& element) {
            return element->name == parser.name;
        };
        auto const found = std::find_if(plainElements.begin(), plainElements.end(), isNamed);
        if (found != plainElements.end()) return *found;
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
    /// keeps one space of it, which takes its place. References are decoded after cutting, so that
    /// a decoded space never splits a word. Words that stand as they are passed on together.
    void addWords(String& content) {
        char const* const end = content.c_str() + content.length();
        char* first = skipSpace(content.data());
        char* next = first;
        while (*next != '\0') {
            next = bytes.skipPlainWords(next, end);
            while (bytes.isPlain(*next)) ++next;
            if (bytes.isSpace(*next)) {
                *next++ = ' ';
                if (*next == '\0' || !bytes.isSpace(*next)) continue;
                passOn(first, next);
            } else if (*next == '&') {
                char* word = next;
                while (word > first && word[-1] != ' ') --word;
                passOn(first, word);
                next = addDecoded(word);
            } else {
                break;
            }
            first = next = skipSpace(next);
        }
        passOn(first, next);
    }

    char* skipSpace(char* next) const {
        while (bytes.isSpace(*next)) ++next;
        return next;
    }

    void passOn(char const* first, char const* end) {
        if (first != end) handler.addText({first, static_cast<std::size_t>(end - first)}, false);
    }

    /// Passes on the word at `start`, which holds an ampersand. Returns where it ends.
    char* addDecoded(char* start) {
        char* end = start;
        while (bytes.isOfWord(*end)) ++end;
        String word(start, 0, static_cast<int>(end - start));
        if (*end != '\0') word += " ";
        handler.addText(replaceEntities(word).view(), true);
        return end;
    }

    DocumentHandler& handler;
    PullParser& parser;
    /// By selector.
    std::map<std::string_view, ZRLWPtr<StyleNode> const*> lastRules;
    /// At most one for each name that the language knows.
    std::vector<ZRLWPtr<DomElement>> plainElements;
    TextBytes bytes;
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
