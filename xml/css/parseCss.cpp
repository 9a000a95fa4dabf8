#include "xml/css/parseCss.h"

#include "xml/parser/scan.h"

namespace CLI::XML {

namespace {

using namespace SheetBytes;

/// Reads one style sheet.
class SheetReader {
public:
    explicit SheetReader(String const& css) : text(css) {}

    void skipWhitespace() { skipCharacters(text, position, line, s_whitespace); }
    bool atEnd() const { return position >= text.length(); }

    /// Reads a selector and the white space behind it.
    XCode readSelector(String& selector) {
        if (!readToken(selector, s_endOfSelector)) return expecting("'{'");
        skipWhitespace();
        return XCode();
    }

    /// Reads from "{" through "}" and the white space behind it.
    XCode readDeclarations(ZRStringHashTable<String>& declarations) {
        XCode result = consume('{', "'{'");
        while (result) {
            String property;
            if (!readToken(property, s_endOfProperty)) return consume('}', "'}'");
            result = readValue(property, declarations);
        }
        return result;
    }

private:
    /// Reads what follows a property, through the ";".
    XCode readValue(String const& property, ZRStringHashTable<String>& declarations) {
        skipWhitespace();
        XCode result = consume(':', "':'");
        if (!result) return result;
        String value;
        if (!readToken(value, s_endOfValue)) return expecting("value");
        skipWhitespace();
        result = consume(';', "';'");
        if (result) declarations.set(property, value);
        return result;
    }

    bool readToken(String& token, ByteSet const& stopSet) {
        return parseUntilCharacter(text, position, line, token, stopSet) > 0;
    }

    /// Consumes `c` and the white space behind it.
    XCode consume(char c, char const* expected) {
        if (!parseCharacter(text, position, c)) return expecting(expected);
        skipWhitespace();
        return XCode();
    }

    XCode expecting(char const* what) const {
        return testExpression(false).setStringF("Line %d: Expecting %s", line, what);
    }

    String const& text;
    int position = 0;
    int line = 1;
};

}  // namespace

XCode parseCss(ZRList<ZRLWPtr<StyleNode>>& out, String const& css) {
    out.clear();
    SheetReader reader(css);
    reader.skipWhitespace();
    while (!reader.atEnd()) {
        String selector;
        XCode result = reader.readSelector(selector);
        if (!result) return result;
        ZRLWPtr<StyleNode> const rule = ZR::MovePtr<StyleNode>(new StyleNode(selector));
        result = reader.readDeclarations(rule->declarations);
        if (!result) return result;
        out.add(rule);
    }
    return XCode();
}

}  // namespace CLI::XML
