#include "web/markup/Scanner.h"

#include <utility>

#include "web/text/utf8.h"
#include "web/wording.h"

namespace galley::web {

namespace {

constexpr std::string_view s_commentStart = "<!--";
constexpr std::string_view s_commentEnd = "-->";
constexpr std::string_view s_sectionStart = "<![CDATA[";
constexpr std::string_view s_sectionEnd = "]]>";
constexpr std::string_view s_documentType = "<!DOCTYPE";
/// As HTML has it, too.
constexpr std::string_view s_lowerDocumentType = "<!doctype";

}  // namespace

Scanner::Scanner(std::string_view markup, std::vector<Problem>& found)
    : cursor(markup), problems(found), tags(cursor, found) {
    cursor.take(s_byteOrderMark);
}

bool Scanner::next(Piece& piece) {
    while (!cursor.atEnd()) {
        piece.offset = cursor.position();
        if (cursor.peek() != '<') {
            piece.kind = Piece::Kind::text;
            Cursor::Text const text = cursor.takeText();
            piece.text = text.bytes;
            piece.isAscii = text.isAscii;
            piece.hasReferences = text.hasAmpersand;
            return true;
        }
        char const second = cursor.peek(1);
        if (second == '/') return tags.readEndTag(piece);
        if (second != '!' && second != '?') return tags.readStartTag(piece);
        if (cursor.startsWith(s_sectionStart)) return readSection(piece);
        if (!skipDeclaration()) return false;
    }
    piece.kind = Piece::Kind::endOfDocument;
    piece.offset = cursor.position();
    return true;
}

bool Scanner::readSection(Piece& piece) {
    if (!skipThrough(s_sectionStart, s_sectionEnd)) return false;
    piece.kind = Piece::Kind::literalText;
    piece.isAscii = piece.hasReferences = false;
    std::size_t const start = piece.offset + s_sectionStart.size();
    piece.text = cursor.between(start, cursor.position() - s_sectionEnd.size());
    piece.offset = start;
    return true;
}

bool Scanner::skipDeclaration() {
    if (cursor.startsWith(s_commentStart)) return skipThrough(s_commentStart, s_commentEnd);
    if (cursor.startsWith("<?")) return skipThrough("<?", "?>");
    bool const isDocumentType =
        cursor.startsWith(s_documentType) || cursor.startsWith(s_lowerDocumentType);
    if (isDocumentType) return skipDocumentType();
    return fail(problems, cursor.position(), "Expecting '--', '[CDATA[' or 'DOCTYPE' behind '<!'");
}

/// It may declare things between brackets, each of them between "<" and ">".
bool Scanner::skipDocumentType() {
    std::size_t const start = cursor.position();
    bool isInBrackets = false;
    cursor.take("<!");
    while (cursor.skipUntilAnyOf("\"'[]<>")) {
        if (cursor.startsWith(s_commentStart)) {
            if (!skipThrough(s_commentStart, s_commentEnd)) return false;
            continue;
        }
        char const c = cursor.peek();
        cursor.take(c);
        if (c == '>' && !isInBrackets) return true;
        if (c == '[' || c == ']') isInBrackets = c == '[';
        bool const isQuote = c == '"' || c == '\'';
        if (isQuote && !cursor.skipThrough({&c, 1})) break;
    }
    return fail(problems, start, "Missing '>' behind " + quoted(s_documentType));
}

bool Scanner::skipThrough(std::string_view start, std::string_view end) {
    std::size_t const begin = cursor.position();
    cursor.take(start);
    if (cursor.skipThrough(end)) return true;
    return fail(problems, begin, "Missing " + quoted(end) + " behind " + quoted(start));
}

}  // namespace galley::web
