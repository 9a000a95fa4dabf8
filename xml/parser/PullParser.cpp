#include "xml/parser/PullParser.h"

#include <cstring>
#include <string_view>
#include <utility>

#include "xml/parser/scan.h"

namespace CLI::XML {

namespace {

constexpr ByteSet s_whitespace(" \t\n\r");
constexpr ByteSet s_quotation("\"");
constexpr char const* s_cdataStart = "<![CDATA[";
constexpr char const* s_cdataEnd = "]]>";
constexpr char const* s_commentStart = "<!--";
constexpr char const* s_commentEnd = "-->";

constexpr char const* s_expectingTagStart = "Expecting tag start character '<'";
constexpr char const* s_expectingType = "Expecting element type";
constexpr char const* s_expectingTagEnd = "Expecting end tag character '>'";
constexpr char const* s_expectingQuotation = "Expecting quotation character '\"'";
constexpr char const* s_expectingContent = "Expecting content";

}  // namespace

EntityReplacement const PullParser::s_specialReplacement[] = {
    {"quot", "\""}, {"apos", "'"}, {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {nullptr, nullptr},
};

PullParser::TagType PullParser::getNextTag() const {
    if (selfClosing) return TAG_END;
    if (position >= text.length()) return TAG_END_OF_DOCUMENT;
    if (text[position] != '<') return TAG_CONTENT;
    char const next = text[position + 1];
    if (next == '/') return TAG_END;
    if (next == '?') return TAG_OTHER;
    if (next != '!') return TAG_START;
    if (peekString(text, position, s_commentStart)) return TAG_COMMENT;
    return peekString(text, position, s_cdataStart) ? TAG_CONTENT : TAG_OTHER;
}

XCode PullParser::readStartTag() {
    if (selfClosing) return testExpression(false);
    name.clear();
    attributes.clear();
    if (!parseCharacter(text, position, '<')) return fail(s_expectingTagStart);
    if (!readName()) return fail(s_expectingType);
    for (;;) {
        skipCharacters(text, position, line, s_whitespace);
        std::string_view const attributeName = takeUntil(text, position, line, s_endOfName);
        if (attributeName.empty()) break;
        Attribute attribute;
        attribute.name.assign(attributeName);
        XCode result = readAttribute(attribute);
        if (!result) return result;
        attributes.add(std::move(attribute));
    }
    if (parseCharacter(text, position, '/')) selfClosing = true;
    if (!parseCharacter(text, position, '>')) return fail(s_expectingTagEnd);
    return XCode();
}

XCode PullParser::readAttribute(Attribute& attribute) {
    if (!parseCharacter(text, position, '=')) return fail("Expecting assignment character '='");
    if (!parseCharacter(text, position, '"')) return fail(s_expectingQuotation);
    parseUntilCharacter(text, position, line, attribute.value, s_quotation);
    PARSE_AND_REPLACE_SPECIAL_XML_CHARS(attribute.value);
    if (!parseCharacter(text, position, '"')) return fail(s_expectingQuotation);
    return XCode();
}

bool PullParser::readName() {
    name.assign(takeUntil(text, position, line, s_endOfName));
    return name.length() > 0;
}

XCode PullParser::readEndTag() {
    attributes.clear();
    if (selfClosing) {
        selfClosing = false;
        return XCode();
    }
    name.clear();
    if (!parseCharacter(text, position, '<')) return fail(s_expectingTagStart);
    if (!parseCharacter(text, position, '/')) return fail("Expecting end mark character '/'");
    if (!readName()) return fail(s_expectingType);
    skipCharacters(text, position, line, s_whitespace);
    if (!parseCharacter(text, position, '>')) return fail(s_expectingTagEnd);
    return XCode();
}

XCode PullParser::readContent() {
    if (selfClosing) return testExpression(false);
    content.clear();
    if (!parseString(text, position, s_cdataStart)) {
        content.assign(takeUntil(text, position, line, s_endOfText));
        if (content.length() == 0) return fail(s_expectingContent);
        return XCode();
    }
    int const start = position;
    auto const end = text.view().find(s_cdataEnd, static_cast<std::size_t>(start));
    skipTo(end == std::string_view::npos ? -1 : static_cast<int>(end));
    content.assign({text.c_str() + start, static_cast<std::size_t>(position - start)});
    if (position == start) return fail(s_expectingContent);
    if (!parseString(text, position, s_cdataEnd)) return fail("Expecting end of CDATA ']]>'");
    return XCode();
}

XCode PullParser::skipCommentTag() {
    if (!parseString(text, position, s_commentStart)) {
        return fail("Expecting tag comment characters '<!--'");
    }
    char const* const end = std::strstr(text.c_str() + position, s_commentEnd);
    skipTo(end == nullptr ? -1 : static_cast<int>(end - text.c_str()));
    if (!parseString(text, position, s_commentEnd)) {
        return fail("Expecting end tag comment characters '-->'");
    }
    return XCode();
}

XCode PullParser::skipOtherTag() {
    if (!parseCharacter(text, position, '<')) return fail(s_expectingTagStart);
    if (!parseCharacter(text, position, '?') && !parseCharacter(text, position, '!')) {
        return fail("Expecting '?' or '!'");
    }
    skipTo(text.indexOf('>', position));
    if (!parseCharacter(text, position, '>')) return fail(s_expectingTagEnd);
    return XCode();
}

void PullParser::PARSE_AND_REPLACE_SPECIAL_XML_CHARS(String& text) {
    text = decodeReferences(text, s_specialReplacement);
}

void PullParser::error(char const* message) { errorMessage.format("%d: %s", line, message); }

XCode PullParser::fail(char const* message) {
    error(message);
    return testExpression(false);
}

void PullParser::skipTo(int end) { advanceTo(end < 0 ? text.length() : end, text, position, line); }

}  // namespace CLI::XML
