#include "web/text/SegmentReader.h"

#include <utf8proc.h>

#include <algorithm>

#include "web/text/asciiBreaks.h"
#include "web/text/scanWord.h"
#include "web/text/utf8.h"

namespace galley::web {

namespace {

using Behind = Segment::Behind;
using WhiteSpace = TextOptions::WhiteSpace;
using WordBreak = TextOptions::WordBreak;

constexpr std::string_view s_whiteSpace = " \t\n\r";
constexpr std::string_view s_zeroWidthSpace = "\u200B";
constexpr char32_t s_softHyphen = 0xAD;

bool isLineFeed(char byte) { return byte == '\n' || byte == '\r'; }

bool isWhiteSpace(char byte) { return s_whiteSpace.find(byte) != std::string_view::npos; }

bool isLetterOrNumber(char32_t c) {
    utf8proc_category_t const category = utf8proc_category(static_cast<std::int32_t>(c));
    return (category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO) ||
           (category >= UTF8PROC_CATEGORY_ND && category <= UTF8PROC_CATEGORY_NO);
}

std::size_t behindRun(std::string_view text, std::string_view characters, std::size_t from) {
    return std::min(text.find_first_not_of(characters, from), text.size());
}

/// Behind one line feed.
std::size_t behindLineFeed(std::string_view text, std::size_t from) {
    return from + (text.substr(from).starts_with("\r\n") ? 2 : 1);
}

}  // namespace

bool SegmentReader::next(Segment& segment) {
    if (at == text.size()) return false;
    segment = {.begin = at};
    if (options.wordBreak == WordBreak::breakAll || !readAscii(segment)) readClusters(segment);
    at = segment.next;
    return true;
}

/// Fails at what is neither white space nor printable ASCII.
bool SegmentReader::readAscii(Segment& segment) const {
    std::size_t i = scanPlain(text, segment.begin);
    while (i < text.size() && isPrintableAscii(text[i])) {
        // Around this character a line may break.
        std::size_t found = 0;
        if (i > segment.begin && breaksInAscii(text, i, false)) {
            found = i;
        } else if (i + 1 < text.size() && isPrintableAscii(text[i + 1]) &&
                   breaksInAscii(text, i + 1, false)) {
            found = i + 1;
        }
        if (found > 0) {
            segment.end = segment.next = found;
            segment.width = found - segment.begin;
            segment.behind = Behind::opportunity;
            return true;
        }
        i = scanPlain(text, i + 1);
    }
    if (i < text.size() && !isWhiteSpace(text[i])) return false;
    segment.end = i;
    segment.width = i - segment.begin;
    readBehind(segment);
    return true;
}

void SegmentReader::readClusters(Segment& segment) {
    if (wordEnd < segment.begin || wordEnd == 0) {
        wordEnd = std::min(text.find_first_of(s_whiteSpace, segment.begin), text.size());
    }
    std::string_view const word = text.substr(0, wordEnd);
    LineBreaks breaks = breaksBehind(segment.begin);
    segment.isPlain = false;
    Cluster before;
    for (std::size_t i = segment.begin; i < wordEnd; i = before.end) {
        Cluster const cluster = clusterAt(word, i, options.isAmbiguousWide);
        if (i > segment.begin && mayBreakBetween(before, cluster, breaks)) {
            bool const isHyphen = before.first == s_softHyphen;
            segment.behind = isHyphen ? Behind::softHyphen : Behind::opportunity;
            segment.end = isHyphen ? before.begin : i;
            segment.next = i;
            return;
        }
        segment.width += cluster.width;
        take(breaks, cluster);
        before = cluster;
    }
    segment.end = wordEnd;
    readBehind(segment);
}

bool SegmentReader::mayBreakBetween(Cluster const& before, Cluster const& behind,
                                    LineBreaks const& breaks) const {
    std::size_t const place = behind.begin;
    bool const isBehindAscii = isPrintableAscii(text[place - 1]);
    if (isBehindAscii && isPrintableAscii(text[place])) {
        return breaksInAscii(text, place, options.wordBreak == WordBreak::breakAll);
    }
    if (text[place - 1] == '-' && hyphensBeginWord(text, place)) return false;
    if (options.wordBreak == WordBreak::keepAll && isLetterOrNumber(before.first) &&
        isLetterOrNumber(behind.first)) {
        return false;
    }
    std::string_view const rest = text.substr(place + decodeAt(text, place).length);
    return breaks.mayBreakBefore(tailored(behind.properties), rest);
}

LineBreaks SegmentReader::breaksBehind(std::size_t place) const {
    bool const isStart = place == 0 || isWhiteSpace(text[place - 1]);
    if (isStart) return LineBreaks({.lineClass = LineClass::SP});
    return LineBreaks(tailored(propertiesOf(decodeAt(text, startBefore(text, place)).value)));
}

void SegmentReader::take(LineBreaks& breaks, Cluster const& cluster) const {
    breaks.take(tailored(cluster.properties));
    std::size_t i = cluster.begin + decodeAt(text, cluster.begin).length;
    while (i < cluster.end) {
        CodePoint const c = decodeAt(text, i);
        breaks.take(tailored(propertiesOf(c.value)));
        i += c.length;
    }
}

/// With `break-all` letters and digits are as ideographs.
Properties SegmentReader::tailored(Properties properties) const {
    LineClass& kind = properties.lineClass;
    if (options.wordBreak == WordBreak::breakAll &&
        (kind == LineClass::AL || kind == LineClass::HL || kind == LineClass::NU)) {
        kind = LineClass::ID;
    }
    return properties;
}

/// What is at the segment's end: white space, or the end of the text.
void SegmentReader::readBehind(Segment& segment) const {
    segment.next = segment.end;
    if (segment.end == text.size()) return;
    if (options.whiteSpace == WhiteSpace::preserved) return readPreserved(segment);
    segment.behind = Behind::space;
    std::size_t const blanks = behindRun(text, " \t", segment.end);
    bool const hasLineFeed = blanks < text.size() && isLineFeed(text[blanks]);
    if (hasLineFeed && options.whiteSpace == WhiteSpace::lines) {
        segment.behind = Behind::lineFeed;
        segment.next = behindRun(text, " \t", behindLineFeed(text, blanks));
        return;
    }
    segment.next = hasLineFeed ? behindRun(text, s_whiteSpace, blanks) : blanks;
    // A line feed beside a place where words may be parted says no more than that.
    bool const isBesideOpportunity = text.substr(0, segment.end).ends_with(s_zeroWidthSpace) ||
                                     text.substr(segment.next).starts_with(s_zeroWidthSpace);
    if (hasLineFeed && isBesideOpportunity) segment.behind = Behind::opportunity;
}

void SegmentReader::readPreserved(Segment& segment) const {
    if (isLineFeed(text[segment.end])) {
        segment.behind = Behind::lineFeed;
        segment.next = behindLineFeed(text, segment.end);
    } else if (text[segment.end] == '\t') {
        segment.behind = Behind::tab;
        segment.next = segment.end + 1;
    } else {
        segment.behind = Behind::space;
        segment.next = behindRun(text, " ", segment.end);
    }
}

}  // namespace galley::web
