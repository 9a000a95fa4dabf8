#include "web/css/values.h"

#include <cmath>

#include "web/css/valueWords.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;

}  // namespace

bool readFontWeight(ValueReader& reader, FontWeight& weight) {
    if (readKeyword<s_fontWeights>(reader, weight)) return true;
    if (!reader.isNext(Kind::number)) return false;
    double const number = reader.take().number;
    if (!(number >= 1 && number <= 1000)) return false;
    weight = {static_cast<std::uint16_t>(std::lround(number))};
    return true;
}

bool readDecorationLine(ValueReader& reader, Decoration& decoration) {
    decoration = {};
    if (reader.takeWord("none")) return true;
    bool hasLine = false;
    for (Decoration line; readKeyword<s_decorationLines>(reader, line); hasLine = true) {
        decoration.isUnderlined |= line.isUnderlined;
        decoration.isStruckThrough |= line.isStruckThrough;
    }
    return hasLine;
}

bool readMarker(ValueReader& reader, Marker& marker) {
    marker = {};
    if (!reader.isNext(Kind::string)) return readKeyword<s_markerKinds>(reader, marker.kind);
    marker = {MarkerKind::text, printable(reader.take().text)};
    return true;
}

bool readLine(ValueReader& reader, Line& line) {
    line = {};
    if (!reader.isNext(Kind::string)) return readKeyword<s_lineKinds>(reader, line.kind);
    line.text = printable(reader.take().text);
    line.kind = line.text.empty() ? LineKind::none : LineKind::text;
    return true;
}

}  // namespace galley::web
