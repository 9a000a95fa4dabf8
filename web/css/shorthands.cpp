#include "web/css/shorthands.h"

#include <vector>

#include "web/css/colours.h"
#include "web/css/keywords.h"
#include "web/css/lengths.h"
#include "web/css/valueWords.h"
#include "web/css/values.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;

/// Reads a value that may be missing or hold no more than once what `read` reads.
template <class T>
bool readOnce(ValueReader& reader, bool (*read)(ValueReader&, T&), bool& isRead, T& value) {
    ValueReader attempt = reader;
    T found = value;
    if (isRead || !read(attempt, found)) return false;
    reader = attempt;
    value = found;
    isRead = true;
    return true;
}

/// Reads one to four values in the order of CSS: top, right, bottom, left. One that stands for
/// several sides is read for each, as cells are not as high as they are wide.
template <class T>
bool readEdges(ValueReader& reader, bool (*readAcross)(ValueReader&, T&),
               bool (*readDown)(ValueReader&, T&), Edges<T>& edges) {
    std::vector<ValueReader> sides;
    while (!reader.atEnd() && sides.size() < 4) {
        sides.push_back(reader);
        if (!readDown(reader, edges.top)) return false;
    }
    if (sides.empty()) return false;
    ValueReader top = sides[0];
    ValueReader right = sides.size() > 1 ? sides[1] : top;
    ValueReader bottom = sides.size() > 2 ? sides[2] : top;
    ValueReader left = sides.size() > 3 ? sides[3] : right;
    return readDown(top, edges.top) && readAcross(right, edges.right) &&
           readDown(bottom, edges.bottom) && readAcross(left, edges.left);
}

/// Reads one part of each side of a border.
template <class T>
bool readParts(ValueReader& reader, bool (*read)(ValueReader&, T&), T Border::*part,
               Edges<Border>& border) {
    Edges<T> parts;
    if (!readEdges(reader, read, read, parts)) return false;
    border.left.*part = parts.left;
    border.right.*part = parts.right;
    border.top.*part = parts.top;
    border.bottom.*part = parts.bottom;
    return true;
}

constexpr Keyword<bool> s_backgroundWords[] = {
    {"none", true},        {"repeat", true}, {"repeat-x", true},   {"repeat-y", true},
    {"no-repeat", true},   {"space", true},  {"round", true},      {"scroll", true},
    {"fixed", true},       {"local", true},  {"left", true},       {"right", true},
    {"top", true},         {"bottom", true}, {"center", true},     {"cover", true},
    {"contain", true},     {"auto", true},   {"border-box", true}, {"padding-box", true},
    {"content-box", true},
};

/// Whether an image begins: by any function but that for variables.
bool isImage(Token const& token) {
    return token.kind == Kind::url ||
           (token.kind == Kind::function && !isSameWord(token.text, "var"));
}

/// What says where an image is and how it is repeated, or the image.
bool skipImage(ValueReader& reader) {
    bool isPart = false;
    if (readKeyword<s_backgroundWords>(reader, isPart)) return true;
    Token const& token = reader.peek();
    if (isImage(token)) {
        reader.ignore();
        return true;
    }
    bool const isLength =
        token.kind == Kind::percentage || toPixels(token, Axis::across).has_value();
    if (!isLength && token.kind != Kind::comma && !token.isDelimiter('/')) return false;
    reader.take();
    return true;
}

constexpr std::string_view s_decorationStyles[] = {"solid", "double", "dotted",   "dashed",
                                                   "wavy",  "auto",   "from-font"};

/// Colour, style or thickness of a line along the text.
bool readDecorationLook(ValueReader& reader) {
    ValueReader attempt = reader;
    Colour colour;
    if (readColour(attempt, colour)) {
        reader.warnAbout(reader.peek());
        reader = attempt;
        return true;
    }
    bool isLook = toPixels(reader.peek(), Axis::down).has_value();
    for (std::string_view const word : s_decorationStyles) {
        isLook |= attempt.takeWord(word);
    }
    if (isLook) reader.ignore();
    return isLook;
}

}  // namespace

bool readMargins(ValueReader& reader, Edges<Length>& margin) {
    return readEdges(reader, readMargin<Axis::across>, readMargin<Axis::down>, margin);
}

bool readPaddings(ValueReader& reader, Edges<Length>& padding) {
    return readEdges(reader, readPadding<Axis::across>, readPadding<Axis::down>, padding);
}

bool readBorderStyle(ValueReader& reader, Edges<Border>& border) {
    return readParts(reader, readLine, &Border::line, border);
}

bool readBorderWidth(ValueReader& reader, Edges<Border>& border) {
    return readParts(reader, readThickness, &Border::thickness, border);
}

bool readBorderColour(ValueReader& reader, Edges<Border>& border) {
    return readParts(reader, readColour, &Border::colour, border);
}

bool readBorder(ValueReader& reader, Border& border) {
    border = {};
    bool hasLine = false;
    bool hasThickness = false;
    bool hasColour = false;
    ValueReader const start = reader;
    while (!reader.atEnd()) {
        if (!readOnce(reader, readLine, hasLine, border.line) &&
            !readOnce(reader, readThickness, hasThickness, border.thickness) &&
            !readOnce(reader, readColour, hasColour, border.colour)) {
            return false;
        }
    }
    bool const isMeant = hasThickness ? border.thickness != Thickness::none : hasColour;
    if (isMeant && !hasLine) start.warnOfNoStyle();
    return true;
}

bool readBorders(ValueReader& reader, Edges<Border>& border) {
    Border side;
    if (!readBorder(reader, side)) return false;
    border = {side, side, side, side};
    return true;
}

bool readBorderRadius(ValueReader& reader, bool& isRounded) {
    isRounded = false;
    std::size_t count = 0;
    for (bool corner = false; !reader.atEnd(); ++count) {
        // What is behind a slash are the radii down.
        if (count > 0) reader.takeDelimiter('/');
        if (!readRadius(reader, corner)) return false;
        isRounded |= corner;
    }
    return count <= 8;
}

bool readBackground(ValueReader& reader, Colour& colour) {
    colour = {Colour::Kind::transparent};
    bool hasColour = false;
    while (!reader.atEnd()) {
        if (!readOnce(reader, readColour, hasColour, colour) && !skipImage(reader)) return false;
    }
    return true;
}

bool readTextDecoration(ValueReader& reader, Decoration& decoration) {
    decoration = {};
    bool hasLine = false;
    while (!reader.atEnd()) {
        if (!readOnce(reader, readDecorationLine, hasLine, decoration) &&
            !readDecorationLook(reader)) {
            return false;
        }
    }
    return true;
}

bool readListStyle(ValueReader& reader, Style& style) {
    style.marker = {};
    style.markerPosition = {};
    bool hasMarker = false;
    bool hasPosition = false;
    bool hasImage = false;
    while (!reader.atEnd()) {
        if (readOnce(reader, readMarker, hasMarker, style.marker) ||
            readOnce(reader, readKeyword<s_markerPositions, MarkerPosition>, hasPosition,
                     style.markerPosition)) {
            continue;
        }
        bool const hasUrl = !reader.atEnd() && isImage(reader.peek());
        if (hasImage || (!hasUrl && !reader.takeWord("none"))) return false;
        if (hasUrl) reader.ignore();
        hasImage = true;
    }
    return true;
}

}  // namespace galley::web
