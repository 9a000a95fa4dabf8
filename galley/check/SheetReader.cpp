#include "galley/check/SheetReader.h"

#include <algorithm>

#include "xml/parser/scan.h"

namespace galley {

using namespace CLI::XML::SheetBytes;

SheetReader::Event SheetReader::next() {
    if (hasFailed) {
        hasFailed = false;
        position = std::min(source.find('}', position), source.length() - 1) + 1;
        skipWhitespace();
    }
    if (isInRule) return readDeclaration();
    return position < source.length() ? readSelector() : Event::EndOfSheet;
}

Finding SheetReader::error() const {
    return {Finding::Kind::Error, std::string("Expecting ") + expected, position, std::nullopt};
}

SheetReader::Event SheetReader::readSelector() {
    if (!readToken(selector, s_endOfSelector, "'{'") || !consume('{', "'{'")) return fail();
    isInRule = true;
    return Event::Selector;
}

SheetReader::Event SheetReader::readDeclaration() {
    if (readToken(property, s_endOfProperty, "'}'")) {
        bool const isWhole =
            consume(':', "':'") && readToken(value, s_endOfValue, "value") && consume(';', "';'");
        return isWhole ? Event::Declaration : fail();
    }
    if (!consume('}', "'}'")) return fail();
    isInRule = false;
    return Event::EndOfRule;
}

bool SheetReader::readToken(std::string_view& token, CLI::XML::ByteSet const& stopSet,
                            char const* what) {
    std::size_t const start = position;
    while (position < source.length() && !stopSet.contains(source[position])) ++position;
    token = source.substr(start, position - start);
    expected = what;
    if (token.empty()) return false;
    skipWhitespace();
    return true;
}

bool SheetReader::consume(char c, char const* what) {
    expected = what;
    if (position >= source.length() || source[position] != c) return false;
    ++position;
    skipWhitespace();
    return true;
}

void SheetReader::skipWhitespace() {
    while (position < source.length() && s_whitespace.contains(source[position])) ++position;
}

SheetReader::Event SheetReader::fail() {
    isInRule = false;
    hasFailed = true;
    return Event::Error;
}

}  // namespace galley
