#include "web/markup/TagReader.h"

#include <algorithm>
#include <utility>

#include "web/wording.h"

namespace galley::web {

bool TagReader::readStartTag(Piece& piece) {
    piece.kind = Piece::Kind::startTag;
    cursor.take('<');
    piece.name = cursor.takeName();
    if (piece.name.empty()) {
        return fail(problems, piece.offset,
                    "Expecting element name behind '<'; write '&lt;' for the character itself");
    }
    piece.attributes.clear();
    for (;;) {
        bool const isApart = cursor.skipWhitespace();
        piece.isClosed = cursor.take("/>");
        if (piece.isClosed || cursor.take('>')) return areDistinct(piece.attributes);
        if (!readAttribute(piece, isApart)) return false;
    }
}

bool TagReader::readAttribute(Piece& piece, bool isApart) {
    Attribute attribute;
    attribute.nameOffset = cursor.position();
    attribute.name = cursor.takeName();
    if (attribute.name.empty()) {
        return failInTag(piece, cursor.position(), "Expecting attribute or end of tag");
    }
    if (!isApart) {
        return fail(problems, attribute.nameOffset,
                    "Expecting white space before " + quoted(attribute.name));
    }
    cursor.skipWhitespace();
    if (!cursor.take('=')) {
        return failInTag(piece, attribute.nameOffset,
                         "Expecting '=' and a value behind " + quoted(attribute.name));
    }
    cursor.skipWhitespace();
    if (!readValue(piece, attribute)) return false;
    piece.attributes.push_back(attribute);
    return true;
}

bool TagReader::readValue(Piece const& piece, Attribute& attribute) {
    std::size_t const start = cursor.position();
    bool const isQuoted = cursor.startsWith("\"") || cursor.startsWith("'");
    if (!isQuoted) {
        return failInTag(piece, start,
                         "Expecting quotation marks around the value of " + quoted(attribute.name));
    }
    char const mark = cursor.peek();
    cursor.take(mark);
    attribute.valueOffset = cursor.position();
    attribute.value = cursor.takeUntil(mark);
    std::size_t const tag = attribute.value.find('<');
    if (tag != std::string_view::npos) {
        return fail(problems, attribute.valueOffset + tag,
                    "Expecting quotation mark before '<'; write '&lt;' for the character itself");
    }
    if (cursor.take(mark)) return true;
    return fail(problems, start,
                "Missing quotation mark behind the value of " + quoted(attribute.name));
}

bool TagReader::areDistinct(std::vector<Attribute> const& attributes) {
    if (attributes.size() < 2) return true;
    names.clear();
    for (Attribute const& attribute : attributes) names.push_back(attribute.name);
    std::sort(names.begin(), names.end());
    auto const repeated = std::adjacent_find(names.begin(), names.end());
    if (repeated == names.end()) return true;

    auto const isRepeated = [name = *repeated](Attribute const& attribute) {
        return attribute.name == name;
    };
    auto const first = std::find_if(attributes.begin(), attributes.end(), isRepeated);
    auto const second = std::find_if(first + 1, attributes.end(), isRepeated);
    fail(problems, second->nameOffset, "Attribute " + quoted(*repeated) + " is given twice");
    problems.push_back({Problem::Kind::note, first->nameOffset, "It is first given here"});
    return false;
}

bool TagReader::readEndTag(Piece& piece) {
    piece.kind = Piece::Kind::endTag;
    cursor.take("</");
    piece.name = cursor.takeName();
    if (piece.name.empty())
        return fail(problems, piece.offset, "Expecting element name behind '</'");
    cursor.skipWhitespace();
    if (cursor.take('>')) return true;
    return failInTag(piece, cursor.position(), "Expecting '>' in end tag of " + quoted(piece.name));
}

bool TagReader::failInTag(Piece const& piece, std::size_t offset, std::string message) {
    if (!cursor.atEnd()) return fail(problems, offset, std::move(message));
    bool const isEndTag = piece.kind == Piece::Kind::endTag;
    std::string const start = (isEndTag ? "</" : "<") + shortened(piece.name);
    return fail(problems, piece.offset, "Missing '>' behind " + quoted(start));
}

}  // namespace galley::web
