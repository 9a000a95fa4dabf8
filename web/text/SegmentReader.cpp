#include "web/text/SegmentReader.h"

#include <utf8proc.h>

#include <algorithm>

#include "web/text/asciiBreaks.h"
#include "web/text/letters.h"
#include "web/text/scanWord.h"
#include "web/text/utf8.h"
#include "web/text/whiteSpace.h"

namespace galley::web {

namespace {

using Behind = Segment::Behind;
using WhiteSpace = TextOptions::WhiteSpace;
using WordBreak = TextOptions::WordBreak;

constexpr std::string_view s_whiteSpace = " \t\n\r";
constexpr char32_t s_zeroWidthSpace = 0x200B;
constexpr char32_t s_softHyphen = 0xAD;

bool isLineFeed(char byte) { return byte == '\n' || byte == '\r'; }

bool isLetterOrNumber(char32_t c) {
    utf8proc_category_t const category = utf8proc_category(static_cast<std::int32_t>(c));
    return (category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO) ||
           (category >= UTF8PROC_CATEGORY_ND && category <= UTF8PROC_CATEGORY_NO);
}

std::size_t behindRun(std::string_view text, std::string_view characters, std::size_t from) {
    return std::min(text.find_first_not_of(characters, from), text.size());
}

/// Behind this cluster a line may break.
void endBehind(Segment& segment, Cluster const& cluster) {
    bool const isHyphen = cluster.first == s_softHyphen;
    segment.behind = isHyphen ? Behind::softHyphen : Behind::opportunity;
    segment.end = isHyphen ? cluster.begin : cluster.end;
    segment.next = cluster.end;
}

/// Behind one line feed.
std::size_t behindLineFeed(std::string_view text, std::size_t from) {
    return from + (text.substr(from).starts_with("\r\n") ? 2 : 1);
}

}  // namespace

bool SegmentReader::next(Segment& segment) {
    if (isAtEnd()) return false;
    segment = {.begin = at};
    bool const isByClusters = options.wordBreak == WordBreak::breakAll || !isAscii(text[at]);
    bool const isRead = !isByClusters && readAscii(segment);
    if (!isRead && !readLetters(segment)) readClusters(segment);
    at = segment.next;
    return true;
}

/// Fails at what is neither white space nor printable ASCII.
bool SegmentReader::readAscii(Segment& segment) const {
    auto const isWord = [&](std::size_t i) { return i < text.size() && isPrintableAscii(text[i]); };
    std::size_t i = scanPlain(text, at);
    // Around this character a line may break.
    for (; isWord(i); i = scanPlain(text, i + 1)) {
        bool const breaksBefore = i > at && breaksInAscii(text, i, false, options.before);
        if (!breaksBefore && !(isWord(i + 1) && breaksInAscii(text, i + 1, false, options.before)))
            continue;
        segment.end = segment.next = breaksBefore ? i : i + 1;
        segment.width = segment.end - at;
        segment.behind = Behind::opportunity;
        return true;
    }
    if (i < text.size() && !isWhiteSpace(text[i])) return false;
    segment.end = i;
    segment.width = i - at;
    readBehind(segment);
    return true;
}

/// Reads a whole word of letters, not all of them ASCII, with what commonly stands around them, in
/// which no line breaks. Fails at all else.
bool SegmentReader::readLetters(Segment& segment) const {
    bool const isWhole = at == 0 || isWhiteSpace(text[at - 1]);
    if (!isWhole || options.wordBreak == WordBreak::breakAll || options.isAmbiguousWide)
        return false;
    std::size_t i = at;
    std::size_t letters = 0;
    bool isBehindLetter = false;
    while (i < text.size() && !isWhiteSpace(text[i])) {
        bool const isFirst = i == at;
        if (isLetterAt(text, i)) {
            if (!isFirst && !joinsLetterBehind(text[i - 1])) return false;
            std::size_t const first = i;
            do i += s_letterBytes;
            while (isLetterAt(text, i));
            letters += (i - first) / s_letterBytes;
            isBehindLetter = true;
            continue;
        }
        if (!isPrintableAscii(text[i])) return false;
        bool const isJoined =
            isFirst || (isBehindLetter ? joinsLetterBefore(text[i])
                                       : !breaksInAscii(text, i, false, options.before));
        if (!isJoined) return false;
        isBehindLetter = false;
        ++i;
    }
    segment.isPlain = false;
    segment.end = i;
    segment.width = i - at - letters;
    readBehind(segment);
    return true;
}

void SegmentReader::readClusters(Segment& segment) {
    segment.isPlain = segment.isOfLetters = false;
    bool const goesOn = following.begin == at && following.end > at;
    Cluster cluster = goesOn ? following : startWord();
    while (cluster.begin < wordEnd) {
        segment.width += cluster.width;
        segment.isPrintedAsIs = segment.isPrintedAsIs && cluster.isPrintedAsIs;
        take(cluster);
        if (cluster.end == wordEnd) break;
        following = clusterAt(text.substr(0, wordEnd), cluster.end, options.isAmbiguousWide);
        if (mayBreakBetween(cluster, following)) return endBehind(segment, cluster);
        cluster = following;
    }
    // What follows the text may begin a line behind one of these, and else only if it says so.
    bool const isOpportunity = cluster.first == s_softHyphen || cluster.first == s_zeroWidthSpace;
    if (cluster.end == text.size() && isOpportunity) return endBehind(segment, cluster);
    segment.end = wordEnd;
    readBehind(segment);
}

/// The first cluster of what is read cluster by cluster; none where there is white space.
Cluster SegmentReader::startWord() {
    if (wordEnd <= at) {
        wordEnd = at;
        while (wordEnd < text.size() && !isWhiteSpace(text[wordEnd])) ++wordEnd;
    }
    if (wordEnd == at) return {.begin = at, .end = at};
    Properties before = {.lineClass = LineClass::SP};
    if (at > 0 && !isWhiteSpace(text[at - 1])) {
        before = tailored(propertiesOf(decodeAt(text, startBefore(text, at)).value));
    }
    breaks = LineBreaks(before);
    return clusterAt(text.substr(0, wordEnd), at, options.isAmbiguousWide);
}

bool SegmentReader::mayBreakBetween(Cluster const& before, Cluster const& behind) const {
    std::size_t const place = behind.begin;
    if (isPrintableAscii(text[place - 1]) && isPrintableAscii(text[place])) {
        return breaksInAscii(text, place, options.wordBreak == WordBreak::breakAll, options.before);
    }
    if (text[place - 1] == '-' && hyphensBeginWord(text, place, options.before)) return false;
    if (options.wordBreak == WordBreak::keepAll && isLetterOrNumber(before.first) &&
        isLetterOrNumber(behind.first)) {
        return false;
    }
    return breaks.mayBreakBefore(tailored(behind.properties),
                                 text.substr(place + behind.firstLength));
}

void SegmentReader::take(Cluster const& cluster) {
    breaks.take(tailored(cluster.properties));
    for (std::size_t i = cluster.begin + cluster.firstLength; i < cluster.end;) {
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
    bool const isLast = segment.end + 1 == text.size();
    if (text[segment.end] == ' ' && !isLast && !isWhiteSpace(text[segment.end + 1])) {
        segment.behind = Behind::space;
        ++segment.next;
        return;
    }
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
    constexpr std::string_view zeroWidthSpace = "\u200B";
    bool const isBesideOpportunity = text.substr(0, segment.end).ends_with(zeroWidthSpace) ||
                                     text.substr(segment.next).starts_with(zeroWidthSpace);
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
